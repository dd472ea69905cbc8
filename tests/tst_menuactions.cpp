// Simple, string and menu actions: activation relay, default and checked items,
// enabling, filling menus and view popups, and lifetimes of items.

#include "ZelTest.h"

#include "RibbonActionsContainer.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonMenuAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"
#include "RibbonTextAction.h"
#include "RibbonViewPopup.h"

#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QToolBar>
#include <QWidget>

using namespace zel;

namespace {

RibbonSimpleAction *checkableItem(const QString &text, QObject *parent)
{
    auto *item = new RibbonSimpleAction(parent);
    item->setText(text);
    item->setCheckable(true);
    return item;
}

template <class T>
T *named(T *action, const QString &text)
{
    action->setText(text);
    return action;
}

QStringList entryTexts(const QMenu &menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions)
        texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
    return texts;
}

} // namespace

class tst_MenuActions : public QObject
{
    Q_OBJECT

private slots:
    void simpleActionsRelayActivation_data();
    void simpleActionsRelayActivation();
    void catSimpleActionMakesButtonOnlyInToolBar();
    void menuItemsIgnoreNullAndDuplicates();
    void defaultAction();
    void exclusive_data();
    void exclusive();
    void checkedActionAndToBeToggled_data();
    void checkedActionAndToBeToggled();
    void autoChangeEnableSubActions_data();
    void autoChangeEnableSubActions();
    void itemTriggerAndActivation();
    void insertAction();
    void catMenuGroupsAndLists();
    void aliases();
    void fillMenuSkipsStringsAndRecurses();
    void fillMenuSurvivesCycles();
    void viewPopup();
    void viewPopupDiesWithItsAction();
    void deleteItemInsideMenu();
    void deleteItemInsideOwnTriggeredHandler();
    void deleteMenuBeforeItems();
};

void tst_MenuActions::simpleActionsRelayActivation_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("expected");
    QTest::newRow("RibbonSimpleAction") << 0 << 1;
    QTest::newRow("RibbonCatSimpleAction (relay made twice)") << 1 << 1;
    QTest::newRow("RibbonTextAction") << 2 << 1;
    QTest::newRow("RibbonStringAction") << 3 << 0;
    QTest::newRow("RibbonMenuAction") << 4 << 0;
}

void tst_MenuActions::simpleActionsRelayActivation()
{
    QFETCH(int, kind);
    QFETCH(int, expected);
    QScopedPointer<RibbonAction> action;
    switch (kind) {
    case 0: action.reset(new RibbonSimpleAction(nullptr)); break;
    case 1: action.reset(new RibbonCatSimpleAction(RibbonCatSimpleAction::SizeMedium, nullptr)); break;
    case 2: action.reset(new RibbonTextAction(nullptr)); break;
    case 3: action.reset(new RibbonStringAction(nullptr)); break;
    case 4: action.reset(new RibbonMenuAction(nullptr)); break;
    }
    QSignalSpy activated(action.data(), &RibbonAction::ribbonActionActivated);
    action->trigger();
    QCOMPARE(activated.count(), expected);
}


void tst_MenuActions::catSimpleActionMakesButtonOnlyInToolBar()
{
    RibbonCatSimpleAction action(QStringLiteral("toolbar command"), RibbonCatSimpleAction::SizeSmall, nullptr);
    QWidget plain;
    plain.addAction(&action);
    QVERIFY(!action.requestWidget(&plain));

    QToolBar bar;
    bar.addAction(&action);
    QWidget *widget = bar.widgetForAction(&action);
    QVERIFY(qobject_cast<RibbonCatSimpleButton *>(widget));
    QSignalSpy triggered(&action, SIGNAL(triggered()));
    QTest::mouseClick(widget, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);

    QPointer<QWidget> guard(widget);
    bar.removeAction(&action);
    QVERIFY(guard.isNull() || !guard->isVisible());
}

