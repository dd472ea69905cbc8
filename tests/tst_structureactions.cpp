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
#include "RibbonMenuAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"
#include "RibbonTextAction.h"

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
    explicit TestContextPanel(FakeMenuBar *bar) : RibbonContextCategoryPanel(bar), m_bar(bar) {}

protected:
    void hideContextPanel(RibbonContextCategoryPanelAction *action) override
    {
        m_bar->hideContextPanelAction(action);
    }

private:
    FakeMenuBar *m_bar;
};

class ChangeCounter : public QWidget
{
public:
    int changes = 0;

protected:
    void actionEvent(QActionEvent *event) override
    {
        changes += event->type() == QEvent::ActionChanged;
        QWidget::actionEvent(event);
    }
};

RibbonContextCategoryPanelAction *newSet()
{
    return new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, nullptr);
}

using Actions = QList<RibbonAction *>;
using Log = QStringList;

} // namespace

class tst_StructureActions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void tabCategories();
    void categoryMembersAndRows();
    void categoryRowsFollowTheirMembers_data();
    void categoryRowsFollowTheirMembers();
    void containerRelaysActivationOnce_data();
    void containerRelaysActivationOnce();
    void exclusiveGroup();
    void groupWideAndWidgets();
    void contextSetAndRegistry();
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

void tst_StructureActions::tabCategories()
{
    RibbonCategoriesPanelAction tab(nullptr);
    RibbonCategoryAction first(nullptr), second(nullptr), stranger(nullptr);
    first.setText(QStringLiteral("Clipboard"));
    second.setText(QStringLiteral("Clipboard"));
    RibbonSimpleAction a(nullptr), b(nullptr);
    Log log;
    connect(&tab, &QAction::changed, this, [&log] { log << QStringLiteral("changed"); });
    connect(&tab, &RibbonCategoriesPanelAction::categoryAdded, this,
            [&log](RibbonCategoryAction *c) { log << QStringLiteral("added ") + c->text(); });
    connect(&tab, &RibbonCategoriesPanelAction::categoryRemoved, this,
            [&log] { log << QStringLiteral("removed"); });

    // An empty category, null and duplicates are refused.
    tab.addCategory(&first);
    tab.addCategory(nullptr);
    QVERIFY(tab.categories().isEmpty());
    first.addAction(&a, 0);
    second.addAction(&b, 0);
    stranger.addAction(&b, 0);
    tab.addCategory(&first);
    tab.addCategory(&second);
    tab.addCategory(&first);
    QCOMPARE(tab.categories(), (QList<RibbonCategoryAction *>{&first, &second}));
    QCOMPARE(log, (Log{"changed", "added Clipboard", "changed", "added Clipboard"}));
    // Lookup by exact text; the first of equal names wins.
    QCOMPARE(tab.category(QStringLiteral("Clipboard")), &first);
    QVERIFY(!tab.category(QStringLiteral("clipboard")));
    QVERIFY(!tab.category(QString()));

    // Member changes climb to the tab, once per real change.
    log.clear();
    a.setText(QStringLiteral("Paste"));
    a.setText(QStringLiteral("Paste"));
    QCOMPARE(log, Log{"changed"});

    log.clear();
    tab.removeCategory(&stranger);
    tab.removeCategory(nullptr);
    QVERIFY(log.isEmpty());
    tab.removeCategory(&first);
    QCOMPARE(tab.categories(), QList<RibbonCategoryAction *>{&second});
    QCOMPARE(log, (Log{"changed", "removed"}));
    log.clear();
    a.setText(QStringLiteral("Elsewhere")); // a removed category no longer reaches the tab
    QVERIFY(log.isEmpty());
}

void tst_StructureActions::categoryMembersAndRows()
{
    RibbonCategoryAction category(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr);
    Log log;
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
    QCOMPARE(category.actions(), (Actions{&a, &b}));
    QCOMPARE(category.actionRow(&a), 2);
    QCOMPARE(category.actionRow(&b), 1);
    QCOMPARE(category.actionRow(nullptr), 0);
    QCOMPARE(log, (Log{"added", "changed", "added", "changed"}));

    log.clear();
    category.removeAction(&a);
    category.removeAction(&a);
    QCOMPARE(log, (Log{"removed", "changed"}));
    QCOMPARE(category.actionRow(&a), 0);
    log.clear();
    a.setText(QStringLiteral("Removed")); // no longer connected
    QVERIFY(log.isEmpty());
}

