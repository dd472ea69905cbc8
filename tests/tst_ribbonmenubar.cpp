// Heights follow the screen resolution: ZEL_TEST_DPI_SENSITIVE

#include "ZelTest.h"

#include "RibbonButtonMain.h"
#include "RibbonButtonNormal.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonPlatform.h"
#include "RibbonScale_p.h"
#include "RibbonSimpleAction.h"

#include <QLayout>
#include <QPointer>
#include <QTimer>

#include <memory>

using namespace zel;

namespace {

using Tab = RibbonCategoriesPanelAction;

struct Fixture
{
    RibbonMenuBar &bar() const { return window->ribbonMenuBar(); }
    RibbonCategoryPanels *panels() const { return bar().categoryPanels()->subject(); }

    // A tab with one group holding one command.
    Tab *tab(const char *text, QObject *owner = nullptr)
    {
        QObject *parent = owner ? owner : window.get();
        auto *t = new Tab(QLatin1String(text), parent);
        auto *c = new RibbonCategoryAction(QStringLiteral("Group"), parent);
        c->addAction(new RibbonCatSimpleAction(QStringLiteral("Go"), RibbonCatSimpleAction::SizeLarge, parent), -1);
        t->addCategory(c);
        return t;
    }

    QList<Tab *> addTabs(std::initializer_list<const char *> names, QObject *owner = nullptr)
    {
        QList<Tab *> tabs;
        for (const char *name : names) {
            tabs << tab(name, owner);
            bar().addAction(tabs.last());
        }
        return tabs;
    }

    // A contextual set holding the given tabs, registered with the bar.
    RibbonContextCategoryPanelAction *contextSet(const char *caption, const QList<Tab *> &tabs,
                                                 QColor colour = Qt::yellow)
    {
        auto *set = new RibbonContextCategoryPanelAction(colour, Qt::red, Qt::black, window.get());
        set->setText(QLatin1String(caption));
        for (Tab *t : tabs)
            set->addPanelAction(t);
        bar().ribbonContextCategoryPanel().addContextPanelAction(set);
        return set;
    }

    bool show()
    {
        window->resize(900, 400);
        window->show();
        return QTest::qWaitForWindowExposed(window.get());
    }

    // The captions of the tab row, left to right.
    QString row() const
    {
        bar().layout()->activate();
        QList<RibbonMenuBarButton *> sorted = bar().findChildren<RibbonMenuBarButton *>();
        std::sort(sorted.begin(), sorted.end(), [](QWidget *a, QWidget *b) { return a->x() < b->x(); });
        QStringList texts;
        for (RibbonMenuBarButton *b : sorted)
            texts << b->text();
        return texts.join(QLatin1Char(','));
    }

    std::unique_ptr<RibbonMainWindow> window{new RibbonMainWindow};
};

// The right end of the tab row, left to right.
QList<QWidget *> rowWidgets(RibbonMenuBar &bar)
{
    bar.layout()->activate();
    QList<QWidget *> widgets;
    for (QWidget *w : bar.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (w->isVisibleTo(&bar) && !qobject_cast<RibbonMenuBarButton *>(w)
            && !qobject_cast<RibbonButtonMain *>(w) && !qobject_cast<RibbonCategoryPanelsProxy *>(w))
            widgets << w;
    }
    std::sort(widgets.begin(), widgets.end(), [](QWidget *a, QWidget *b) { return a->x() < b->x(); });
    return widgets;
}

} // namespace

class tst_RibbonMenuBar : public QObject
{
    Q_OBJECT

private slots:
    void tabRow();
    void hoverFollowsTheCursorBetweenPaints();
    void cursorKeptThroughPaintingOnly();
    void removeCurrentTab_data();
    void removeCurrentTab();
    void pinnedTabs();
    void clickWhileMinimised_data();
    void clickWhileMinimised();
    void contextualSets();
    void helpAndFindButtons();
};

