// Containment: every container of actions ignores a member that is itself or that would
// close a cycle of containment, relays through shared members once, and survives any
// order of destruction of containers and members. Run under the sanitizers, the first
// two tests read freed memory or overflow the stack when a refusal is missing.

#include "ZelTest.h"

#include "RibbonButtonNormal.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBar.h"

#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <memory>

using namespace zel;

namespace {

using Items = QList<RibbonAction *>;

RibbonCatSimpleAction *command(QObject *owner, const char *text = "Go")
{
    return new RibbonCatSimpleAction(QLatin1String(text), RibbonCatSimpleAction::SizeSmall, owner);
}

// A one-row menu button: its arrow part, which opens the menu on a press, is at its right.
RibbonCatMenuAction *menuAction(QObject *owner)
{
    return new RibbonCatMenuAction(RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                   RibbonCatMenuAction::PopupMenu, owner);
}

void pressArrow(QWidget *button)
{
    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(button->width() - 3, button->height() / 2));
}

enum Self {
    MenuAdd,
    MenuInsert,
    MenuDefault,
    Category,
    ButtonGroup,
    TabThroughItsCategory,
    ContextSetThroughItsTab,
    RibbonBar,
    StatusBar,
    QuickAccessBar
};

} // namespace

class tst_Containment : public QObject
{
    Q_OBJECT

private slots:
    // Popups closed by a test go with the next pass of the event loop.
    void cleanup() { QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void containerIgnoresItselfAsMember_data();
    void containerIgnoresItselfAsMember();
    void containerIgnoresMemberClosingACycle_data();
    void containerIgnoresMemberClosingACycle();
    void aliasCyclesAreRefused();
    void sharedMemberRelaysOncePerContainer();
    void relaysThroughSharedLevelsStayLinear_data();
    void relaysThroughSharedLevelsStayLinear();
    void replacedAliasLeavesContainerLinks();
    void changeRelayedThroughAliasSettles();
    void anyOrderOfDestruction();
};

void tst_Containment::containerIgnoresItselfAsMember_data()
{
    QTest::addColumn<int>("self");
    QTest::newRow("menu: addAction") << int(MenuAdd);
    QTest::newRow("menu: insertAction") << int(MenuInsert);
    QTest::newRow("menu: setDefaultAction") << int(MenuDefault);
    QTest::newRow("category") << int(Category);
    QTest::newRow("button group") << int(ButtonGroup);
    QTest::newRow("tab, through its category") << int(TabThroughItsCategory);
    QTest::newRow("contextual set, through its tab") << int(ContextSetThroughItsTab);
    QTest::newRow("ribbon bar: its collapse command") << int(RibbonBar);
    QTest::newRow("status bar: a menu holding itself") << int(StatusBar);
    QTest::newRow("quick-access bar: its customise command") << int(QuickAccessBar);
}

void tst_Containment::containerIgnoresItselfAsMember()
{
    QFETCH(int, self);
    std::unique_ptr<RibbonMainWindow> window(new RibbonMainWindow);
    QObject owner;
    RibbonSimpleAction *go = command(&owner);

    switch (self) {
    case MenuAdd:
    case MenuInsert:
    case MenuDefault: {
        RibbonCatMenuAction *menu = menuAction(nullptr);
        menu->addAction(go, false);
        QSignalSpy activated(menu, &RibbonAction::ribbonActionActivated);
        if (self == MenuAdd)
            menu->addAction(menu, false);
        else if (self == MenuInsert)
            menu->insertAction(0, menu);
        else
            menu->setDefaultAction(menu);
        QCOMPARE(menu->menuActions(), Items{go});
        QVERIFY(!menu->defaultAction());
        go->trigger();
        QCOMPARE(activated.count(), 1);
        QMenu shown;
        menu->fillMenu(shown);
        QCOMPARE(shown.actions().size(), 1);
        delete menu; // its own destroyed() must not reach a slot of its own
        break;
    }
    case Category: {
        auto *category = new RibbonCategoryAction(QStringLiteral("Group"), nullptr);
        category->addAction(go, 0);
        QSignalSpy added(category, &RibbonCategoryAction::actionAdded);
        QSignalSpy changed(category, &QAction::changed);
        category->addAction(category, 0);
        QCOMPARE(category->actions(), Items{go});
        QCOMPARE(added.count(), 0);
        go->setText(QStringLiteral("Went"));
        QCOMPARE(changed.count(), 1);
        delete category;
        break;
    }
    case ButtonGroup: {
        auto *group = new RibbonCatActionGroup(QStringLiteral("Strip"), nullptr);
        group->addAction(go, false);
        QSignalSpy changed(group, &QAction::changed);
        group->addAction(group, true);
        QCOMPARE(group->actions(), Items{go});
        QVERIFY(!group->isWide()); // a refused member changes nothing, not even the flag
        go->setText(QStringLiteral("Went"));
        QCOMPARE(changed.count(), 1);
        delete group;
        break;
    }
    case TabThroughItsCategory: {
        auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), &owner);
        auto *category = new RibbonCategoryAction(QStringLiteral("Group"), &owner);
        category->addAction(go, 0);
        tab->addCategory(category);
        category->addAction(tab, 0);
        QCOMPARE(category->actions(), Items{go});
        window->ribbonMenuBar().addAction(tab);
        QSignalSpy tabChanged(tab, &QAction::changed);
        go->setText(QStringLiteral("Went"));
        QCOMPARE(tabChanged.count(), 1);
        break;
    }
    case ContextSetThroughItsTab: {
        auto *set = new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, &owner);
        auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Table"), &owner);
        auto *category = new RibbonCategoryAction(QStringLiteral("Group"), &owner);
        category->addAction(go, 0);
        category->addAction(set, 1); // a set as a command of a category: allowed, shows nothing
        tab->addCategory(category);
        QSignalSpy added(set, &RibbonContextCategoryPanelAction::panelActionAdded);
        set->addPanelAction(tab);
        QVERIFY(set->panelActions().isEmpty());
        QCOMPARE(added.count(), 0);
        break;
    }
    case RibbonBar: {
        RibbonMenuBar &bar = window->ribbonMenuBar();
        const int widgets = bar.findChildren<QWidget *>().size();
        bar.addAction(bar.collapseRibbonAction());
        bar.setHelpAction(qobject_cast<RibbonAction *>(bar.collapseRibbonAction()));
        QCOMPARE(bar.findChildren<QWidget *>().size(), widgets);
        QVERIFY(!bar.helpAction());
        bar.collapseRibbonAction()->trigger();
        QVERIFY(bar.isRibbonMinimized());
        break;
    }
    case StatusBar: {
        RibbonCatMenuAction *menu = menuAction(&owner);
        menu->addAction(go, false);
        menu->addAction(menu, true);
        RibbonStatusBar &bar = window->ribbonStatusBar();
        bar.addAction(menu);
        bar.addAction(menu); // again: still one button
        QCOMPARE(bar.findChildren<RibbonCatMenuButton *>().size(), 1);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        auto *button = qobject_cast<RibbonCatMenuButton *>(bar.widgetForAction(menu));
        QVERIFY(button);
        pressArrow(button);
        QTRY_VERIFY(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
        QCOMPARE(QApplication::activePopupWidget()->actions().size(), 1);
        delete menu; // while its popup is open
        QTRY_VERIFY(!QApplication::activePopupWidget());
        break;
    }
    case QuickAccessBar: {
        RibbonQuickAccessBar &bar = window->quickAccessBar();
        const QList<RibbonButtonNormal *> before = bar.findChildren<RibbonButtonNormal *>();
        QCOMPARE(before.size(), 1);
        QAction *customize = before.first()->actions().value(0);
        QVERIFY(customize);
        auto *menu = bar.findChild<QMenu *>();
        const int entries = menu->actions().size();
        bar.addAction(customize);
        QCOMPARE(bar.findChildren<RibbonButtonNormal *>().size(), 1);
        QCOMPARE(menu->actions().size(), entries);
        break;
    }
    }
}

