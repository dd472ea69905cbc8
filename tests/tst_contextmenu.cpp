#include "ZelTest.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

#include <functional>
#include <memory>

using namespace zel;

namespace {

const QString kAdd = QStringLiteral("Add to Quick Access Toolbar");
const QString kRemove = QStringLiteral("Remove from Quick Access Toolbar");
const QString kCollapse = QStringLiteral("Collapse the Ribbon");
const QString kPin = QStringLiteral("Pin the Ribbon");

// A main window with a "Home" tab: "Clipboard" (Paste, Cut, a menu and a button group
// with Bold) and a wide "Styles" category that folds when the window is narrow; Save
// and Undo stand in the quick-access bar.
struct Fixture
{
    Fixture()
    {
        window.reset(new RibbonMainWindow);
        window->setCentralWidget(new QLineEdit);
        home = new RibbonCategoriesPanelAction(QStringLiteral("Home"), window.get());
        clipboard = new RibbonCategoryAction(QStringLiteral("Clipboard"), window.get());
        styles = new RibbonCategoryAction(QStringLiteral("Styles"), window.get());
        paste = command(QStringLiteral("Paste"), QStringLiteral("paste"));
        clipboard->addAction(paste, -1);
        clipboard->addAction(command(QStringLiteral("Cut"), QStringLiteral("cut"), RibbonCatSimpleAction::SizeSmall), 0);
        menu = new RibbonCatMenuAction(QStringLiteral("Format"), RibbonCatMenuAction::MenuTypeButton,
                                       RibbonCatMenuAction::MenuSizeSmall, RibbonCatMenuAction::PopupMenu, window.get());
        menu->addAction(command(QStringLiteral("Painter"), QString()), false);
        clipboard->addAction(menu, 1);
        strip = new RibbonCatActionGroup(window.get());
        bold = command(QStringLiteral("Bold"), QStringLiteral("bold"), RibbonCatSimpleAction::SizeSmall);
        strip->addAction(command(QStringLiteral("Italic"), QStringLiteral("italic"), RibbonCatSimpleAction::SizeSmall),
                         false);
        strip->addAction(bold, false);
        clipboard->addAction(strip, 2);
        for (int i = 0; i < 10; ++i)
            styles->addAction(command(QStringLiteral("Style %1").arg(i), QStringLiteral("style%1").arg(i)), -1);
        home->addCategory(clipboard);
        home->addCategory(styles);
        bar().addAction(home);

        save = new RibbonSimpleAction(QStringLiteral("Save"), window.get());
        save->setData(QStringLiteral("save"));
        undo = new RibbonSimpleAction(QStringLiteral("Undo"), window.get());
        undo->setData(QStringLiteral("undo"));
        quickAccess().addAction(save);
        quickAccess().addAction(undo);
    }

    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }
    RibbonQuickAccessBar &quickAccess() const { return window->quickAccessBar(); }

    RibbonCatSimpleAction *command(const QString &text, const QString &name,
                                   RibbonCatSimpleAction::eSize size = RibbonCatSimpleAction::SizeLarge)
    {
        auto *action = new RibbonCatSimpleAction(text, size, window.get());
        action->setData(name);
        return action;
    }

    RibbonCategoryWrapper *wrapper(RibbonCategoryAction *category) const
    {
        RibbonCategoryPanel *page = bar().categoryPanels()->subject()->panel(home);
        return page ? page->wrapper(category) : nullptr;
    }

    QWidget *control(RibbonAction *action) const { return wrapper(clipboard)->category()->widget(action); }

    // The quick-access bar's button of command, null when none.
    QWidget *quickAccessButton(QAction *action) const
    {
        for (QWidget *widget : action->associatedWidgets()) {
            if (widget->parentWidget() == &quickAccess())
                return widget;
        }
        return nullptr;
    }

    bool show(bool narrow = false)
    {
        window->resize(narrow ? 420 : 1200, 400);
        window->show();
        QApplication::setActiveWindow(window.get());
        if (!QTest::qWaitForWindowActive(window.get()))
            return false;
        if (narrow) {
            RibbonCategoryWrapper *folding = wrapper(styles);
            return QTest::qWaitFor([folding] { return folding && folding->isColapsed(); }, 2000);
        }
        return true;
    }