void tst_StructureActions::categoryRowsFollowTheirMembers_data()
{
    QTest::addColumn<int>("gone");
    QTest::addColumn<bool>("destroyed");
    for (int gone = 0; gone < 3; ++gone) {
        QTest::addRow("member %d removed", gone) << gone << false;
        QTest::addRow("member %d destroyed", gone) << gone << true;
    }
}

// Every member keeps its own row when another one leaves, from any place in the list.
void tst_StructureActions::categoryRowsFollowTheirMembers()
{
    QFETCH(int, gone);
    QFETCH(bool, destroyed);
    RibbonCategoryAction category(nullptr);
    QList<RibbonAction *> members;
    for (int i = 0; i < 3; ++i)
        members << new RibbonSimpleAction(&category);
    const QList<int> rows{7, 0, 4};
    for (int i = 0; i < 3; ++i)
        category.addAction(members.at(i), rows.at(i));
    if (destroyed)
        delete members.at(gone);
    else
        category.removeAction(members.at(gone));
    for (int i = 0; i < 3; ++i) {
        if (i != gone)
            QCOMPARE(category.actionRow(members.at(i)), rows.at(i));
    }
    QCOMPARE(category.actions().size(), 2);
    // The leaver's row is gone with it: joining again takes the new row.
    if (!destroyed) {
        category.addAction(members.at(gone), 9);
        QCOMPARE(category.actionRow(members.at(gone)), 9);
    }
}

void tst_StructureActions::containerRelaysActivationOnce_data()
{
    QTest::addColumn<int>("container"); // 0 category, 1 button group, 2 menu
    QTest::addColumn<int>("kind");      // 0 simple, 1 category command, 2 text, 3 string
    QTest::addColumn<int>("expected");
    QTest::newRow("category: simple action") << 0 << 0 << 1;
    QTest::newRow("category: category command") << 0 << 1 << 1;
    QTest::newRow("category: string action") << 0 << 3 << 0;
    QTest::newRow("group: simple action") << 1 << 0 << 1;
    QTest::newRow("menu: simple action") << 2 << 0 << 1;
    QTest::newRow("menu: category command (relay made twice)") << 2 << 1 << 1;
    QTest::newRow("menu: text action") << 2 << 2 << 1;
    QTest::newRow("menu: string action") << 2 << 3 << 0;
}

// A member's trigger reaches its container as one activation, only for members that have
// one; a menu announces every item trigger, never its own. A removed member relays nothing.
void tst_StructureActions::containerRelaysActivationOnce()
{
    QFETCH(int, container);
    QFETCH(int, kind);
    QFETCH(int, expected);
    QScopedPointer<RibbonAction> command;
    switch (kind) {
    case 0: command.reset(new RibbonSimpleAction(nullptr)); break;
    case 1: command.reset(new RibbonCatSimpleAction(RibbonCatSimpleAction::SizeSmall, nullptr)); break;
    case 2: command.reset(new RibbonTextAction(nullptr)); break;
    case 3: command.reset(new RibbonStringAction(nullptr)); break;
    }
    RibbonCategoryAction category(nullptr);
    RibbonCatActionGroup group(nullptr);
    RibbonMenuAction menu(nullptr);
    const auto setMember = [&](bool add) {
        if (container == 0)
            add ? category.addAction(command.data(), 0) : category.removeAction(command.data());
        else if (container == 1)
            add ? group.addAction(command.data(), false) : group.removeAction(command.data());
        else
            add ? menu.addAction(command.data(), false) : menu.removeAction(command.data());
    };
    RibbonAction *containers[] = {&category, &group, &menu};
    QSignalSpy activated(containers[container], &RibbonAction::ribbonActionActivated);
    using ItemTriggered = void (RibbonMenuAction::*)(RibbonAction *);
    QSignalSpy itemTriggered(&menu, ItemTriggered(&RibbonMenuAction::triggered));
    menu.trigger();
    setMember(true);
    QSignalSpy ownActivated(command.data(), &RibbonAction::ribbonActionActivated);
    command->trigger();
    QCOMPARE(activated.count(), expected);
    QCOMPARE(ownActivated.count(), expected);
    if (container == 2) {
        QCOMPARE(itemTriggered.count(), 1);
        QCOMPARE(itemTriggered.at(0).at(0).value<RibbonAction *>(), command.data());
    }

    setMember(false);
    command->trigger();
    QCOMPARE(activated.count(), expected);
}

