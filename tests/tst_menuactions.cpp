// Simple, string and menu actions: default and checked items,
// enabling, filling menus and view popups, and lifetimes of items.

#include "ZelTest.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonMenuAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"
#include "RibbonViewButton.h"
#include "RibbonViewPopup.h"

#include <QMenu>
#include <QPointer>

using namespace zel;

namespace {

// The text is set after construction, so the action registry is left alone.
template <class T>
T *named(T *action, const QString &text, bool checkable = false)
{
    action->setText(text);
    action->setCheckable(checkable);
    return action;
}

RibbonSimpleAction *item(QObject *owner, const QString &text, bool checkable = false)
{
    return named(new RibbonSimpleAction(owner), text, checkable);
}

QStringList entryTexts(const QMenu &menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu.actions();
    for (QAction *action : actions)
        texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
    return texts;
}

using Items = QList<RibbonAction *>;
using ItemTriggered = void (RibbonMenuAction::*)(RibbonAction *);
const ItemTriggered itemTriggered = &RibbonMenuAction::triggered;

} // namespace

class tst_MenuActions : public QObject
{
    Q_OBJECT

private slots:
    void itemsAndDefault();
    void exclusive();
    void checkedActionAndToBeToggled_data();
    void checkedActionAndToBeToggled();
    void enabling();
    void fillMenu();
    void deleteItemsThenMenu();
    void deleteItemInsideOwnTriggeredHandler();
};

void tst_MenuActions::itemsAndDefault()
{
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction a(nullptr), b(nullptr), c(nullptr), d(nullptr), stranger(nullptr);
    b.setToolTip(QStringLiteral("Paste special"));
    menu.addAction(&a, false);
    menu.addAction(&b, false);
    menu.addAction(&c, false);
    QSignalSpy changed(&menu, &QAction::changed);
    QSignalSpy defaultChanged(&menu, &RibbonMenuAction::defaultActionChanged);
    QSignalSpy triggered(&menu, itemTriggered);
    menu.addAction(&a, true); // duplicate: not made the default either
    menu.addAction(nullptr, true);
    menu.removeAction(&stranger);
    menu.removeAction(nullptr);
    menu.insertAction(0, nullptr);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!menu.defaultAction());

    menu.insertAction(0, &c); // moves
    QCOMPARE(menu.menuActions(), (Items{&c, &a, &b}));
    QCOMPARE(changed.count(), 1);
    menu.insertAction(99, &d);
    menu.insertAction(-5, &b);
    QCOMPARE(menu.menuActions(), (Items{&b, &c, &a, &d}));
    d.trigger(); // an inserted item gets no item connections
    QCOMPARE(triggered.count(), 0);

    {
        RibbonMenuAction mirror(QPointer<QAction>(&menu), nullptr);
        menu.setDefaultAction(&b);
        QCOMPARE(mirror.defaultAction(), &b); // an alias menu follows its host's default
    }
    menu.setDefaultAction(&b); // same value
    QCOMPARE(defaultChanged.count(), 1);
    QCOMPARE(menu.toolTip(), QStringLiteral("Paste special"));
    menu.setDefaultAction(nullptr);
    QCOMPARE(defaultChanged.count(), 2);
    QVERIFY(menu.toolTip().isEmpty());

    // Removing the default item clears it silently and disconnects the item.
    menu.setDefaultAction(&a);
    defaultChanged.clear();
    changed.clear();
    menu.removeAction(&a);
    QVERIFY(!menu.defaultAction());
    QCOMPARE(defaultChanged.count(), 0);
    QCOMPARE(changed.count(), 1);
    a.trigger();
    QCOMPARE(triggered.count(), 0);
}

void tst_MenuActions::exclusive()
{
    // The category menu has a slot named like the item slot; its items must still
    // reach the item rules.
    QObject owner;
    RibbonMenuAction plain(nullptr);
    RibbonCatMenuAction cat;
    for (RibbonMenuAction *menu : {&plain, static_cast<RibbonMenuAction *>(&cat)}) {
        RibbonSimpleAction *a = item(&owner, QStringLiteral("A"), true);
        RibbonSimpleAction *b = item(&owner, QStringLiteral("B"), true);
        RibbonSimpleAction *c = item(&owner, QStringLiteral("C"), true);
        for (RibbonSimpleAction *member : {a, b, c})
            menu->addAction(member, false);
        menu->setExclusive(true);

        a->setChecked(true);
        b->setChecked(true);
        QVERIFY(!a->isChecked());
        QCOMPARE(menu->checkedAction(), b);
        c->setText(QStringLiteral("C renamed")); // a change of an unchecked item
        QCOMPARE(menu->checkedAction(), b);

        menu->removeAction(b);
        QVERIFY(!menu->checkedAction());
        a->setChecked(true);
        QVERIFY(b->isChecked()); // no longer an item
        a->setChecked(false);
        QVERIFY(!menu->checkedAction());

        c->setChecked(true);
        menu->setExclusive(false);
        QVERIFY(!menu->checkedAction());
        a->setChecked(true);
        QVERIFY(c->isChecked());
    }
}

