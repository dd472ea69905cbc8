// The bookkeeping every container uses for the widgets it makes per action: maker
// tables, lookups both ways, and dropping a widget whichever of action and widget goes
// first. Run under the sanitizers: actions are met in the middle of their destruction.

#include "ZelTest.h"

#include "RibbonActionWidgetMap_p.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStringAction.h"

#include <QActionEvent>
#include <QPointer>

using namespace zel;

namespace {

class PlainButton : public QWidget
{
    Q_OBJECT
public:
    PlainButton(RibbonSimpleAction &, QWidget *parent) : QWidget(parent) {}
};

class CatButton : public QWidget
{
    Q_OBJECT
public:
    CatButton(RibbonCatSimpleAction &, QWidget *parent) : QWidget(parent) {}
};

struct Row
{
    RibbonWidgetMaker make;
    int place;
};

// The subclass first, as every container lists its makers.
const Row rows[] = {
    {makeWidgetFor<RibbonCatSimpleAction, CatButton>, 1},
    {makeWidgetFor<RibbonSimpleAction, PlainButton>, 2},
};

// A container as the library writes them: a widget per action it is given, dropped when
// the action leaves (also when QAction's destructor removes it).
class Container : public QWidget
{
public:
    // Each released widget, with whether it was still whole and parented when released.
    QList<QPair<QWidget *, bool>> released;
    RibbonActionWidgetMap<> map{[this](QWidget *w) { released.append({w, w->parentWidget() == this}); }};
    int drops = 0;

protected:
    void actionEvent(QActionEvent *event) override
    {
        QWidget::actionEvent(event);
        if (event->type() == QEvent::ActionAdded) {
            if (QWidget *widget = makeWidget(rows, event->action(), this).widget)
                map.insert(event->action(), widget);
        } else if (event->type() == QEvent::ActionRemoved) {
            drops += map.drop(event->action());
        }
    }
};

} // namespace

class tst_ActionWidgetMap : public QObject
{
    Q_OBJECT

private slots:
    void makersInOrder_data();
    void makersInOrder();
    void actionDestroyedFirst();
    void actionDestroyedUnseen();
    void widgetDestroyedFirst();
    void insertAgainReplaces();
    void unknownActions();
    void otherObjectsThanWidgets();
};

void tst_ActionWidgetMap::makersInOrder_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("widgetClass");
    QTest::addColumn<int>("place");
    QTest::newRow("subclass: its own maker") << "cat" << "CatButton" << 1;
    QTest::newRow("base class") << "simple" << "PlainButton" << 2;
    QTest::newRow("no maker") << "string" << "" << 0;
    QTest::newRow("null action") << "null" << "" << 0;
}

void tst_ActionWidgetMap::makersInOrder()
{
    QFETCH(QString, kind);
    QFETCH(QString, widgetClass);
    QFETCH(int, place);
    QWidget parent;
    QScopedPointer<QAction> action(kind == QLatin1String("cat") ? new RibbonCatSimpleAction
                                   : kind == QLatin1String("simple") ? static_cast<QAction *>(new RibbonSimpleAction)
                                   : kind == QLatin1String("string") ? new RibbonStringAction
                                                                    : nullptr);
    const auto made = makeWidget(rows, action.data(), &parent);
    QCOMPARE(made.widget ? QString::fromLatin1(made.widget->metaObject()->className()).section(QLatin1Char(':'), -1)
                         : QString(),
             widgetClass);
    QCOMPARE(made.row ? made.row->place : 0, place);
    if (made.widget)
        QCOMPARE(made.widget->parentWidget(), &parent);
}

void tst_ActionWidgetMap::actionDestroyedFirst()
{
    Container container;
    auto *a = new RibbonCatSimpleAction;
    RibbonSimpleAction b;
    container.addAction(a);
    container.addAction(&b);
    QPointer<QWidget> widgetA = container.map.widget(a);
    QWidget *widgetB = container.map.widget(&b);
    QVERIFY(widgetA && widgetB && widgetA != widgetB);
    QCOMPARE(container.map.widgetAs<CatButton>(a), widgetA.data());
    QVERIFY(!container.map.widgetAs<CatButton>(&b));
    QCOMPARE(container.map.action(widgetA), static_cast<QAction *>(a));
    QCOMPARE(container.map.widgets().size(), 2);

    // QAction's destructor removes the action from the container: found by address,
    // released while still in place, deleted.
    delete a;
    QVERIFY(widgetA.isNull());
    QCOMPARE(container.drops, 1);
    QCOMPARE(container.released.size(), 1);
    QCOMPARE(container.released.first().second, true);
    QCOMPARE(container.map.keys(), QList<const QObject *>{&b});
    QCOMPARE(container.map.widgets(), QList<QWidget *>{widgetB});
}