    std::unique_ptr<RibbonMainWindow> window;
    RibbonCategoriesPanelAction *home = nullptr;
    RibbonCategoryAction *clipboard = nullptr;
    RibbonCategoryAction *styles = nullptr;
    RibbonCatSimpleAction *paste = nullptr;
    RibbonCatMenuAction *menu = nullptr;
    RibbonCatActionGroup *strip = nullptr;
    RibbonCatSimpleAction *bold = nullptr;
    RibbonSimpleAction *save = nullptr;
    RibbonSimpleAction *undo = nullptr;
};

// Right-clicks widget at pos (its centre by default) as the window system would: the
// event goes to the widget under the mouse and travels up while it is ignored. Returns
// the menu that opened, null for none.
QMenu *rightClick(QWidget *widget, QPoint pos = QPoint(-1, -1))
{
    if (!widget)
        return nullptr;
    if (pos == QPoint(-1, -1))
        pos = widget->rect().center();
    QWidget *target = widget->childAt(pos) ? widget->childAt(pos) : widget;
    const QPoint local = target->mapFrom(widget, pos);
    QContextMenuEvent event(QContextMenuEvent::Mouse, local, target->mapToGlobal(local));
    QApplication::sendEvent(target, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QStringList entries(const QMenu *menu)
{
    QStringList texts;
    if (!menu)
        return texts;
    for (const QAction *action : menu->actions()) {
        if (!action->isSeparator())
            texts << action->text();
    }
    return texts;
}

// Chooses the entry of menu with text and lets the menu go.
bool choose(QMenu *menu, const QString &text)
{
    if (!menu)
        return false;
    for (QAction *action : menu->actions()) {
        if (action->text() == text) {
            menu->close();
            action->trigger();
            return true;
        }
    }
    menu->close();
    return false;
}

// The quick-access bar's customise menu entry of a command by text, with its check.
struct CustomiseEntry
{
    bool found = false;
    bool checked = false;
};

CustomiseEntry customiseEntry(const Fixture &f, const QString &text)
{
    CustomiseEntry result;
    for (const QAction *entry : f.quickAccess().findChild<QMenu *>()->actions()) {
        if (entry->text() == text) {
            result.found = true;
            result.checked = entry->isChecked();
        }
    }
    return result;
}

using Target = std::function<QMenu *(Fixture &)>;

} // namespace

Q_DECLARE_METATYPE(Target)

class tst_ContextMenu : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void entriesByPlace_data();
    void entriesByPlace();
    void addAndRemoveThroughTheMenu();
    void hostCommandsHideAndShowAsInTheCustomiseMenu();
    void collapseAndPin();
    void commandLeavesWhileTheMenuIsOpen();
};

void tst_ContextMenu::cleanup()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

