// Tabs, categories, button groups and contextual tab sets: membership rules, the
// signals the ribbon widgets follow, and lifetimes of members and containers.

#include "ZelTest.h"

#include "RibbonActionsContainer.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"

#include <QActionEvent>
#include <QPointer>
#include <QWidget>

using namespace zel;

namespace {

// Stands in for the ribbon bar: remembers what it was asked to hide and whether the
// set was still registered at that moment.
class FakeMenuBar : public QObject
{
    Q_OBJECT
public:
    QList<zel::RibbonContextCategoryPanelAction *> hidden;
    QList<bool> registeredWhenHidden;
    zel::RibbonContextCategoryPanel *panel = nullptr;

public slots:
    void hideContextPanelAction(zel::RibbonContextCategoryPanelAction *action)
    {
        hidden.append(action);
        registeredWhenHidden.append(panel && panel->containsAction(action));
    }
};

class TestContextPanel : public RibbonContextCategoryPanel
{
public:
    explicit TestContextPanel(QObject *bar) : RibbonContextCategoryPanel(bar) {}
};

class ChangeCounter : public QWidget
{
public:
    int changes = 0;

protected:
    void actionEvent(QActionEvent *event) override
    {
        if (event->type() == QEvent::ActionChanged)
            ++changes;
        QWidget::actionEvent(event);
    }
};

} // namespace

class tst_StructureActions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void tabTextInCapitalsAndCheckable();
    void emptyCategoryRefused();
    void addAndRemoveCategory();
    void memberChangesClimbToTab();
    void categoryMembersAndRows();
    void containerRelaysActivationOnce_data();
    void containerRelaysActivationOnce();
    void exclusiveGroup();
    void groupWideFollowsLatestAddition();
    void groupNotifiesItsWidgets();
    void contextSet();
    void contextPanelRegistry();
    void deleteMemberInsideContainers();
    void deleteMemberInsideOwnTriggeredHandler();
    void deleteContainersBeforeMembers();

private:
    QStringList m_names;
};

void tst_StructureActions::cleanup()
{
    for (const QString &entry : qAsConst(m_names))
        RibbonActionsContainer::instance().removeAction(entry);
    m_names.clear();
}

void tst_StructureActions::tabTextInCapitalsAndCheckable()
{
    m_names << QStringLiteral("STRUCT HOME") << QStringLiteral("STRUCT INSERT");
    RibbonCategoriesPanelAction home(QStringLiteral("Struct Home"), nullptr);
    RibbonCategoriesPanelAction insert(QIcon(), QStringLiteral("struct insert"), nullptr);
    RibbonCategoriesPanelAction untitled(nullptr);
    QCOMPARE(home.text(), QStringLiteral("STRUCT HOME"));
    QCOMPARE(insert.text(), QStringLiteral("STRUCT INSERT"));
    QCOMPARE(RibbonActionsContainer::instance().action(QStringLiteral("STRUCT HOME")).data(), &home);
    QVERIFY(home.isCheckable() && insert.isCheckable() && untitled.isCheckable());
}

void tst_StructureActions::emptyCategoryRefused()
{
    RibbonCategoriesPanelAction tab(nullptr);
    RibbonCategoryAction category(nullptr);
    QSignalSpy added(&tab, &RibbonCategoriesPanelAction::categoryAdded);
    QSignalSpy changed(&tab, &QAction::changed);

    tab.addCategory(&category);
    tab.addCategory(nullptr);
    QVERIFY(tab.categories().isEmpty());
    QCOMPARE(added.count(), 0);
    QCOMPARE(changed.count(), 0);

    RibbonSimpleAction command(nullptr);
    category.addAction(&command, 0);
    tab.addCategory(&category);
    QCOMPARE(tab.categories(), QList<RibbonCategoryAction *>{&category});
    QCOMPARE(added.count(), 1);
    QCOMPARE(added.at(0).at(0).value<RibbonCategoryAction *>(), &category);
    QCOMPARE(changed.count(), 1);

    tab.addCategory(&category); // duplicate
    QCOMPARE(tab.categories().size(), 1);
    QCOMPARE(added.count(), 1);
}