void tst_MenuActions::menuItemsIgnoreNullAndDuplicates()
{
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr), stranger(nullptr);
    menu.addAction(&a, false);
    menu.addAction(&b, false);
    QSignalSpy changed(&menu, &QAction::changed);
    menu.addAction(&a, true);
    menu.addAction(nullptr, true);
    menu.removeAction(&stranger);
    menu.removeAction(nullptr);
    menu.insertAction(0, nullptr);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(menu.menuActions(), (QList<RibbonAction *>{&a, &b}));
    QVERIFY(!menu.defaultAction()); // the duplicate did not make a the default
}

void tst_MenuActions::defaultAction()
{
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr);
    a.setToolTip(QStringLiteral("Paste"));
    b.setToolTip(QStringLiteral("Paste special"));
    QSignalSpy defaultChanged(&menu, &RibbonMenuAction::defaultActionChanged);

    menu.addAction(&a, true);
    QCOMPARE(menu.defaultAction(), &a);
    QCOMPARE(defaultChanged.count(), 0);
    QVERIFY(menu.toolTip().isEmpty());

    menu.setDefaultAction(&a); // already the default
    QCOMPARE(defaultChanged.count(), 0);

    menu.addAction(&b, false);
    menu.setDefaultAction(&b);
    QCOMPARE(defaultChanged.count(), 1);
    QCOMPARE(menu.toolTip(), QStringLiteral("Paste special"));

    menu.setDefaultAction(nullptr);
    QCOMPARE(defaultChanged.count(), 2);
    QVERIFY(!static_cast<const RibbonMenuAction &>(menu).defaultAction());
    QVERIFY(menu.toolTip().isEmpty());

    // Removing the default item clears it silently and disconnects the item.
    menu.setDefaultAction(&a);
    defaultChanged.clear();
    QSignalSpy changed(&menu, &QAction::changed);
    QSignalSpy triggered(&menu, qOverload<RibbonAction *>(&RibbonMenuAction::triggered));
    menu.removeAction(&a);
    QVERIFY(!menu.defaultAction());
    QCOMPARE(defaultChanged.count(), 0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(menu.menuActions(), QList<RibbonAction *>{&b});
    a.trigger();
    QCOMPARE(triggered.count(), 0);
}

void tst_MenuActions::exclusive_data()
{
    // The category menu has a slot of the same name as the item slot; its items must
    // still reach the item rules.
    QTest::addColumn<bool>("catMenu");
    QTest::newRow("RibbonMenuAction") << false;
    QTest::newRow("RibbonCatMenuAction") << true;
}

void tst_MenuActions::exclusive()
{
    QFETCH(bool, catMenu);
    QObject owner;
    QScopedPointer<RibbonMenuAction> menu(catMenu
        ? new RibbonCatMenuAction(RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeSmall,
                                  RibbonCatMenuAction::PopupMenu, nullptr)
        : new RibbonMenuAction(nullptr));
    RibbonSimpleAction *a = checkableItem(QStringLiteral("A"), &owner);
    RibbonSimpleAction *b = checkableItem(QStringLiteral("B"), &owner);
    RibbonSimpleAction *c = checkableItem(QStringLiteral("C"), &owner);
    menu->addAction(a, false);
    menu->addAction(b, false);
    menu->addAction(c, false);
    menu->setExclusive(true);

    a->setChecked(true);
    QCOMPARE(menu->checkedAction(), a);
    b->setChecked(true);
    QVERIFY(!a->isChecked());
    QCOMPARE(menu->checkedAction(), b);

    // Another change of an unchecked item leaves the checked one alone.
    c->setText(QStringLiteral("C renamed"));
    QVERIFY(b->isChecked());
    QCOMPARE(menu->checkedAction(), b);

    menu->removeAction(b);
    QVERIFY(!menu->checkedAction());
    a->setChecked(true);
    QVERIFY(b->isChecked()); // b is no longer an item
    a->setChecked(false);
    QVERIFY(!menu->checkedAction());

    c->setChecked(true);
    menu->setExclusive(false);
    QVERIFY(!menu->checkedAction());
    QVERIFY(c->isChecked());
    a->setChecked(true);
    QVERIFY(c->isChecked()); // no longer exclusive
}