void tst_Containment::containerIgnoresMemberClosingACycle_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("two menus") << 2;
    QTest::newRow("three menus") << 3;
}

void tst_Containment::containerIgnoresMemberClosingACycle()
{
    QFETCH(int, length);
    QObject owner;

    // Menus each holding the next; the last may not hold the first, by either call.
    QList<RibbonMenuAction *> menus;
    for (int i = 0; i < length; ++i)
        menus << menuAction(&owner);
    for (int i = 0; i + 1 < length; ++i)
        menus[i]->addAction(menus[i + 1], false);
    RibbonCatSimpleAction *go = command(&owner);
    menus.last()->addAction(go, false);
    menus.last()->addAction(menus.first(), false);
    menus.last()->insertAction(0, menus.first());
    QCOMPARE(menus.last()->menuActions(), Items{go});

    QSignalSpy activated(menus.first(), &RibbonAction::ribbonActionActivated);
    go->trigger();
    QCOMPARE(activated.count(), 1);

    // A tab used as a command of its own category, directly or through a menu and a
    // button group standing in that category.
    auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), &owner);
    auto *category = new RibbonCategoryAction(QStringLiteral("Group"), &owner);
    auto *group = new RibbonCatActionGroup(QStringLiteral("Strip"), &owner);
    group->addAction(command(&owner, "Bold"), false);
    category->addAction(group, 0);
    tab->addCategory(category);
    category->addAction(tab, 0);
    QCOMPARE(category->actions(), Items{group});
    RibbonMenuAction *holder = menus.first();
    holder->addAction(tab, false); // a menu may hold a tab ...
    group->addAction(holder, false); // ... but not inside that tab
    QCOMPARE(group->actions().size(), 1);

    QSignalSpy tabChanged(tab, &QAction::changed);
    group->actions().first()->setText(QStringLiteral("Italic"));
    QCOMPARE(tabChanged.count(), 1);

    // A contextual set held by a category of one of its tabs.
    auto *set = new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, &owner);
    category->addAction(set, 1);
    set->addPanelAction(tab);
    QVERIFY(set->panelActions().isEmpty());
    category->removeAction(set);
    set->addPanelAction(tab);
    QCOMPARE(set->panelActions().size(), 1);
}