void tst_StructureActions::exclusiveGroup()
{
    RibbonCatActionGroup group(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr), plain(nullptr), outsider(nullptr);
    for (RibbonSimpleAction *member : {&a, &b, &outsider})
        member->setCheckable(true);
    group.addAction(&a, false);
    group.addAction(&b, false);
    group.addAction(&plain, false);

    // Not exclusive: members are independent.
    a.setChecked(true);
    b.setChecked(true);
    QVERIFY(a.isChecked() && !group.checkedAction());

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
    group.removeAction(&outsider);
    group.removeAction(nullptr);
    QCOMPARE(changed.count(), 0);
    group.removeAction(&b);
    QCOMPARE(changed.count(), 1);
    QVERIFY(b.isChecked() && !group.checkedAction());
    b.setChecked(false); // disconnected
    QCOMPARE(changed.count(), 1);

    // An already checked member added to an exclusive group becomes the checked one,
    // with or without a checked one before it.
    b.setChecked(true);
    group.addAction(&b, false);
    QCOMPARE(group.checkedAction(), &b);
    outsider.setChecked(true);
    group.addAction(&outsider, false);
    QCOMPARE(group.checkedAction(), &outsider);
    QVERIFY(!b.isChecked());

    changed.clear();
    group.setExclusive(false);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!group.checkedAction() && outsider.isChecked()); // nothing is unchecked
}

void tst_StructureActions::groupWideAndWidgets()
{
    RibbonCatActionGroup group(nullptr);
    ChangeCounter strip;
    strip.addAction(&group);
    RibbonSimpleAction a(nullptr), b(nullptr);
    QVERIFY(!group.isWide());
    group.addAction(&a, true);
    QVERIFY(group.isWide());
    QCOMPARE(strip.changes, 1); // the group's widgets hear of members and their changes
    group.addAction(&b, false); // the latest addition decides
    QVERIFY(!group.isWide());
    group.addAction(&a, true); // duplicate: ignored entirely
    QVERIFY(!group.isWide());
    QCOMPARE(strip.changes, 2);
    a.setText(QStringLiteral("Bold"));
    QCOMPARE(strip.changes, 3);
    group.removeAction(&a);
    QCOMPARE(strip.changes, 4);
}