void tst_MenuActions::checkedActionAndToBeToggled_data()
{
    QTest::addColumn<bool>("showIndicator");
    QTest::addColumn<bool>("toBeToggledFlag");
    QTest::addColumn<bool>("withDefault");
    QTest::addColumn<bool>("defaultCheckable");
    QTest::addColumn<bool>("defaultChecked");
    QTest::addColumn<bool>("itemChecked");
    QTest::addColumn<bool>("expectedToggled");
    QTest::addColumn<QString>("expectedChecked");

    QTest::newRow("nothing") << true << false << false << false << false << false << false << "";
    QTest::newRow("item checked, no flag, no default") << true << false << false << false << false << true << false << "";
    QTest::newRow("flag, item checked") << true << true << false << false << false << true << true << "second";
    QTest::newRow("flag, nothing checked") << true << true << false << false << false << false << false << "";
    QTest::newRow("default checked") << true << false << true << true << true << false << true << "";
    QTest::newRow("default checkable, unchecked") << true << false << true << true << false << true << false << "";
    QTest::newRow("default not checkable") << true << false << true << false << false << false << false << "";
    QTest::newRow("indicator off, flag, item checked") << false << true << false << false << false << true << false << "second";
    QTest::newRow("indicator off, default checked") << false << false << true << true << true << false << false << "";
}

void tst_MenuActions::checkedActionAndToBeToggled()
{
    QFETCH(bool, showIndicator);
    QFETCH(bool, toBeToggledFlag);
    QFETCH(bool, withDefault);
    QFETCH(bool, defaultCheckable);
    QFETCH(bool, defaultChecked);
    QFETCH(bool, itemChecked);
    QFETCH(bool, expectedToggled);
    QFETCH(QString, expectedChecked);

    QObject owner;
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction *first = checkableItem(QStringLiteral("first"), &owner);
    RibbonSimpleAction *second = checkableItem(QStringLiteral("second"), &owner);
    RibbonSimpleAction *third = checkableItem(QStringLiteral("third"), &owner);
    auto *defaultItem = new RibbonSimpleAction(&owner);
    defaultItem->setText(QStringLiteral("default"));
    defaultItem->setCheckable(defaultCheckable);
    defaultItem->setChecked(defaultChecked);
    menu.addAction(first, false);
    menu.addAction(second, false);
    menu.addAction(third, false);
    if (withDefault)
        menu.addAction(defaultItem, true);
    if (itemChecked) {
        third->setChecked(true);
        second->setChecked(true); // the first in menu order wins, not the last checked
    }
    menu.setShowToggledIndicator(showIndicator);
    menu.setToBeToggled(toBeToggledFlag);

    QCOMPARE(menu.toBeToggled(), expectedToggled);
    RibbonAction *checked = static_cast<const RibbonMenuAction &>(menu).checkedAction();
    QCOMPARE(checked ? checked->text() : QString(), expectedChecked);
}

void tst_MenuActions::autoChangeEnableSubActions_data()
{
    QTest::addColumn<bool>("autoChange");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void tst_MenuActions::autoChangeEnableSubActions()
{
    QFETCH(bool, autoChange);
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr);
    menu.addAction(&a, false);
    menu.addAction(&b, false);
    b.setEnabled(false);
    menu.autoChangeEnableSubActions(autoChange);

    menu.setEnabled(false);
    QCOMPARE(a.isEnabled(), !autoChange);
    QVERIFY(!b.isEnabled());
    menu.setEnabled(true);
    QVERIFY(a.isEnabled());
    QCOMPARE(b.isEnabled(), autoChange);

    // The menu's own announcements (item changes) do not push the state.
    menu.setEnabled(false);
    a.setEnabled(true);
    QVERIFY(a.isEnabled());
}