void tst_StructureActions::addAndRemoveCategory()
{
    RibbonCategoriesPanelAction tab(nullptr);
    RibbonCategoryAction first(nullptr), second(nullptr), stranger(nullptr);
    first.setText(QStringLiteral("Clipboard"));
    second.setText(QStringLiteral("Clipboard"));
    RibbonSimpleAction a(nullptr), b(nullptr);
    first.addAction(&a, 0);
    second.addAction(&b, 0);
    stranger.addAction(&b, 0);

    QStringList log;
    connect(&tab, &QAction::changed, this, [&log] { log << QStringLiteral("changed"); });
    connect(&tab, &RibbonCategoriesPanelAction::categoryAdded, this,
            [&log] { log << QStringLiteral("added"); });
    connect(&tab, &RibbonCategoriesPanelAction::categoryRemoved, this,
            [&log] { log << QStringLiteral("removed"); });

    tab.addCategory(&first);
    tab.addCategory(&second);
    QCOMPARE(tab.categories(), (QList<RibbonCategoryAction *>{&first, &second}));
    QCOMPARE(log, (QStringList{QStringLiteral("changed"), QStringLiteral("added"),
                               QStringLiteral("changed"), QStringLiteral("added")}));
    // Lookup by exact text; the first of equal names wins.
    QCOMPARE(tab.category(QStringLiteral("Clipboard")), &first);
    QVERIFY(!tab.category(QStringLiteral("clipboard")));
    QVERIFY(!tab.category(QString()));

    log.clear();
    tab.removeCategory(&stranger);
    tab.removeCategory(nullptr);
    QVERIFY(log.isEmpty());

    tab.removeCategory(&first);
    QCOMPARE(tab.categories(), QList<RibbonCategoryAction *>{&second});
    QCOMPARE(log, (QStringList{QStringLiteral("changed"), QStringLiteral("removed")}));

    // A removed category's changes no longer reach the tab.
    log.clear();
    first.setText(QStringLiteral("Elsewhere"));
    QVERIFY(log.isEmpty());
}

void tst_StructureActions::memberChangesClimbToTab()
{
    RibbonCategoriesPanelAction tab(nullptr);
    RibbonCategoryAction category(nullptr);
    RibbonSimpleAction command(nullptr);
    category.addAction(&command, 0);
    tab.addCategory(&category);

    QSignalSpy categoryChanged(&category, &QAction::changed);
    QSignalSpy tabChanged(&tab, &QAction::changed);
    command.setText(QStringLiteral("Paste"));
    QCOMPARE(categoryChanged.count(), 1);
    QCOMPARE(tabChanged.count(), 1);
    command.setText(QStringLiteral("Paste")); // same value
    QCOMPARE(tabChanged.count(), 1);
}

void tst_StructureActions::categoryMembersAndRows()
{
    RibbonCategoryAction category(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr);
    QStringList log;
    connect(&category, &RibbonCategoryAction::actionAdded, this,
            [&log](RibbonAction *) { log << QStringLiteral("added"); });
    connect(&category, &RibbonCategoryAction::actionRemoved, this,
            [&log](RibbonAction *) { log << QStringLiteral("removed"); });
    connect(&category, &QAction::changed, this, [&log] { log << QStringLiteral("changed"); });
    // An empty category answers -1, a category with members 0 for a stranger.
    QCOMPARE(category.actionRow(&a), -1);
    QCOMPARE(category.actionRow(nullptr), -1);

    category.addAction(&a, 2);
    category.addAction(&b, 1);
    category.addAction(&a, 0); // duplicate keeps the first row
    category.addAction(nullptr, 0);
    QCOMPARE(category.actions(), (QList<RibbonAction *>{&a, &b}));
    QCOMPARE(category.actionRow(&a), 2);
    QCOMPARE(category.actionRow(&b), 1);
    QCOMPARE(category.actionRow(nullptr), 0);
    QCOMPARE(log, (QStringList{QStringLiteral("added"), QStringLiteral("changed"),
                               QStringLiteral("added"), QStringLiteral("changed")}));

    log.clear();
    category.removeAction(&a);
    category.removeAction(&a);
    QCOMPARE(log, (QStringList{QStringLiteral("removed"), QStringLiteral("changed")}));
    QCOMPARE(category.actionRow(&a), 0);

    log.clear();
    a.setText(QStringLiteral("Removed")); // no longer connected
    QVERIFY(log.isEmpty());
}