void tst_MenuActions::checkedActionAndToBeToggled_data()
{
    // defaultItem: 0 none, 1 not checkable, 2 checkable and unchecked, 3 checked.
    QTest::addColumn<bool>("indicator");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<int>("defaultItem");
    QTest::addColumn<bool>("itemChecked");
    QTest::addColumn<bool>("toggled");

    QTest::newRow("nothing") << true << false << 0 << false << false;
    QTest::newRow("item checked, no flag") << true << false << 0 << true << false;
    QTest::newRow("flag, item checked") << true << true << 0 << true << true;
    QTest::newRow("flag, nothing checked") << true << true << 0 << false << false;
    QTest::newRow("default checked") << true << false << 3 << false << true;
    QTest::newRow("default unchecked") << true << false << 2 << true << false;
    QTest::newRow("default not checkable") << true << false << 1 << false << false;
    QTest::newRow("no indicator, flag") << false << true << 0 << true << false;
}

void tst_MenuActions::checkedActionAndToBeToggled()
{
    QFETCH(bool, indicator);
    QFETCH(bool, flag);
    QFETCH(int, defaultItem);
    QFETCH(bool, itemChecked);
    QFETCH(bool, toggled);

    QObject owner;
    RibbonMenuAction menu(nullptr);
    RibbonSimpleAction *items[3];
    for (RibbonSimpleAction *&member : items)
        menu.addAction(member = item(&owner, QStringLiteral("item"), true), false);
    if (defaultItem) {
        RibbonSimpleAction *member = item(&owner, QStringLiteral("default"), defaultItem > 1);
        member->setChecked(defaultItem == 3);
        menu.addAction(member, true);
    }
    if (itemChecked) {
        items[2]->setChecked(true);
        items[1]->setChecked(true); // the first in menu order wins, not the last checked
    }
    menu.setShowToggledIndicator(indicator);
    menu.setToBeToggled(flag);

    QCOMPARE(menu.toBeToggled(), toggled);
    // Only the flag makes a checked item the menu's checked one; the default never is.
    QCOMPARE(static_cast<const RibbonMenuAction &>(menu).checkedAction(),
             flag && itemChecked ? items[1] : nullptr);
}