void tst_RibbonMenuBar::tabRow()
{
    Fixture f;
    QVERIFY(f.show());
    RibbonMenuBar &bar = f.bar();
    QVERIFY(!bar.mainMenuButton()->isVisible());
    const QList<QWidget *> right = rowWidgets(bar);
    QCOMPARE(right.size(), 1);
    QCOMPARE(right.first()->size(), QSize(16, 20));
    QVERIFY(right.first()->actions().contains(bar.collapseRibbonAction()));
    QTRY_COMPARE(bar.height(), 20 + scaled(92));
    QRect untouched(1, 2, 3, 4);
    bar.displayedContextPanelRect(untouched); // no contextual set shown
    QCOMPARE(untouched, QRect(1, 2, 3, 4));

    // The first tab is current; tabs are the window's actions too, for their shortcuts.
    const auto tabs = f.addTabs({"Home", "View"});
    QTRY_COMPARE(bar.height(), 24 + scaled(92));
    QVERIFY(bar.mainMenuButton()->isVisible());
    QCOMPARE(bar.menuBarButton(tabs.at(0))->height(), 24);
    QVERIFY(!bar.menuBarButton(nullptr));
    QCOMPARE(f.row(), QStringLiteral("HOME,VIEW"));
    QVERIFY(tabs.at(0)->isChecked() && !tabs.at(1)->isChecked());
    QVERIFY(bar.menuBarButton(tabs.at(0))->isChecked());
    QCOMPARE(f.panels()->currentWidget(), f.panels()->panel(tabs.at(0)));
    QVERIFY(f.window->actions().contains(tabs.at(0)) && f.window->actions().contains(tabs.at(1)));

    // Added checked, a tab becomes current at once.
    Tab *late = f.tab("Late");
    late->setChecked(true);
    bar.addAction(late);
    QVERIFY(late->isChecked() && !tabs.at(0)->isChecked());
    QCOMPARE(f.panels()->currentWidget(), f.panels()->panel(late));

    // Collapsed by the action, whose tip and icon follow the state, and pinned by Ctrl+F1.
    QAction *collapse = bar.collapseRibbonAction();
    QCOMPARE(collapse->toolTip(), QStringLiteral("Collapse the Ribbon"));
    const QImage pinnedIcon = collapse->icon().pixmap(16).toImage();
    QVERIFY(!pinnedIcon.isNull());
    collapse->trigger();
    QVERIFY(bar.isRibbonMinimized() && !late->isChecked() && !f.panels()->isVisible());
    QCOMPARE(collapse->toolTip(), QStringLiteral("Pin the Ribbon"));
    QVERIFY(collapse->icon().pixmap(16).toImage() != pinnedIcon);
    // On a minimised bar a tab added checked is not current, and nothing pops up.
    Tab *hidden = f.tab("Hidden");
    hidden->setChecked(true);
    bar.addAction(hidden);
    QVERIFY(!hidden->isChecked() && !f.panels()->isVisible());
    QApplication::setActiveWindow(f.window.get());
    QVERIFY(QTest::qWaitForWindowActive(f.window.get()));
    QTest::keyClick(f.window.get(), Qt::Key_F1, Qt::ControlModifier);
    QVERIFY(!bar.isRibbonMinimized() && late->isChecked());
    QCOMPARE(collapse->toolTip(), QStringLiteral("Collapse the Ribbon"));
    QCOMPARE(collapse->icon().pixmap(16).toImage(), pinnedIcon);
    bar.setMinimizeRibbon(false); // same value: nothing changes
    QVERIFY(!bar.isRibbonMinimized() && f.panels()->isVisible());
}

void tst_RibbonMenuBar::removeCurrentTab_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("destroy");
    QTest::addColumn<QString>("next");
    QTest::newRow("first") << 0 << false << QStringLiteral("B");
    QTest::newRow("middle") << 1 << false << QStringLiteral("C");
    QTest::newRow("last") << 2 << false << QStringLiteral("B");
    QTest::newRow("first destroyed") << 0 << true << QStringLiteral("B");
    QTest::newRow("last destroyed") << 2 << true << QStringLiteral("B");
}

void tst_RibbonMenuBar::removeCurrentTab()
{
    QFETCH(int, current);
    QFETCH(bool, destroy);
    QFETCH(QString, next);
    Fixture f;
    QList<Tab *> tabs = f.addTabs({"A", "B", "C"});
    QVERIFY(f.show());
    Tab *removed = tabs.at(current);
    removed->setChecked(true);
    QPointer<RibbonMenuBarButton> button = f.bar().menuBarButton(removed);
    QPointer<RibbonCategoryPanel> page = f.panels()->panel(removed);
    if (destroy) {
        delete tabs.takeAt(current);
    } else {
        f.bar().removeAction(removed);
        QVERIFY(!removed->isChecked());
        QVERIFY(!f.window->actions().contains(removed));
    }
    QVERIFY(!button && !page);
    for (Tab *tab : tabs) {
        if (tab != removed)
            QCOMPARE(tab->isChecked(), tab->text() == next);
    }

    // Down to the last tab: nothing left to be current.
    for (Tab *tab : tabs)
        f.bar().removeAction(tab);
    QCOMPARE(f.panels()->count(), 0);
    for (Tab *tab : tabs)
        QVERIFY(!tab->isChecked());
    f.bar().removeAction(tabs.first()); // unknown by now: nothing happens
}