void tst_MenuActions::itemTriggerAndActivation()
{
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction simple(nullptr);
    RibbonStringAction text(nullptr);
    menu.addAction(&simple, false);
    menu.addAction(&text, false);
    QSignalSpy triggered(&menu, qOverload<RibbonAction *>(&RibbonMenuAction::triggered));
    QSignalSpy activated(&menu, &RibbonAction::ribbonActionActivated);

    simple.trigger();
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(triggered.at(0).at(0).value<RibbonAction *>(), &simple);
    QCOMPARE(activated.count(), 1);

    text.trigger();
    QCOMPARE(triggered.count(), 2);
    QCOMPARE(activated.count(), 1); // a string action announces no activation
}

void tst_MenuActions::insertAction()
{
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr), c(nullptr), d(nullptr);
    menu.addAction(&a, false);
    menu.addAction(&b, false);
    menu.addAction(&c, false);
    QSignalSpy changed(&menu, &QAction::changed);

    menu.insertAction(0, &c); // moves
    QCOMPARE(menu.menuActions(), (QList<RibbonAction *>{&c, &a, &b}));
    QCOMPARE(changed.count(), 1);
    menu.insertAction(99, &d); // out of range: appended
    menu.insertAction(-5, &b); // out of range: prepended
    QCOMPARE(menu.menuActions(), (QList<RibbonAction *>{&b, &c, &a, &d}));

    // An inserted item gets no item connections.
    QSignalSpy triggered(&menu, qOverload<RibbonAction *>(&RibbonMenuAction::triggered));
    d.trigger();
    QCOMPARE(triggered.count(), 0);
}

void tst_MenuActions::catMenuGroupsAndLists()
{
    RibbonCatMenuAction menu;
    QActionGroup *own = menu.iconActionGroup();
    QVERIFY(own);
    QCOMPARE(own->parent(), &menu);

    RibbonSimpleAction top(nullptr), bottom(nullptr), tile(nullptr);
    menu.addTopAction(&top);
    menu.addTopAction(&top);
    menu.addTopAction(nullptr);
    menu.addBottomAction(&bottom);
    QCOMPARE(menu.topActions(), QList<RibbonSimpleAction *>{&top});
    QCOMPARE(menu.bottomActions(), QList<RibbonSimpleAction *>{&bottom});

    // Enabling is pushed to the popup commands, tiles included.
    own->addAction(&tile);
    menu.setEnabled(false);
    QVERIFY(!top.isEnabled() && !bottom.isEnabled() && !tile.isEnabled());
    menu.setEnabled(true);
    QVERIFY(top.isEnabled() && bottom.isEnabled() && tile.isEnabled());

    // A replaced group: the own one stays a child; a destroyed host group reads null.
    QPointer<QActionGroup> other = new QActionGroup(nullptr);
    menu.addIconActionGroup(other);
    QCOMPARE(menu.iconActionGroup(), other.data());
    QCOMPARE(own->parent(), &menu);
    delete other.data();
    QVERIFY(!menu.iconActionGroup());
    menu.setEnabled(false); // no dangling group is touched
}

void tst_MenuActions::aliases()
{
    RibbonAction source(nullptr);
    source.setText(QStringLiteral("Zoom"));
    RibbonTextAction text(QPointer<RibbonAction>(&source), nullptr);
    QCOMPARE(text.text(), QStringLiteral("Zoom"));
    RibbonSimpleAction simple(QPointer<RibbonAction>(&source), nullptr);
    QVERIFY(simple.text().isEmpty()); // a simple action waits for the next change

    RibbonMenuAction host(nullptr);
    RibbonSimpleAction item(nullptr);
    host.addAction(&item, false);
    RibbonMenuAction mirror(QPointer<QAction>(&host), nullptr);
    host.setDefaultAction(&item);
    QCOMPARE(mirror.defaultAction(), &item);
}