void tst_StructureActions::containerRelaysActivationOnce_data()
{
    QTest::addColumn<bool>("inGroup");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("expected");
    QTest::newRow("category: simple action") << false << 0 << 1;
    QTest::newRow("category: category command") << false << 1 << 1;
    QTest::newRow("category: string action") << false << 2 << 0;
    QTest::newRow("group: simple action") << true << 0 << 1;
}

void tst_StructureActions::containerRelaysActivationOnce()
{
    QFETCH(bool, inGroup);
    QFETCH(int, kind);
    QFETCH(int, expected);
    QScopedPointer<RibbonAction> command;
    switch (kind) {
    case 0: command.reset(new RibbonSimpleAction(nullptr)); break;
    case 1: command.reset(new RibbonCatSimpleAction(RibbonCatSimpleAction::SizeSmall, nullptr)); break;
    case 2: command.reset(new RibbonStringAction(nullptr)); break;
    }
    RibbonCategoryAction category(nullptr);
    RibbonCatActionGroup group(nullptr);
    RibbonAction *container = inGroup ? static_cast<RibbonAction *>(&group) : &category;
    if (inGroup)
        group.addAction(command.data(), false);
    else
        category.addAction(command.data(), 0);
    QSignalSpy ownActivated(command.data(), &RibbonAction::ribbonActionActivated);
    QSignalSpy activated(container, &RibbonAction::ribbonActionActivated);
    command->trigger();
    QCOMPARE(ownActivated.count(), expected);
    QCOMPARE(activated.count(), expected);

    // A removed member relays nothing.
    if (inGroup)
        group.removeAction(command.data());
    else
        category.removeAction(command.data());
    command->trigger();
    QCOMPARE(activated.count(), expected);
}

void tst_StructureActions::exclusiveGroup()
{
    RibbonCatActionGroup group(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr), plain(nullptr);
    a.setCheckable(true);
    b.setCheckable(true);
    group.addAction(&a, false);
    group.addAction(&b, false);
    group.addAction(&plain, false);

    // Not exclusive: members are independent.
    a.setChecked(true);
    b.setChecked(true);
    QVERIFY(a.isChecked() && b.isChecked());
    QVERIFY(!group.checkedAction());

    b.setChecked(false);
    group.setExclusive(true);
    a.setChecked(false);
    a.setChecked(true);
    QCOMPARE(group.checkedAction(), &a);
    b.setChecked(true);
    QVERIFY(!a.isChecked());
    QCOMPARE(group.checkedAction(), &b);

    plain.trigger(); // not checkable: changes nothing
    QCOMPARE(group.checkedAction(), &b);

    // Removing the checked member clears the checked one; strangers change nothing.
    QSignalSpy changed(&group, &QAction::changed);
    RibbonSimpleAction outsider(nullptr);
    group.removeAction(&outsider);
    group.removeAction(nullptr);
    QCOMPARE(changed.count(), 0);
    group.removeAction(&b);
    QCOMPARE(changed.count(), 1);
    QVERIFY(b.isChecked());
    QVERIFY(!group.checkedAction());
    b.setChecked(false); // disconnected
    QCOMPARE(changed.count(), 1);

    // An already checked member added to an exclusive group becomes the checked one,
    // with or without a checked one before it.
    b.setChecked(true);
    group.addAction(&b, false);
    QCOMPARE(group.checkedAction(), &b);
    outsider.setCheckable(true);
    outsider.setChecked(true);
    group.addAction(&outsider, false);
    QCOMPARE(group.checkedAction(), &outsider);
    QVERIFY(!b.isChecked());

    changed.clear();
    group.setExclusive(false);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!group.checkedAction());
    QVERIFY(outsider.isChecked()); // nothing is unchecked
}

void tst_StructureActions::groupWideFollowsLatestAddition()
{
    RibbonCatActionGroup group(QStringLiteral("struct group"), nullptr);
    m_names << QStringLiteral("struct group");
    RibbonSimpleAction a(nullptr), b(nullptr);
    QVERIFY(!group.isWide());
    group.addAction(&a, true);
    QVERIFY(group.isWide());
    group.addAction(&b, false);
    QVERIFY(!group.isWide());
    group.addAction(&a, true); // duplicate: ignored entirely
    QVERIFY(!group.isWide());
}