void tst_RibbonMenuBar::pinnedTabs()
{
    Fixture f;
    const auto tabs = f.addTabs({"Home", "Insert", "View"});
    Tab *home = tabs.at(0);
    Tab *insert = tabs.at(1);
    Tab *view = tabs.at(2);
    QVERIFY(f.show());

    // A click on the current tab does nothing at all.
    QSignalSpy homeTriggered(home, &QAction::triggered);
    QSignalSpy homeChanged(home, &QAction::changed);
    QTest::mouseClick(f.bar().menuBarButton(home), Qt::LeftButton);
    QCOMPARE(homeTriggered.count() + homeChanged.count(), 0);
    QVERIFY(home->isChecked());
    QVERIFY(!f.bar().lastClickedAction());
    QSignalSpy triggered(view, &QAction::triggered);
    QTest::mouseClick(f.bar().menuBarButton(view), Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(view->isChecked() && !home->isChecked());
    QCOMPARE(f.bar().lastClickedAction(), view);
    QCOMPARE(f.panels()->currentWidget(), f.panels()->panel(view));

    // A disabled tab loses button and page; enabled again it comes back at the end.
    QPointer<RibbonMenuBarButton> button = f.bar().menuBarButton(insert);
    insert->setEnabled(false);
    QVERIFY(!button && !f.panels()->panel(insert));
    QCOMPARE(f.row(), QStringLiteral("HOME,VIEW"));
    insert->setEnabled(true);
    QVERIFY(f.panels()->panel(insert));
    QCOMPARE(f.row(), QStringLiteral("HOME,VIEW,INSERT"));
    // Disabling the current tab passes the current state on.
    view->setEnabled(false);
    QVERIFY(home->isChecked() || insert->isChecked());
    // A tab added disabled gets no button until it is enabled.
    Tab *late = f.tab("Late");
    late->setEnabled(false);
    f.bar().addAction(late);
    QVERIFY(!f.bar().menuBarButton(late));
    late->setEnabled(true);
    QVERIFY(f.bar().menuBarButton(late));

    // A double click minimises.
    QTest::mouseDClick(f.bar().menuBarButton(late), Qt::LeftButton);
    QTRY_VERIFY(f.bar().isRibbonMinimized());
    QVERIFY(!f.panels()->isVisible());
}

void tst_RibbonMenuBar::clickWhileMinimised_data()
{
    QTest::addColumn<bool>("doubleClick");
    QTest::newRow("single: the popup opens") << false;
    QTest::newRow("double: pinned, no popup") << true;
}

void tst_RibbonMenuBar::clickWhileMinimised()
{
    QFETCH(bool, doubleClick);
    QObject owner;
    Fixture f;
    Tab *home = f.addTabs({"Home", "View"}, &owner).first();
    QVERIFY(f.show());
    f.bar().setMinimizeRibbon(true);
    QVERIFY(!home->isChecked());
    QTRY_COMPARE(f.bar().height(), 24);

    struct PopupCounter : QObject
    {
        int count = 0;
        bool eventFilter(QObject *o, QEvent *e) override
        {
            count += e->type() == QEvent::Show && static_cast<QWidget *>(o)->isWindow();
            return false;
        }
    } popupShows;
    f.panels()->installEventFilter(&popupShows);

    // The popup waits for the double-click interval to pass.
    QTest::mouseClick(f.bar().menuBarButton(home), Qt::LeftButton);
    QVERIFY(!home->isChecked() && !f.panels()->isVisible());
    if (doubleClick)
        QTest::mouseDClick(f.bar().menuBarButton(home), Qt::LeftButton);
    QTRY_VERIFY(home->isChecked());
    // No click is pending any more: the popup shows no more than it has shown by now.
    auto *clickDelay = f.bar().menuBarButton(home)->findChild<QTimer *>(QStringLiteral("clickDelay"));
    QVERIFY(clickDelay);
    QVERIFY(!clickDelay->isActive());
    QCOMPARE(popupShows.count, doubleClick ? 0 : 1);
    QCOMPARE(f.bar().isRibbonMinimized(), !doubleClick);
    QCOMPARE(f.panels()->isWindow(), !doubleClick);
    QVERIFY(f.panels()->isVisible());
    f.panels()->removeEventFilter(&popupShows);
    if (doubleClick)
        return;
    QCOMPARE(f.bar().lastClickedAction(), home);

    // Groups, commands and tabs all go while the popup panel is open.
    const QObjectList model = owner.children();
    qDeleteAll(model);
    QCOMPARE(f.panels()->count(), 0);
    QCOMPARE(f.row(), QString());
}

void tst_RibbonMenuBar::contextualSets()
{
    Fixture f;
    f.addTabs({"Home"});
    QVERIFY(f.show());
    Tab *design = f.tab("Design");
    Tab *layout = f.tab("Layout");
    Tab *x = f.tab("X");
    Tab *y = f.tab("Y");
    auto *first = f.contextSet("Tools", {design, layout});
    auto *second = f.contextSet("A Rather Long Contextual Tools Caption", {x, y}, Qt::cyan);
    auto *stranger = new RibbonContextCategoryPanelAction(Qt::yellow, Qt::red, Qt::black, f.window.get());
    stranger->addPanelAction(f.tab("Stranger"));
    RibbonMenuBar &bar = f.bar();
    const auto bandIs = [&](Tab *from, Tab *to) {
        QRect band;
        bar.displayedContextPanelRect(band);
        RibbonMenuBarButton *a = bar.menuBarButton(from);
        RibbonMenuBarButton *b = bar.menuBarButton(to);
        return band == QRect(a->mapToGlobal(QPoint(0, 0)), b->mapToGlobal(b->rect().bottomRight()));
    };

    QSignalSpy changed(&bar, &RibbonMenuBar::contextRibbonChanged);
    bar.showContextPanelAction(stranger); // unregistered sets are not shown
    QCOMPARE(changed.count(), 0);
    QVERIFY(!bar.displayedContextPanel());

    bar.showContextPanelAction(first);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(bar.displayedContextPanel(), first);
    QCOMPARE(f.row(), QStringLiteral("HOME,DESIGN,LAYOUT"));
    QVERIFY(bandIs(design, layout));
    // The band behind the set's tabs is painted in its colour.
    RibbonMenuBarButton *d = bar.menuBarButton(design);
    QCOMPARE(d->grab().toImage().pixelColor(d->width() / 2, 1), QColor(Qt::yellow));
    // A caption narrower than the tab texts leaves the buttons alone.
    QCOMPARE(d->minimumWidth(), 0);

    // Showing a second set hides the first; its wider caption widens its tabs evenly.
    bar.showContextPanelAction(second);
    QCOMPARE(bar.displayedContextPanel(), second);
    QCOMPARE(f.row(), QStringLiteral("HOME,X,Y"));
    QVERIFY(!f.panels()->panel(design));
    QCOMPARE(changed.count(), 3);
    const QFontMetrics fm = bar.fontMetrics();
    const int wider = fm.horizontalAdvance(second->text()) - fm.horizontalAdvance(QStringLiteral("XY"));
    for (Tab *tab : {x, y}) {
        RibbonMenuBarButton *button = bar.menuBarButton(tab);
        const int expected = button->sizeHint().width() + int(wider / 2.0 + 0.5) - 12 * 2;
        QCOMPARE(button->minimumWidth(), expected);
        QCOMPARE(button->maximumWidth(), expected);
    }

    bar.hideContextPanelAction(first); // not displayed: nothing
    QCOMPARE(changed.count(), 3);
    bar.hideContextPanelAction(second);
    QVERIFY(!bar.displayedContextPanel());
    QCOMPARE(f.row(), QStringLiteral("HOME"));
    QCOMPARE(changed.count(), 4);

    // The tab last clicked comes back current when its set is shown again.
    bar.showContextPanelAction(first);
    QTest::mouseClick(bar.menuBarButton(layout), Qt::LeftButton);
    bar.hideContextPanelAction(first);
    QVERIFY(!layout->isChecked());
    bar.showContextPanelAction(first);
    QVERIFY(layout->isChecked());

    // A tab of the displayed set destroyed: the band covers the rest.
    delete design;
    QVERIFY(bandIs(layout, layout));
    // Unregistering a displayed set hides it (the registry reaches the bar through the meta-object).
    bar.ribbonContextCategoryPanel().removeContextPanelAction(first);
    QVERIFY(!bar.ribbonContextCategoryPanel().containsAction(first));
    QVERIFY(!bar.displayedContextPanel());
    QVERIFY(!bar.menuBarButton(layout));
    // A displayed set destroyed leaves nothing displayed, and its tabs (owned elsewhere)
    // leave the row with it.
    bar.showContextPanelAction(second);
    QSignalSpy gone(&bar, &RibbonMenuBar::contextRibbonChanged);
    delete second;
    QVERIFY(!bar.displayedContextPanel());
    QCOMPARE(f.row(), QStringLiteral("HOME"));
    QCOMPARE(gone.count(), 1);
}

void tst_RibbonMenuBar::helpAndFindButtons()
{
    Fixture f;
    f.addTabs({"Home"});
    QVERIFY(f.show());
    QWidget *collapseButton = rowWidgets(f.bar()).last();

    // A help button right of the collapse button; replacing the action replaces the button.
    auto *help = new RibbonSimpleAction(QStringLiteral("Help"), f.window.get());
    f.bar().setHelpAction(help);
    auto *help2 = new RibbonSimpleAction(QStringLiteral("Help 2"), f.window.get());
    f.bar().setHelpAction(help2);
    QList<QWidget *> right = rowWidgets(f.bar());
    QCOMPARE(right.size(), 2);
    QCOMPARE(right.at(0), collapseButton);
    QVERIFY(qobject_cast<RibbonButtonNormal *>(right.at(1)));
    QCOMPARE(right.at(1)->size(), QSize(20, 20));
    QVERIFY(right.at(1)->actions().contains(help2));
    QVERIFY(!f.bar().actions().contains(help));

    // The find button appears only beside a find combo, both before the collapse button.
    auto *find = new RibbonCatMenuAction(QStringLiteral("Find"), RibbonCatMenuAction::MenuTypeButton,
                                         RibbonCatMenuAction::MenuSizeSmall, RibbonCatMenuAction::PopupMenu,
                                         f.window.get());
    f.bar().setFindAction(find);
    QCOMPARE(rowWidgets(f.bar()).size(), 2);
    f.bar().setFindComboAction(new RibbonCatComboAction(f.window.get()));
    right = rowWidgets(f.bar());
    QCOMPARE(right.size(), 4);
    QVERIFY(qobject_cast<RibbonCatComboComboBox *>(right.at(0)));
    QVERIFY(qobject_cast<RibbonCatMenuButton *>(right.at(1)));
    QCOMPARE(right.at(2), collapseButton);
    f.bar().setFindComboAction(nullptr);
    QCOMPARE(rowWidgets(f.bar()).size(), 2);

    // A help action destroyed by its owner takes its button along.
    delete help2;
    QVERIFY(!f.bar().helpAction());
    QCOMPARE(rowWidgets(f.bar()).size(), 1);
}

void tst_RibbonMenuBar::hoverFollowsTheCursorBetweenPaints()
{
    // A tab looks hovered while the cursor lies on it, wherever the cursor was at the
    // previous paint and with no event between the two: paints in a row each see the
    // cursor where it is.
    Fixture f;
    const QList<Tab *> tabs = f.addTabs({"Home", "View"});
    QVERIFY(f.show());
    RibbonMenuBarButton *view = f.bar().menuBarButton(tabs.last());
    QVERIFY(view && !view->isChecked());
    const QPoint inside = view->mapToGlobal(view->rect().center());
    const QPoint outside = f.window->mapToGlobal(QPoint(-50, -50));

    QCursor::setPos(outside);
    const QImage away = view->grab().toImage();
    QCursor::setPos(inside);
    const QImage over = view->grab().toImage();
    QCursor::setPos(outside);
    const QImage awayAgain = view->grab().toImage();
    QVERIFY(over != away);
    QCOMPARE(awayAgain, away);
}

void tst_RibbonMenuBar::cursorKeptThroughPaintingOnly()
{
    // Where asking for the cursor is a round trip to the display server, one answer
    // serves a run of paints: it holds through paint events and goes at the first other
    // event, as a mouse event would be.
    Fixture f;
    const QList<Tab *> tabs = f.addTabs({"Home", "View"});
    QVERIFY(f.show());
    RibbonMenuBarButton *view = f.bar().menuBarButton(tabs.last());
    QVERIFY(view);
    const QPoint inside = view->mapToGlobal(view->rect().center());
    const QPoint outside = f.window->mapToGlobal(QPoint(-50, -50));
    QCursor::setPos(outside);
    QCoreApplication::processEvents();

    RibbonPlatform::setCursorPosCaching(true);
    const QImage away = view->grab().toImage();
    QCursor::setPos(inside);
    const QImage kept = view->grab().toImage();
    QEvent other(QEvent::User);
    QCoreApplication::sendEvent(view, &other);
    const QImage over = view->grab().toImage();
    RibbonPlatform::resetCursorPosCaching();

    QCOMPARE(kept, away);
    QVERIFY(over != away);
}

ZEL_TEST_MAIN(tst_RibbonMenuBar)
#include "tst_ribbonmenubar.moc"