void tst_Containment::aliasCyclesAreRefused()
{
    RibbonSimpleAction a(nullptr), b(nullptr), c(nullptr);
    a.setAliasAction(QPointer<QAction>(&a));
    QVERIFY(!a.aliasAction());
    a.setAliasAction(QPointer<QAction>(&b));
    b.setAliasAction(QPointer<QAction>(&c));
    c.setAliasAction(QPointer<QAction>(&a));
    QVERIFY(!c.aliasAction());
    QCOMPARE(b.aliasAction(), &c);

    QSignalSpy triggered(&c, &QAction::triggered);
    a.trigger();
    QCOMPARE(triggered.count(), 1);
    c.setText(QStringLiteral("Chain"));
    QCOMPARE(a.text(), QStringLiteral("Chain"));
}

void tst_Containment::sharedMemberRelaysOncePerContainer()
{
    // One command in two menus of one category: its change reaches the category through
    // both, its activation too, and nothing loops.
    QObject owner;
    RibbonCatSimpleAction *go = command(&owner);
    RibbonCatMenuAction *first = menuAction(&owner);
    RibbonCatMenuAction *second = menuAction(&owner);
    first->addAction(go, false);
    second->addAction(go, true);
    first->addAction(second, false);
    auto *category = new RibbonCategoryAction(QStringLiteral("Group"), &owner);
    category->addAction(first, 0);
    category->addAction(second, 0);
    QSignalSpy activated(category, &RibbonAction::ribbonActionActivated);
    QSignalSpy triggered(first, &RibbonMenuAction::triggered);
    go->trigger();
    QVERIFY(activated.count() >= 1);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(triggered.at(0).at(0).value<RibbonAction *>(), go);
}

void tst_Containment::relaysThroughSharedLevelsStayLinear_data()
{
    QTest::addColumn<QString>("container");
    QTest::newRow("button groups") << QStringLiteral("group");
    QTest::newRow("categories of tabs") << QStringLiteral("category");
    QTest::newRow("menus standing for a shared alias") << QStringLiteral("alias");
}

void tst_Containment::relaysThroughSharedLevelsStayLinear()
{
    // Levels of two containers, each holding both of the level below: the command at the
    // bottom reaches the top by 2^levels paths. Its change must reach each container a
    // few times (once for each container that holds the command itself, and once more
    // for what changed on the way), whatever the number of paths. Menus stand for a
    // shared alias, as they do not relay the changes of the menus they hold.
    QFETCH(QString, container);
    constexpr int Levels = 16;
    QObject owner;
    QAction alias(QStringLiteral("Alias"), &owner);
    RibbonCatSimpleAction *go = command(&owner);
    QList<RibbonAction *> below{go};
    RibbonAction *top = nullptr;
    for (int level = 0; level < Levels; ++level) {
        QList<RibbonAction *> here;
        for (int i = 0; i < 2; ++i) {
            RibbonAction *made = nullptr;
            if (container == QLatin1String("group")) {
                auto *group = new RibbonCatActionGroup(QStringLiteral("Strip"), &owner);
                for (RibbonAction *member : below)
                    group->addAction(member, false);
                made = group;
            } else if (container == QLatin1String("category")) {
                // A category holds tabs here, and each tab the categories below.
                auto *category = new RibbonCategoryAction(QStringLiteral("Group"), &owner);
                for (RibbonAction *member : below) {
                    if (auto *inner = qobject_cast<RibbonCategoryAction *>(member)) {
                        auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Tab"), &owner);
                        tab->addCategory(inner);
                        category->addAction(tab, 0);
                    } else {
                        category->addAction(member, 0);
                    }
                }
                made = category;
            } else {
                RibbonCatMenuAction *menu = menuAction(&owner);
                for (RibbonAction *member : below)
                    menu->addAction(member, false);
                if (container == QLatin1String("alias"))
                    menu->setAliasAction(QPointer<QAction>(&alias));
                made = menu;
            }
            here << made;
        }
        below = here;
        top = here.first();
    }
    QSignalSpy topChanged(top, &QAction::changed);
    QSignalSpy aliasChanged(&alias, &QAction::changed);
    go->setText(QStringLiteral("Went"));
    QVERIFY(topChanged.count() >= 1);
    QVERIFY2(topChanged.count() <= 8, qPrintable(QString::number(topChanged.count())));
    QVERIFY2(aliasChanged.count() <= 8, qPrintable(QString::number(aliasChanged.count())));
    // A second change is announced again.
    topChanged.clear();
    go->setText(QStringLiteral("Go"));
    QVERIFY(topChanged.count() >= 1);
}