void tst_StructureActions::groupNotifiesItsWidgets()
{
    RibbonCatActionGroup group(nullptr);
    ChangeCounter strip;
    strip.addAction(&group);
    RibbonSimpleAction a(nullptr);
    group.addAction(&a, false);
    QCOMPARE(strip.changes, 1);
    a.setText(QStringLiteral("Bold"));
    QCOMPARE(strip.changes, 2);
    group.removeAction(&a);
    QCOMPARE(strip.changes, 3);
}

void tst_StructureActions::contextSet()
{
    const QColor background(255, 200, 0), top(200, 100, 0), textColor(80, 40, 0);
    RibbonContextCategoryPanelAction set(background, top, textColor, nullptr);
    QCOMPARE(set.backgroundColor(), background);
    QCOMPARE(set.topColor(), top);
    QCOMPARE(set.textColor(), textColor);
    QVERIFY(set.text().isEmpty());

    m_names << QStringLiteral("STRUCT DESIGN") << QStringLiteral("STRUCT LAYOUT");
    RibbonCategoriesPanelAction design(QStringLiteral("Struct Design"), nullptr);
    RibbonCategoriesPanelAction layout(QStringLiteral("Struct Layout"), nullptr);
    QSignalSpy added(&set, &RibbonContextCategoryPanelAction::panelActionAdded);
    QSignalSpy removed(&set, &RibbonContextCategoryPanelAction::panelActionRemoved);

    set.addPanelAction(&design);
    set.addPanelAction(&layout);
    set.addPanelAction(&design);
    set.addPanelAction(nullptr);
    QCOMPARE(set.panelActions(), (QList<RibbonCategoriesPanelAction *>{&design, &layout}));
    QCOMPARE(added.count(), 2);
    QCOMPARE(set.panelAction(QStringLiteral("STRUCT LAYOUT")), &layout);
    QVERIFY(!set.panelAction(QStringLiteral("Struct Layout")));

    set.removePanelAction(&design);
    set.removePanelAction(&design);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(0).value<RibbonCategoriesPanelAction *>(), &design);
    QCOMPARE(set.panelActions(), QList<RibbonCategoriesPanelAction *>{&layout});
}

void tst_StructureActions::contextPanelRegistry()
{
    auto *bar = new FakeMenuBar;
    QPointer<RibbonContextCategoryPanel> panel = new TestContextPanel(bar);
    bar->panel = panel;
    QCOMPARE(panel->parent(), bar);

    RibbonContextCategoryPanelAction set(Qt::yellow, Qt::red, Qt::black, nullptr);
    set.setText(QStringLiteral("Picture Tools"));
    RibbonContextCategoryPanelAction unknown(Qt::green, Qt::green, Qt::black, nullptr);

    QVERIFY(!panel->containsAction(&set));
    QCOMPARE(panel->name(&set), QString());
    panel->addContextPanelAction(&set);
    panel->addContextPanelAction(&set);
    panel->addContextPanelAction(nullptr);
    QVERIFY(panel->containsAction(&set));
    QVERIFY(!panel->containsAction(nullptr));
    QCOMPARE(panel->name(&set), QStringLiteral("Picture Tools"));
    QCOMPARE(panel->name(&unknown), QString());
    QCOMPARE(panel->name(nullptr), QString());

    panel->removeContextPanelAction(&unknown);
    QVERIFY(bar->hidden.isEmpty());

    panel->removeContextPanelAction(&set);
    QCOMPARE(bar->hidden, QList<RibbonContextCategoryPanelAction *>{&set});
    QCOMPARE(bar->registeredWhenHidden, QList<bool>{true}); // hidden before unregistering
    QVERIFY(!panel->containsAction(&set));
    panel->removeContextPanelAction(&set);
    QCOMPARE(bar->hidden.size(), 1);

    delete bar; // owns the panel
    QVERIFY(panel.isNull());
}