void tst_MenuActions::fillMenuSkipsStringsAndRecurses()
{
    QObject owner;
    RibbonCatMenuAction menu;
    auto *simple = named(new RibbonSimpleAction(&owner), QStringLiteral("Copy"));
    auto *sub = named(new RibbonMenuAction(&owner), QStringLiteral("More"));
    auto *deeper = named(new RibbonMenuAction(&owner), QStringLiteral("Deeper"));
    deeper->addAction(named(new RibbonCatSimpleAction(RibbonCatSimpleAction::SizeSmall, &owner),
                            QStringLiteral("Deep")), false);
    sub->addAction(named(new RibbonSimpleAction(&owner), QStringLiteral("Copy format")), false);
    sub->addAction(new RibbonStringAction(&owner), false);
    sub->addAction(deeper, false);
    menu.addAction(simple, false);
    menu.addAction(named(new RibbonStringAction(&owner), QStringLiteral("Hidden string")), false);
    menu.addAction(sub, false);

    QMenu qmenu;
    menu.fillMenu(qmenu);
    QCOMPARE(entryTexts(qmenu), (QStringList{QStringLiteral("Copy"), QStringLiteral("More")}));
    QCOMPARE(qmenu.actions().at(0), simple); // shared, not copied
    QMenu *subMenu = qmenu.actions().at(1)->menu();
    QVERIFY(subMenu);
    QCOMPARE(entryTexts(*subMenu), (QStringList{QStringLiteral("Copy format"), QStringLiteral("Deeper")}));
    QMenu *deepMenu = subMenu->actions().at(1)->menu();
    QVERIFY(deepMenu);
    QCOMPARE(entryTexts(*deepMenu), QStringList{QStringLiteral("Deep")});

    QMenu direct;
    menu.fillMenu(direct, QPointer<RibbonMenuAction>(sub));
    QCOMPARE(entryTexts(direct), QStringList{QStringLiteral("More")});
    menu.fillMenu(direct, QPointer<RibbonMenuAction>());
    QCOMPARE(direct.actions().size(), 1);
}

void tst_MenuActions::fillMenuSurvivesCycles()
{
    RibbonCatMenuAction menu;
    RibbonMenuAction sub(nullptr);
    sub.setText(QStringLiteral("Loop"));
    menu.addAction(&sub, false);
    sub.addAction(&menu, false); // contains its own parent
    QMenu qmenu;
    menu.fillMenu(qmenu);
    QCOMPARE(entryTexts(qmenu), QStringList{QStringLiteral("Loop")});
    QVERIFY(qmenu.actions().at(0)->menu()->actions().isEmpty());
}

void tst_MenuActions::viewPopup()
{
    RibbonCatMenuAction menu;
    QObject owner;
    RibbonSimpleAction *disabled = named(new RibbonSimpleAction(&owner), QStringLiteral("Off"));
    disabled->setEnabled(false);
    menu.addTopAction(named(new RibbonSimpleAction(&owner), QStringLiteral("Top")));
    menu.addBottomAction(named(new RibbonSimpleAction(&owner), QStringLiteral("Bottom")));
    menu.iconActionGroup()->addAction(named(new RibbonSimpleAction(&owner), QStringLiteral("Tile A")));
    menu.iconActionGroup()->addAction(disabled);
    menu.iconActionGroup()->addAction(named(new RibbonSimpleAction(&owner), QStringLiteral("Tile B")));

    QScopedPointer<RibbonViewPopup> popup(menu.fillMenu());
    QVERIFY(popup);
    // A menu can only have a widget parent: the popup is top-level and dies with the
    // action instead (see viewPopupDiesWithItsAction).
    QVERIFY(!popup->parent());
    QVERIFY(popup->windowFlags() & Qt::Popup);
    QCOMPARE(entryTexts(*popup), (QStringList{QStringLiteral("Top"), QStringLiteral("|"),
                                              QStringLiteral("Tile A"), QStringLiteral("Tile B"),
                                              QStringLiteral("|"), QStringLiteral("Bottom")}));
    popup->popup(QPoint(40, 40));
    QTRY_VERIFY(popup->isVisible());
    popup->close();
}