void tst_Containment::replacedAliasLeavesContainerLinks()
{
    // A command whose alias was its own button group: replacing the alias cuts only the
    // alias's connections, and the group still follows the command and forgets it.
    auto *group = new RibbonCatActionGroup(QStringLiteral("Strip"), nullptr);
    auto *item = new RibbonCatSimpleAction(QPointer<QAction>(group), RibbonCatSimpleAction::SizeSmall, nullptr);
    group->addAction(item, false);
    QAction other(QStringLiteral("Other"), nullptr);
    item->setAliasAction(QPointer<QAction>(&other));
    QSignalSpy changed(group, &QAction::changed);
    item->setCheckable(true);
    QVERIFY(changed.count() > 0);
    delete item;
    QVERIFY(group->actions().isEmpty());
    delete group;
}

void tst_Containment::changeRelayedThroughAliasSettles()
{
    // An outer group standing for (aliased to) a command of an inner group it then holds:
    // the outer group's change goes to the command's alias announcement, the inner group
    // relays it back to the outer one, which has announced it already.
    QObject owner;
    RibbonCatSimpleAction *go = command(&owner);
    auto *inner = new RibbonCatActionGroup(QStringLiteral("Inner"), &owner);
    auto *outer = new RibbonCatActionGroup(QStringLiteral("Outer"), &owner);
    inner->addAction(go, false);
    outer->setAliasAction(QPointer<QAction>(go));
    QSignalSpy outerChanged(outer, &QAction::changed);
    outer->addAction(inner, false);
    QCOMPARE(outer->actions().size(), 1);
    QVERIFY(outerChanged.count() >= 1);
    outerChanged.clear();
    go->setText(QStringLiteral("Went"));
    QVERIFY(outerChanged.count() >= 1);
    QCOMPARE(outer->text(), QStringLiteral("Went")); // the alias's text still follows
}

void tst_Containment::anyOrderOfDestruction()
{
    // Five objects that hold one another, shown in a window with the menu's popup open,
    // destroyed in each of the 120 orders.
    enum { Tab, Category, Group, Menu, Item, Count };
    int order[Count] = {Tab, Category, Group, Menu, Item};
    int orders = 0;
    do {
        RibbonMainWindow window;
        QPointer<QObject> objects[Count];
        auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), nullptr);
        auto *category = new RibbonCategoryAction(QStringLiteral("Group"), nullptr);
        auto *group = new RibbonCatActionGroup(QStringLiteral("Strip"), nullptr);
        RibbonCatMenuAction *menu = menuAction(nullptr);
        RibbonCatSimpleAction *item = command(nullptr);
        objects[Tab] = tab;
        objects[Category] = category;
        objects[Group] = group;
        objects[Menu] = menu;
        objects[Item] = item;
        menu->addAction(item, true);
        menu->addBottomAction(item);
        group->addAction(item, false);
        group->addAction(menu, false);
        category->addAction(item, 0);
        category->addAction(group, 1);
        category->addAction(menu, 2);
        tab->addCategory(category);
        window.ribbonMenuBar().addAction(tab);
        window.quickAccessBar().addAction(item);
        window.ribbonStatusBar().addAction(menu);
        window.resize(800, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto *button = qobject_cast<RibbonCatMenuButton *>(window.ribbonStatusBar().widgetForAction(menu));
        QVERIFY(button);
        pressArrow(button);
        QTRY_VERIFY(QApplication::activePopupWidget());

        for (int which : order) {
            delete objects[which].data();
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QCOMPARE(window.findChildren<RibbonMenuBarButton *>().size(), 0);
        ++orders;
    } while (std::next_permutation(order, order + Count));
    QCOMPARE(orders, 120);
}

ZEL_TEST_MAIN(tst_Containment)
#include "tst_containment.moc"