void tst_StructureActions::contextSetAndRegistry()
{
    QScopedPointer<RibbonContextCategoryPanelAction> set(newSet());
    set->setText(QStringLiteral("Picture Tools"));
    // Tabs show their text in capitals, registered so, and are checkable.
    m_names << QStringLiteral("STRUCT DESIGN") << QStringLiteral("STRUCT LAYOUT");
    RibbonCategoriesPanelAction design(QStringLiteral("Struct Design"), nullptr);
    RibbonCategoriesPanelAction layout(QIcon(), QStringLiteral("struct layout"), nullptr);
    QCOMPARE(layout.text(), QStringLiteral("STRUCT LAYOUT"));
    QCOMPARE(RibbonActionsContainer::instance().action(QStringLiteral("STRUCT DESIGN")).data(), &design);
    QVERIFY(design.isCheckable() && layout.isCheckable() && RibbonCategoriesPanelAction(nullptr).isCheckable());
    QSignalSpy added(set.data(), &RibbonContextCategoryPanelAction::panelActionAdded);
    QSignalSpy removed(set.data(), &RibbonContextCategoryPanelAction::panelActionRemoved);

    for (RibbonCategoriesPanelAction *tab : {&design, &layout, &design})
        set->addPanelAction(tab);
    set->addPanelAction(nullptr);
    QCOMPARE(set->panelActions(), (QList<RibbonCategoriesPanelAction *>{&design, &layout}));
    QCOMPARE(added.count(), 2);
    QCOMPARE(set->panelAction(QStringLiteral("STRUCT LAYOUT")), &layout);
    QVERIFY(!set->panelAction(QStringLiteral("struct layout")));
    set->removePanelAction(&design);
    set->removePanelAction(&design);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(0).value<RibbonCategoriesPanelAction *>(), &design);

    // The registry of the bar.
    auto *bar = new FakeMenuBar;
    QPointer<RibbonContextCategoryPanel> panel = bar->panel = new TestContextPanel(bar);
    QScopedPointer<RibbonContextCategoryPanelAction> unknown(newSet());
    QCOMPARE(panel->name(set.data()), QString());
    panel->addContextPanelAction(set.data());
    panel->addContextPanelAction(set.data());
    panel->addContextPanelAction(nullptr);
    QVERIFY(panel->containsAction(set.data()) && !panel->containsAction(nullptr));
    QCOMPARE(panel->name(set.data()), QStringLiteral("Picture Tools"));
    QCOMPARE(panel->name(unknown.data()), QString());
    QCOMPARE(panel->name(nullptr), QString());

    panel->removeContextPanelAction(unknown.data());
    QVERIFY(bar->hidden.isEmpty());
    panel->removeContextPanelAction(set.data());
    QCOMPARE(bar->hidden, QList<RibbonContextCategoryPanelAction *>{set.data()});
    QCOMPARE(bar->registeredWhenHidden, QList<bool>{true}); // hidden before unregistering
    QVERIFY(!panel->containsAction(set.data()));
    panel->removeContextPanelAction(set.data());
    QCOMPARE(bar->hidden.size(), 1);
    delete bar; // owns the panel
    QVERIFY(panel.isNull());
}

void tst_StructureActions::deleteMemberInsideContainers()
{
    RibbonCategoriesPanelAction tab(nullptr);
    auto *category = new RibbonCategoryAction(nullptr);
    RibbonCatActionGroup group(nullptr);
    group.setExclusive(true);
    RibbonContextCategoryPanelAction set(Qt::yellow, Qt::red, Qt::black, nullptr);
    auto *contextTab = new RibbonCategoriesPanelAction(nullptr);
    set.addPanelAction(contextTab);
    FakeMenuBar bar;
    TestContextPanel panel(&bar);
    auto *registeredSet = newSet();
    panel.addContextPanelAction(registeredSet);

    auto *command = new RibbonSimpleAction(nullptr);
    command->setCheckable(true);
    RibbonSimpleAction keep(nullptr);
    category->addAction(command, 1);
    category->addAction(&keep, 2);
    group.addAction(command, false);
    command->setChecked(true);
    tab.addCategory(category);

    QSignalSpy categoryRemoved(category, &RibbonCategoryAction::actionRemoved);
    QSignalSpy categoryChanged(category, &QAction::changed);
    QSignalSpy setRemoved(&set, &RibbonContextCategoryPanelAction::panelActionRemoved);
    delete command;
    QCOMPARE(category->actions(), Actions{&keep});
    QCOMPARE(category->actionRow(&keep), 2);
    QVERIFY(group.actions().isEmpty() && !group.checkedAction());
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
    QScopedPointer<RibbonContextCategoryPanelAction> other(newSet());
    QVERIFY(!panel.containsAction(other.data()));
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
    QVERIFY(category.actions().isEmpty() && group.actions().isEmpty());
    QCOMPARE(activated.count(), 1); // the relay was connected before the handler
}

void tst_StructureActions::deleteContainersBeforeMembers()
{
    auto *tab = new RibbonCategoriesPanelAction(nullptr);
    auto *category = new RibbonCategoryAction(nullptr);
    auto *group = new RibbonCatActionGroup(nullptr);
    auto *set = newSet();
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