void tst_StructureActions::deleteMemberInsideContainers()
{
    RibbonCategoriesPanelAction tab(nullptr);
    RibbonCategoryAction *category = new RibbonCategoryAction(nullptr);
    RibbonCatActionGroup group(nullptr);
    group.setExclusive(true);
    RibbonContextCategoryPanelAction set(Qt::yellow, Qt::red, Qt::black, nullptr);
    auto *contextTab = new RibbonCategoriesPanelAction(nullptr);
    set.addPanelAction(contextTab);
    FakeMenuBar bar;
    TestContextPanel panel(&bar);
    auto *registeredSet = new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, nullptr);
    panel.addContextPanelAction(registeredSet);

    auto *command = new RibbonSimpleAction(nullptr);
    command->setCheckable(true);
    RibbonSimpleAction keep(nullptr);
    category->addAction(command, 1);
    category->addAction(&keep, 2);
    group.addAction(command, false);
    command->setChecked(true);
    QCOMPARE(group.checkedAction(), command);
    tab.addCategory(category);

    QSignalSpy categoryRemoved(category, &RibbonCategoryAction::actionRemoved);
    QSignalSpy categoryChanged(category, &QAction::changed);
    QSignalSpy setRemoved(&set, &RibbonContextCategoryPanelAction::panelActionRemoved);
    delete command;
    QCOMPARE(category->actions(), QList<RibbonAction *>{&keep});
    QCOMPARE(category->actionRow(&keep), 2);
    QVERIFY(group.actions().isEmpty());
    QVERIFY(!group.checkedAction());
    QCOMPARE(categoryRemoved.count(), 0); // no signal carries the dead pointer
    QCOMPARE(categoryChanged.count(), 0); // announced from the event loop, once the dust settles
    QTRY_COMPARE(categoryChanged.count(), 1);

    QSignalSpy tabRemoved(&tab, &RibbonCategoriesPanelAction::categoryRemoved);
    delete category;
    QVERIFY(tab.categories().isEmpty());
    QCOMPARE(tabRemoved.count(), 0);

    delete contextTab;
    QVERIFY(set.panelActions().isEmpty());
    QCOMPARE(setRemoved.count(), 0);

    delete registeredSet;
    QVERIFY(bar.hidden.isEmpty());
    // The panel forgot it: a new set at a reused address is not mistaken for it.
    RibbonContextCategoryPanelAction other(Qt::yellow, Qt::red, Qt::black, nullptr);
    QVERIFY(!panel.containsAction(&other));

    // The surviving member still reaches its container.
    keep.setText(QStringLiteral("Still here"));
    QVERIFY(group.actions().isEmpty());
}

void tst_StructureActions::deleteMemberInsideOwnTriggeredHandler()
{
    RibbonCategoryAction category(nullptr);
    RibbonCatActionGroup group(nullptr);
    QPointer<RibbonSimpleAction> command = new RibbonSimpleAction(nullptr);
    category.addAction(command, 0);
    group.addAction(command, false);
    connect(command.data(), &QAction::triggered, this, [&command] { delete command.data(); });
    QSignalSpy activated(&category, &RibbonAction::ribbonActionActivated);

    command->trigger();
    QVERIFY(command.isNull());
    QVERIFY(category.actions().isEmpty());
    QVERIFY(group.actions().isEmpty());
    // The activation relay was connected before the handler and ran first.
    QCOMPARE(activated.count(), 1);
}

void tst_StructureActions::deleteContainersBeforeMembers()
{
    auto *tab = new RibbonCategoriesPanelAction(nullptr);
    auto *category = new RibbonCategoryAction(nullptr);
    auto *group = new RibbonCatActionGroup(nullptr);
    auto *set = new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, nullptr);
    RibbonSimpleAction command(nullptr);
    command.setCheckable(true);
    category->addAction(&command, 0);
    group->addAction(&command, false);
    group->setExclusive(true);
    tab->addCategory(category);
    set->addPanelAction(tab);

    delete set;
    delete group;
    delete tab;
    QSignalSpy ownChanged(&command, &QAction::changed);
    command.setChecked(true);
    command.trigger();
    QVERIFY(ownChanged.count() >= 1);
    delete category;
    command.setText(QStringLiteral("Alone"));
    QCOMPARE(command.text(), QStringLiteral("Alone"));
}

ZEL_TEST_MAIN(tst_StructureActions)
#include "tst_structureactions.moc"
