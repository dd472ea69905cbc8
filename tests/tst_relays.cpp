// Relays between actions, their containers, their host aliases and their widgets: every
// relay of enabled state, checked state and selection settles in one pass, whatever
// order the parties act in, and the parties agree afterwards. Before these were
// guarded, each case below recursed until the stack overflowed.

#include "ZelTest.h"

#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatComboWidget.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonSimpleAction.h"

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <memory>

using namespace zel;

namespace {

QStringList boxItems(const QComboBox &box)
{
    QStringList items;
    for (int i = 0; i < box.count(); ++i)
        items << box.itemText(i);
    return items;
}

// Fails the test on any message: the library logs nothing, Qt's warnings included.
struct NoMessages
{
    NoMessages() { previous = qInstallMessageHandler(handler); }
    ~NoMessages() { qInstallMessageHandler(previous); }
    static void handler(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        messages() << message;
    }
    static QStringList &messages()
    {
        static QStringList list;
        return list;
    }
    QtMessageHandler previous = nullptr;
};

} // namespace

class tst_Relays : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void comboBoxAndActionAgreeAfterTyping_data();
    void comboBoxAndActionAgreeAfterTyping();
    void comboBoxesOfOneActionAgree();
    void negativeComboWidthsAreRefusedSilently();
    void aliasedItemInSubmenuOfEnablingMenuSettles();
    void aliasedItemAlsoBottomCommandSettles();
    void commandSharedByTwoMenusSettles_data();
    void commandSharedByTwoMenusSettles();
    void aliasedTabTriggeredWithinReopenGuardSettles();
    void staleToggleDoesNotReachAlias();
};

void tst_Relays::comboBoxAndActionAgreeAfterTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("items"); // after the host's additions
    QTest::addColumn<int>("selected");      // index the host selects afterwards
    QTest::addColumn<QString>("selection");

    const QStringList all{"typed", "Alpha", "Beta"};
    QTest::newRow("new text, then select it") << "typed" << all << 0 << "typed";
    QTest::newRow("new text, then select a host item") << "typed" << all << 1 << "Alpha";
    QTest::newRow("new text, then select the last") << "typed" << all << 2 << "Beta";
    QTest::newRow("nothing typed") << "" << QStringList{"Alpha", "Beta"} << 0 << "Alpha";
}