void tst_MenuActions::enabling()
{
    for (bool autoChange : {true, false}) {
        RibbonMenuAction menu(nullptr);
        RibbonSimpleAction a(nullptr), b(nullptr);
        menu.addAction(&a, false);
        menu.addAction(&b, false);
        b.setEnabled(false);
        menu.autoChangeEnableSubActions(autoChange);
        menu.setEnabled(false);
        QCOMPARE(a.isEnabled(), !autoChange);
        menu.setEnabled(true);
        QCOMPARE(b.isEnabled(), autoChange);
        // The menu's own announcements (item changes) do not push the state.
        menu.setEnabled(false);
        a.setEnabled(true);
        QVERIFY(a.isEnabled());
    }

    // A category menu pushes the state to its popup commands, tiles included.
    RibbonCatMenuAction menu;
    QActionGroup *own = menu.iconActionGroup();
    RibbonSimpleAction top(nullptr), bottom(nullptr), tile(nullptr);
    menu.addTopAction(&top);
    menu.addTopAction(&top);
    menu.addTopAction(nullptr);
    menu.addBottomAction(&bottom);
    QCOMPARE(menu.topActions(), QList<RibbonSimpleAction *>{&top});
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

void tst_MenuActions::fillMenu()
{
    QObject owner;
    auto *menu = new RibbonCatMenuAction;
    auto *sub = named(new RibbonMenuAction(&owner), QStringLiteral("More"));
    auto *deeper = named(new RibbonMenuAction(&owner), QStringLiteral("Deeper"));
    deeper->addAction(named(new RibbonCatSimpleAction(RibbonCatSimpleAction::SizeSmall, &owner),
                            QStringLiteral("Deep")), false);
    sub->addAction(item(&owner, QStringLiteral("Copy format")), false);
    sub->addAction(new RibbonStringAction(&owner), false);
    sub->addAction(deeper, false);
    RibbonSimpleAction *copy = item(&owner, QStringLiteral("Copy"));
    menu->addAction(copy, false);
    menu->addAction(named(new RibbonStringAction(&owner), QStringLiteral("Hidden string")), false);
    menu->addAction(sub, false);
    deeper->addAction(menu, false); // a cycle back to the top is refused
    QCOMPARE(deeper->menuActions().size(), 1);

    QMenu qmenu;
    menu->fillMenu(qmenu);
    QCOMPARE(entryTexts(qmenu), (QStringList{"Copy", "More"}));
    QCOMPARE(qmenu.actions().at(0), copy); // shared, not copied
    QMenu *subMenu = qmenu.actions().at(1)->menu();
    QVERIFY(subMenu);
    QCOMPARE(entryTexts(*subMenu), (QStringList{"Copy format", "Deeper"}));
    QMenu *deepMenu = subMenu->actions().at(1)->menu();
    QVERIFY(deepMenu);
    QCOMPARE(entryTexts(*deepMenu).first(), QStringLiteral("Deep"));

    QMenu direct;
    menu->fillMenu(direct, QPointer<RibbonMenuAction>(sub));
    QCOMPARE(entryTexts(direct), QStringList{"More"});
    menu->fillMenu(direct, QPointer<RibbonMenuAction>());
    QCOMPARE(direct.actions().size(), 1);

    // The view popup: top commands, enabled tiles, bottom commands. A menu can only have
    // a widget parent, so the popup is top-level and dies with the action instead.
    RibbonSimpleAction *disabled = item(&owner, QStringLiteral("Off"));
    disabled->setEnabled(false);
    menu->addTopAction(item(&owner, QStringLiteral("Top")));
    menu->addBottomAction(item(&owner, QStringLiteral("Bottom")));
    for (RibbonSimpleAction *tile : {item(&owner, QStringLiteral("Tile A")), disabled,
                                     item(&owner, QStringLiteral("Tile B"))})
        menu->iconActionGroup()->addAction(tile);
    QPointer<RibbonViewPopup> popup = menu->fillMenu();
    QVERIFY(popup && !popup->parent());
    QVERIFY(popup->windowFlags() & Qt::Popup);
    QStringList entries;
    for (const RibbonViewButton *entry : popup->buttons())
        entries << entry->text();
    QCOMPARE(entries, (QStringList{"Top", "Tile A", "Tile B", "Bottom"}));
    popup->popup(QPoint(40, 40));
    QTRY_VERIFY(popup->isVisible());
    delete menu;
    QTRY_VERIFY(popup.isNull());
}

void tst_MenuActions::deleteItemsThenMenu()
{
    auto *menu = new RibbonCatMenuAction;
    menu->setExclusive(true);
    menu->autoChangeEnableSubActions(true);
    RibbonSimpleAction *gone = item(nullptr, QStringLiteral("Gone"), true);
    RibbonSimpleAction keep(nullptr), top(nullptr);
    keep.setCheckable(true);
    menu->addAction(gone, true);
    menu->addAction(&keep, false);
    menu->addTopAction(gone);
    menu->addTopAction(&top);
    menu->addBottomAction(gone);
    gone->setChecked(true);
    QCOMPARE(menu->checkedAction(), gone);
    QSignalSpy defaultChanged(menu, &RibbonMenuAction::defaultActionChanged);

    delete gone;
    QCOMPARE(menu->menuActions(), Items{&keep});
    QVERIFY(!menu->defaultAction() && !menu->checkedAction());
    QCOMPARE(menu->topActions(), QList<RibbonSimpleAction *>{&top});
    QVERIFY(menu->bottomActions().isEmpty());
    QCOMPARE(defaultChanged.count(), 0);
    menu->setEnabled(false); // pushes to the remaining items and popup commands only
    QVERIFY(!menu->toBeToggled());

    // An inserted item and a default that is not an item are cleaned up as well.
    auto *inserted = new RibbonSimpleAction(nullptr);
    auto *loneDefault = new RibbonSimpleAction(nullptr);
    menu->insertAction(0, inserted);
    menu->setDefaultAction(loneDefault);
    delete inserted;
    delete loneDefault;
    QCOMPARE(menu->menuActions(), Items{&keep});
    QVERIFY(!menu->defaultAction());

    // The menu goes before its surviving items and leaves the menu that held it.
    RibbonMenuAction outer(nullptr);
    outer.addAction(menu, false);
    delete menu;
    QVERIFY(outer.menuActions().isEmpty());
    keep.setChecked(true);
    keep.setEnabled(true);
    keep.trigger();
    top.setEnabled(true);
    QVERIFY(keep.isEnabled() && top.isEnabled());
}

void tst_MenuActions::deleteItemInsideOwnTriggeredHandler()
{
    RibbonMenuAction menu(nullptr);
    QPointer<RibbonSimpleAction> member = new RibbonSimpleAction(nullptr);
    menu.addAction(member, true);
    connect(member.data(), &QAction::triggered, this, [&member] { delete member.data(); });
    QSignalSpy triggered(&menu, itemTriggered);
    QSignalSpy activated(&menu, &RibbonAction::ribbonActionActivated);

    member->trigger();
    QVERIFY(member.isNull());
    QVERIFY(menu.menuActions().isEmpty());
    QVERIFY(!menu.defaultAction());
    QCOMPARE(activated.count(), 1);
    QCOMPARE(triggered.count(), 1);
}

ZEL_TEST_MAIN(tst_MenuActions)
#include "tst_menuactions.moc"