void tst_MenuActions::viewPopupDiesWithItsAction()
{
    auto *menu = new RibbonCatMenuAction;
    RibbonSimpleAction top(nullptr);
    menu->addTopAction(&top);
    QPointer<RibbonViewPopup> popup = menu->fillMenu();
    delete menu;
    QVERIFY(popup.isNull());

    // With a widget as parent, the popup is a child window of that widget.
    QWidget window;
    QPointer<RibbonViewPopup> child = new RibbonViewPopup({&top}, {}, nullptr, &window);
    QCOMPARE(child->parentWidget(), &window);
    QVERIFY(child->windowFlags() & Qt::Popup);
    QCOMPARE(entryTexts(*child), QStringList{top.text()});
}

void tst_MenuActions::deleteItemInsideMenu()
{
    RibbonCatMenuAction menu;
    menu.setExclusive(true);
    RibbonSimpleAction *item = checkableItem(QStringLiteral("Gone"), nullptr);
    RibbonSimpleAction keep(nullptr);
    menu.addAction(item, true);
    menu.addAction(&keep, false);
    menu.addTopAction(item);
    menu.addBottomAction(item);
    item->setChecked(true);
    QCOMPARE(menu.checkedAction(), item);
    QSignalSpy defaultChanged(&menu, &RibbonMenuAction::defaultActionChanged);

    delete item;
    QCOMPARE(menu.menuActions(), QList<RibbonAction *>{&keep});
    QVERIFY(!menu.defaultAction());
    QVERIFY(!menu.checkedAction());
    QVERIFY(menu.topActions().isEmpty());
    QVERIFY(menu.bottomActions().isEmpty());
    QCOMPARE(defaultChanged.count(), 0);
    menu.setEnabled(false); // pushes to the remaining popup commands only
    QVERIFY(!menu.toBeToggled());

    // An inserted item and a default that is not an item are cleaned up as well.
    auto *inserted = new RibbonSimpleAction(nullptr);
    auto *loneDefault = new RibbonSimpleAction(nullptr);
    menu.insertAction(0, inserted);
    menu.setDefaultAction(loneDefault);
    delete inserted;
    delete loneDefault;
    QCOMPARE(menu.menuActions(), QList<RibbonAction *>{&keep});
    QVERIFY(!menu.defaultAction());
}

void tst_MenuActions::deleteItemInsideOwnTriggeredHandler()
{
    RibbonMenuAction menu(nullptr);
    QPointer<RibbonSimpleAction> item = new RibbonSimpleAction(nullptr);
    menu.addAction(item, true);
    connect(item.data(), &QAction::triggered, this, [&item] { delete item.data(); });
    QSignalSpy triggered(&menu, qOverload<RibbonAction *>(&RibbonMenuAction::triggered));
    QSignalSpy activated(&menu, &RibbonAction::ribbonActionActivated);

    item->trigger();
    QVERIFY(item.isNull());
    QVERIFY(menu.menuActions().isEmpty());
    QVERIFY(!menu.defaultAction());
    QCOMPARE(activated.count(), 1);
    QCOMPARE(triggered.count(), 1);
}

void tst_MenuActions::deleteMenuBeforeItems()
{
    auto *menu = new RibbonCatMenuAction;
    RibbonSimpleAction item(nullptr), top(nullptr);
    item.setCheckable(true);
    menu->addAction(&item, true);
    menu->addTopAction(&top);
    menu->setExclusive(true);
    menu->autoChangeEnableSubActions(true);
    auto *outer = new RibbonMenuAction(nullptr);
    outer->addAction(menu, false);

    delete menu;
    QVERIFY(outer->menuActions().isEmpty());
    delete outer;
    item.setChecked(true);
    item.setEnabled(false);
    item.trigger();
    top.setEnabled(false);
    QVERIFY(!item.isEnabled());
}

ZEL_TEST_MAIN(tst_MenuActions)
#include "tst_menuactions.moc"