void tst_Relays::comboBoxAndActionAgreeAfterTyping()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, items);
    QFETCH(int, selected);
    QFETCH(QString, selection);

    // A find box on the tab row: the user types, presses Return, then the host fills it.
    RibbonMainWindow window;
    auto *combo = new RibbonCatComboAction(&window);
    window.ribbonMenuBar().addAction(combo);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *box = window.ribbonMenuBar().findChild<RibbonCatComboComboBox *>();
    QVERIFY(box && box->isEditable());

    QSignalSpy keys(combo, &RibbonCatComboAction::keyPressed);
    QTest::keyClicks(box, typed);
    QTest::keyClick(box, Qt::Key_Return);
    // The host reading the text on Return sees what was typed.
    QCOMPARE(keys.count(), typed.size() + 1);
    QCOMPARE(combo->selectionText(), typed);

    combo->addItem(QStringLiteral("Alpha"));
    combo->addItem(QStringLiteral("Beta"));
    combo->setSelectionIndex(selected);

    QCOMPARE(combo->items(), items);
    QCOMPARE(boxItems(*box), items);
    QCOMPARE(combo->selectionText(), selection);
    QCOMPARE(box->currentText(), selection);
    QCOMPARE(box->currentIndex(), selected);

    // Typing an item that is already there selects it and adds nothing.
    box->lineEdit()->clear();
    QTest::keyClicks(box, QStringLiteral("Beta"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(combo->items(), items);
    QCOMPARE(boxItems(*box), items);
    QCOMPARE(combo->selectionText(), QStringLiteral("Beta"));
    QCOMPARE(box->currentIndex(), items.indexOf(QStringLiteral("Beta")));
}

void tst_Relays::comboBoxesOfOneActionAgree()
{
    // One action shown twice (a category's labelled combo and a bare box): what the user
    // types into one shows in both, once.
    RibbonCatComboAction combo(QStringLiteral("Find"), nullptr);
    combo.addItem(QStringLiteral("Alpha"));
    QWidget host;
    auto *labelled = new RibbonCatComboWidget(combo, &host);
    auto *bare = new RibbonCatComboComboBox(combo, &host);

    QTest::keyClicks(labelled->comboBox(), QStringLiteral("Gamma"));
    QTest::keyClick(labelled->comboBox(), Qt::Key_Return);
    const QStringList items{"Alpha", "Gamma"};
    QCOMPARE(combo.items(), items);
    QCOMPARE(boxItems(*labelled->comboBox()), items);
    QCOMPARE(boxItems(*bare), items);
    QCOMPARE(bare->currentText(), QStringLiteral("Gamma"));

    // Choosing in one box selects in the action and in the other box.
    QSignalSpy selectionChanged(&combo, &RibbonCatComboAction::selectionTextChanged);
    bare->setCurrentIndex(0);
    QCOMPARE(combo.selectionText(), QStringLiteral("Alpha"));
    QCOMPARE(labelled->comboBox()->currentText(), QStringLiteral("Alpha"));
    QCOMPARE(selectionChanged.count(), 1);
}

void tst_Relays::negativeComboWidthsAreRefusedSilently()
{
    NoMessages::messages().clear();
    NoMessages guard;
    RibbonCatComboAction combo(QStringLiteral("Size"), nullptr);
    combo.setWidth(-20);
    combo.setIconWidth(-5);
    QCOMPARE(combo.width(), 48);
    QCOMPARE(combo.iconWidth(), 22);
    combo.setWidth(0);
    QCOMPARE(combo.width(), 0);

    QWidget host;
    RibbonCatComboWidget widget(combo, &host);
    RibbonCatComboComboBox box(combo, &host);
    QCOMPARE(box.width(), 0);
    QVERIFY(widget.width() >= 0);
    QCOMPARE(NoMessages::messages(), QStringList());
}

void tst_Relays::aliasedItemInSubmenuOfEnablingMenuSettles()
{
    QAction host(QStringLiteral("Host"), nullptr);
    RibbonMenuAction outer(nullptr), inner(nullptr);
    RibbonSimpleAction item(QPointer<QAction>(&host), nullptr);
    RibbonSimpleAction plain(nullptr);
    inner.addAction(&item, false);
    inner.addAction(&plain, false);
    outer.addAction(&inner, false);
    outer.autoChangeEnableSubActions(true);

    outer.setEnabled(false);
    QVERIFY(!inner.isEnabled());
    QVERIFY(!plain.isEnabled()); // the push reaches down through the submenu
    QVERIFY(item.isEnabled());   // the alias's own state wins over the push
    QVERIFY(host.isEnabled());

    host.setEnabled(false);
    QVERIFY(!item.isEnabled());
    outer.setEnabled(true);
    QVERIFY(inner.isEnabled() && plain.isEnabled());
    QVERIFY(!item.isEnabled()); // still the alias's state
    host.setEnabled(true);
    QVERIFY(item.isEnabled());
}

void tst_Relays::aliasedItemAlsoBottomCommandSettles()
{
    QAction host(QStringLiteral("Host"), nullptr);
    RibbonCatMenuAction menu(RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeLarge,
                             RibbonCatMenuAction::PopupView, nullptr);
    RibbonSimpleAction item(QPointer<QAction>(&host), nullptr);
    RibbonSimpleAction other(nullptr);
    menu.addAction(&item, false);
    menu.addBottomAction(&item);
    menu.addBottomAction(&other);
    menu.autoChangeEnableSubActions(true);

    menu.setEnabled(false);
    QVERIFY(!other.isEnabled());
    QVERIFY(item.isEnabled());
    host.setEnabled(false);
    menu.setEnabled(true);
    QVERIFY(other.isEnabled());
    QVERIFY(!item.isEnabled());
}

void tst_Relays::commandSharedByTwoMenusSettles_data()
{
    QTest::addColumn<bool>("autoChange");
    QTest::addColumn<bool>("aliased");
    QTest::newRow("popup commands") << false << false;
    QTest::newRow("popup commands and items") << true << false;
    QTest::newRow("popup commands and items, aliased") << true << true;
}

void tst_Relays::commandSharedByTwoMenusSettles()
{
    QFETCH(bool, autoChange);
    QFETCH(bool, aliased);

    // "More..." as a top command and an item of two view-popup menus.
    QAction host(QStringLiteral("More host"), nullptr);
    std::unique_ptr<RibbonSimpleAction> more(aliased ? new RibbonSimpleAction(QPointer<QAction>(&host), nullptr)
                                                     : new RibbonSimpleAction(QStringLiteral("More..."), nullptr));
    RibbonCatMenuAction a(RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeLarge,
                          RibbonCatMenuAction::PopupView, nullptr);
    RibbonCatMenuAction b(RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeLarge,
                          RibbonCatMenuAction::PopupView, nullptr);
    for (RibbonCatMenuAction *menu : {&a, &b}) {
        menu->addTopAction(more.get());
        menu->addAction(more.get(), false);
        menu->autoChangeEnableSubActions(autoChange);
    }

    // The menu whose state changed last decides; the other one does not push back.
    a.setEnabled(false);
    QCOMPARE(more->isEnabled(), aliased);
    b.setEnabled(false);
    QCOMPARE(more->isEnabled(), aliased);
    a.setEnabled(true);
    QVERIFY(more->isEnabled());
    b.setEnabled(true);
    QVERIFY(more->isEnabled());
}

void tst_Relays::aliasedTabTriggeredWithinReopenGuardSettles()
{
    RibbonMainWindow window;
    QAction host(QStringLiteral("Host tab"), nullptr);
    host.setCheckable(true);
    auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), &window);
    auto *group = new RibbonCategoryAction(QStringLiteral("Group"), &window);
    group->addAction(new RibbonCatSimpleAction(QStringLiteral("Go"), RibbonCatSimpleAction::SizeLarge, &window), -1);
    tab->addCategory(group);
    tab->setAliasAction(QPointer<QAction>(&host));
    RibbonMenuBar &bar = window.ribbonMenuBar();
    bar.addAction(tab);
    window.resize(800, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    bar.setMinimizeRibbon(true);

    auto *guard = bar.categoryPanels()->findChild<QTimer *>(QStringLiteral("reopenGuard"));
    QVERIFY(guard);
    guard->setInterval(60 * 1000); // the trigger below falls within it, however slow the run

    // Open the popup panel, close it (the guard starts), then the tab is triggered again.
    tab->setChecked(true);
    QTRY_VERIFY(bar.categoryPanels()->subject()->isVisible());
    QVERIFY(host.isChecked());
    tab->setChecked(false);
    QVERIFY(guard->isActive());
    QVERIFY(!host.isChecked());

    tab->trigger();
    QVERIFY(!tab->isChecked());
    QVERIFY(!host.isChecked());
    QVERIFY(!bar.categoryPanels()->subject()->isVisible());

    // Past the guard the tab opens the popup again, and the alias follows.
    guard->stop();
    tab->trigger();
    QVERIFY(tab->isChecked());
    QVERIFY(host.isChecked());
    host.setChecked(false);
    QVERIFY(!tab->isChecked());
}

void tst_Relays::staleToggleDoesNotReachAlias()
{
    // A receiver that reverses a check inside the action's own setChecked(): the toggle
    // announced afterwards is stale and must not check the alias, nor come back.
    QAction host(QStringLiteral("Host"), nullptr);
    host.setCheckable(true);
    RibbonSimpleAction action(QPointer<QAction>(&host), nullptr);
    QVERIFY(action.isCheckable());
    bool reverse = true;
    connect(&action, &QAction::changed, &action, [&] {
        if (reverse && action.isChecked()) {
            reverse = false;
            action.setChecked(false);
        }
    });
    action.setChecked(true);
    QVERIFY(!action.isChecked());
    QVERIFY(!host.isChecked());

    host.setChecked(true);
    QVERIFY(action.isChecked());
}

ZEL_TEST_MAIN(tst_Relays)
#include "tst_relays.moc"