void tst_ContextMenu::entriesByPlace_data()
{
    QTest::addColumn<Target>("target");
    QTest::addColumn<bool>("narrow");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("large command") << Target([](Fixture &f) { return rightClick(f.control(f.paste)); }) << false
                                   << QStringList{kAdd, kCollapse};
    QTest::newRow("button-group member") << Target([](Fixture &f) {
        auto *strip = qobject_cast<RibbonCatActionGroupWidget *>(f.control(f.strip));
        return rightClick(strip, strip->cellRect(1).center());
    }) << false << QStringList{kAdd, kCollapse};
    QTest::newRow("command already in the quick-access bar") << Target([](Fixture &f) {
        f.quickAccess().addAction(f.paste);
        return rightClick(f.control(f.paste));
    }) << false << QStringList{kRemove, kCollapse};
    QTest::newRow("menu button") << Target([](Fixture &f) { return rightClick(f.control(f.menu)); }) << false
                                 << QStringList{kCollapse};
    QTest::newRow("category caption") << Target([](Fixture &f) {
        RibbonCategory *category = f.wrapper(f.clipboard)->category();
        return rightClick(category, QPoint(category->width() / 2, category->height() - 4));
    }) << false << QStringList{kCollapse};
    QTest::newRow("free part of the panel") << Target([](Fixture &f) {
        QWidget *page = f.bar().categoryPanels()->subject()->panel(f.home);
        return rightClick(page, QPoint(page->width() - 10, page->height() / 2));
    }) << false << QStringList{kCollapse};
    QTest::newRow("tab") << Target([](Fixture &f) { return rightClick(f.bar().menuBarButton(f.home)); }) << false
                         << QStringList{kCollapse};
    QTest::newRow("quick-access command")
        << Target([](Fixture &f) { return rightClick(f.quickAccessButton(f.save)); }) << false
        << QStringList{kRemove, kCollapse};
    QTest::newRow("folded category") << Target([](Fixture &f) { return rightClick(f.wrapper(f.styles)); }) << true
                                     << QStringList{kCollapse};
    QTest::newRow("command in a folded category's popup") << Target([](Fixture &f) -> QMenu * {
        RibbonCategoryWrapper *folded = f.wrapper(f.styles);
        folded->setMyChecked(true);
        if (!zelPopupShown(folded->popup()))
            return nullptr;
        RibbonCategory *category = folded->popup()->category();
        return rightClick(category->widget(f.styles->actions().at(2)));
    }) << true << QStringList{kAdd, kCollapse};
    QTest::newRow("tab of a collapsed ribbon") << Target([](Fixture &f) {
        f.bar().setMinimizeRibbon(true);
        return rightClick(f.bar().menuBarButton(f.home));
    }) << false << QStringList{kPin};
}

void tst_ContextMenu::entriesByPlace()
{
    QFETCH(Target, target);
    QFETCH(bool, narrow);
    QFETCH(QStringList, expected);
    Fixture f;
    QVERIFY(f.show(narrow));
    QMenu *menu = target(f);
    QVERIFY(menu);
    QCOMPARE(entries(menu), expected);
}

void tst_ContextMenu::addAndRemoveThroughTheMenu()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(choose(rightClick(f.control(f.paste)), kAdd));
    QWidget *button = f.quickAccessButton(f.paste);
    QVERIFY(button);
    QVERIFY(!button->isHidden());
    QVERIFY(f.quickAccess().isQuickAccessCommand(f.paste));
    const CustomiseEntry added = customiseEntry(f, QStringLiteral("Paste"));
    QVERIFY(added.found && added.checked);

    // From its button in the bar as well as from its control in the ribbon.
    QCOMPARE(entries(rightClick(f.quickAccessButton(f.paste))), (QStringList{kRemove, kCollapse}));
    cleanup();
    QVERIFY(choose(rightClick(f.control(f.paste)), kRemove));
    QVERIFY(!f.quickAccessButton(f.paste));
    QVERIFY(!customiseEntry(f, QStringLiteral("Paste")).found);
    QVERIFY(!f.quickAccess().disabledQuickAccessBarItems().contains(QStringLiteral("paste")));

    // A member of a button group joins the bar too; hidden from the customise menu, it
    // is recorded as any command there.
    auto *strip = qobject_cast<RibbonCatActionGroupWidget *>(f.control(f.strip));
    QVERIFY(choose(rightClick(strip, strip->cellRect(1).center()), kAdd));
    QVERIFY(f.quickAccessButton(f.bold));
    QMenu *customise = f.quickAccess().findChild<QMenu *>();
    for (QAction *entry : customise->actions()) {
        if (entry->text() == QStringLiteral("Bold"))
            entry->trigger();
    }
    QCOMPARE(f.quickAccess().disabledQuickAccessBarItems(), QStringList{QStringLiteral("bold")});
    QCOMPARE(entries(rightClick(strip, strip->cellRect(1).center())), (QStringList{kAdd, kCollapse}));
    cleanup();
    QVERIFY(choose(rightClick(strip, strip->cellRect(1).center()), kAdd));
    QVERIFY(f.quickAccessButton(f.bold)->isVisibleTo(&f.quickAccess()));
    QVERIFY(f.quickAccess().disabledQuickAccessBarItems().isEmpty());
    QVERIFY(customiseEntry(f, QStringLiteral("Bold")).checked);
}