void tst_ActionWidgetMap::actionDestroyedUnseen()
{
    // A container that never hears of the action's end (the action was not added to
    // it): the entry reads as absent, so that a new object at the same address is not
    // taken for it, and dropping the address still deletes the widget.
    QWidget parent;
    RibbonActionWidgetMap<> map;
    auto *action = new RibbonSimpleAction;
    const QObject *address = action;
    QPointer<QWidget> widget = new QWidget(&parent);
    map.insert(action, widget);
    delete action;
    QVERIFY(!map.widget(address));
    QVERIFY(!map.contains(address));
    QVERIFY(!map.action(widget));
    QCOMPARE(map.keys().size(), 1);
    QVERIFY(widget);
    QVERIFY(map.drop(address));
    QVERIFY(widget.isNull());
    QVERIFY(map.keys().isEmpty());
}

void tst_ActionWidgetMap::widgetDestroyedFirst()
{
    Container container;
    RibbonSimpleAction action;
    container.addAction(&action);
    QWidget *widget = container.map.widget(&action);
    QVERIFY(widget);
    delete widget;
    QVERIFY(!container.map.widget(&action));
    QVERIFY(!container.map.contains(&action));
    QVERIFY(!container.map.action(widget)); // a dead address finds nothing
    QVERIFY(container.map.widgets().isEmpty());

    // The entry is still forgotten on removal, and nothing is released twice.
    container.removeAction(&action);
    QCOMPARE(container.drops, 1);
    QVERIFY(container.released.isEmpty());
    QVERIFY(container.map.keys().isEmpty());

    // Added again, the action gets a fresh widget.
    container.addAction(&action);
    QVERIFY(container.map.widget(&action));
}

void tst_ActionWidgetMap::insertAgainReplaces()
{
    Container container;
    RibbonSimpleAction action;
    QPointer<QWidget> first = new QWidget(&container);
    QPointer<QWidget> second = new QWidget(&container);
    container.map.insert(&action, first);
    container.map.insert(&action, second);
    QVERIFY(first.isNull());
    QCOMPARE(container.released.size(), 1);
    QCOMPARE(container.map.widget(&action), second.data());
    QCOMPARE(container.map.action(second), static_cast<QAction *>(&action));
    QCOMPARE(container.map.keys().size(), 1);
    container.map.insert(&action, second); // the same one again: kept
    QVERIFY(second);
    QCOMPARE(container.map.widget(&action), second.data());
}

void tst_ActionWidgetMap::unknownActions()
{
    Container container;
    RibbonSimpleAction known, stranger;
    container.addAction(&known);
    QPointer<QWidget> widget = container.map.widget(&known);

    QVERIFY(!container.map.drop(&stranger));
    QVERIFY(!container.map.drop(nullptr));
    QVERIFY(!container.map.widget(nullptr));
    QVERIFY(!container.map.action(nullptr));
    QVERIFY(!container.map.action(&container));
    auto *orphan = new QWidget(&container);
    container.map.insert(nullptr, orphan);
    QCOMPARE(container.map.keys().size(), 1);
    QVERIFY(!container.map.action(orphan));

    container.removeAction(&stranger); // never added: no event, nothing dropped
    QCOMPARE(container.drops, 0);
    QVERIFY(widget);
    QVERIFY(container.released.isEmpty());
}

void tst_ActionWidgetMap::otherObjectsThanWidgets()
{
    // A container may keep other objects per action, such as menu entries.
    QObject owner;
    RibbonActionWidgetMap<QAction> entries;
    RibbonSimpleAction a, b;
    QPointer<QAction> entryA = new QAction(&owner);
    entries.insert(&a, entryA);
    entries.insert(&b, new QAction(&owner));
    QCOMPARE(entries.widget(&a), entryA.data());
    QCOMPARE(entries.action(entryA), static_cast<QAction *>(&a));
    QCOMPARE(entries.widgets().size(), 2);
    QVERIFY(entries.drop(&a));
    QVERIFY(entryA.isNull());
    QCOMPARE(owner.children().size(), 1);
}

ZEL_TEST_MAIN(tst_ActionWidgetMap)
#include "tst_actionwidgetmap.moc"