void tst_ContextMenu::hostCommandsHideAndShowAsInTheCustomiseMenu()
{
    // A name hidden in an earlier session: the command starts hidden.
    Fixture f;
    f.quickAccess().removeAction(f.undo);
    f.quickAccess().setQuickAccessBarItems({QStringLiteral("undo")});
    f.quickAccess().addAction(f.undo);
    QVERIFY(f.show());
    QVERIFY(f.quickAccessButton(f.save));

    QVERIFY(choose(rightClick(f.quickAccessButton(f.save)), kRemove));
    QVERIFY(f.quickAccessButton(f.save)->isHidden());
    QCOMPARE(f.quickAccess().disabledQuickAccessBarItems(), (QStringList{QStringLiteral("undo"), QStringLiteral("save")}));
    const CustomiseEntry hidden = customiseEntry(f, QStringLiteral("Save"));
    QVERIFY(hidden.found && !hidden.checked);

    // Adding a hidden command of the bar shows it again and clears its name.
    f.quickAccess().addQuickAccessCommand(f.undo);
    QVERIFY(!f.quickAccessButton(f.undo)->isHidden());
    QCOMPARE(f.quickAccess().disabledQuickAccessBarItems(), QStringList{QStringLiteral("save")});
    QVERIFY(customiseEntry(f, QStringLiteral("Undo")).checked);
    // Twice changes nothing.
    const int buttons = f.quickAccess().findChildren<QAbstractButton *>().size();
    f.quickAccess().addQuickAccessCommand(f.undo);
    QCOMPARE(f.quickAccess().findChildren<QAbstractButton *>().size(), buttons);
    QCOMPARE(f.quickAccess().disabledQuickAccessBarItems(), QStringList{QStringLiteral("save")});

    // A command the bar hid in an earlier session, added from the ribbon, shows.
    f.quickAccess().hideQuickAccessBarItem(QStringLiteral("paste"));
    f.quickAccess().addQuickAccessCommand(f.paste);
    QVERIFY(f.quickAccess().isQuickAccessCommand(f.paste));
    QVERIFY(!f.quickAccess().disabledQuickAccessBarItems().contains(QStringLiteral("paste")));
    f.quickAccess().removeQuickAccessCommand(nullptr);
    f.quickAccess().addQuickAccessCommand(nullptr);
}

void tst_ContextMenu::collapseAndPin()
{
    Fixture f;
    QVERIFY(f.show());
    QVERIFY(!f.bar().isRibbonMinimized());
    QVERIFY(choose(rightClick(f.control(f.paste)), kCollapse));
    QVERIFY(f.bar().isRibbonMinimized());

    // Collapsed, the tab opens the panel as a popup; a command there offers to pin.
    QMenu *onTab = rightClick(f.bar().menuBarButton(f.home));
    QCOMPARE(entries(onTab), QStringList{kPin});
    cleanup();
    QTest::mouseClick(f.bar().menuBarButton(f.home), Qt::LeftButton);
    RibbonCategoryPanels *panels = f.bar().categoryPanels()->subject();
    QTRY_VERIFY(panels->isWindow() && panels->isVisible());
    QMenu *inPopup = rightClick(f.control(f.paste));
    QCOMPARE(entries(inPopup), (QStringList{kAdd, kPin}));
    QVERIFY(choose(inPopup, kPin));
    QVERIFY(!f.bar().isRibbonMinimized());
}

void tst_ContextMenu::commandLeavesWhileTheMenuIsOpen()
{
    Fixture f;
    QVERIFY(f.show());
    QMenu *menu = rightClick(f.control(f.paste));
    QVERIFY(menu);
    QAction *add = menu->actions().value(0);
    delete f.paste;
    add->trigger();
    QCOMPARE(f.quickAccess().actions().size(), 2);

    // The window goes while a menu is open.
    QVERIFY(rightClick(f.bar().menuBarButton(f.home)));
    f.window.reset();
    QVERIFY(!QApplication::activePopupWidget());
}

ZEL_TEST_MAIN(tst_ContextMenu)

#include "tst_contextmenu.moc"
