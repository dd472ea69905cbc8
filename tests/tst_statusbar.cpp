#include "ZelTest.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonMainWindow.h"
#include "RibbonPercAction.h"
#include "RibbonPercWidget.h"
#include "RibbonProgressAction.h"
#include "RibbonProgressWidget.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBar.h"
#include "RibbonStatusBarWidget.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

#include <array>

using namespace zel;

namespace {

// Sent straight to the widget so it arrives whether or not the platform tracks a grab.
void moveMouse(QWidget *widget, const QPoint &pos)
{
    QMouseEvent event(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void press(QWidget *w, const QPoint &p) { QTest::mousePress(w, Qt::LeftButton, Qt::NoModifier, p); }
void release(QWidget *w, const QPoint &p) { QTest::mouseRelease(w, Qt::LeftButton, Qt::NoModifier, p); }

bool exposed(QWidget &widget)
{
    widget.show();
    return QTest::qWaitForWindowExposed(&widget);
}

// A zoom slider over the range 10..400: 40 pixels for 10..100 %, 40 pixels for 100..400 %.
struct Zoom
{
    explicit Zoom(int value) : action(10, 400, value, nullptr), widget(action, nullptr) {}
    QPoint thumb() const { return QPoint(widget.thumbPosition(widget.value()), 10); }
    QPoint plus() const { return QPoint(widget.width() - 10, 10); }
    static QPoint minus() { return QPoint(70, 10); }
    RibbonPercAction action;
    RibbonPercWidget widget;
};

RibbonCatMenuAction *menuAction(const QString &text)
{
    return new RibbonCatMenuAction(text, RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeSmall,
                                   RibbonCatMenuAction::PopupMenu, nullptr);
}

} // namespace

class tst_StatusBar : public QObject
{
    Q_OBJECT

private slots:
    void percentageAndThumb();
    void dragThumb();
    void clickSteps();
    void heldButtonsRepeat();
    void deleteActionInItsHandler();
    void progress();
    void buttons();
    void widgetsByActionClass();
    void lifetimes();
};

void tst_StatusBar::percentageAndThumb()
{
    // {start, request, stored}: clamped to the range; only the same value is silent, while a
    // request clamped to the current value still signals.
    for (const auto &c : {std::array<int, 3>{100, 150, 150}, {100, 500, 400}, {400, 500, 400}, {100, -5, 10},
                          {120, 120, 120}}) {
        RibbonPercAction action(10, 400, c[0], nullptr);
        QSignalSpy percentage(&action, SIGNAL(percentageChanged(int)));
        QSignalSpy changed(&action, SIGNAL(changed()));
        action.setPercentage(c[1]);
        QCOMPARE(action.percentage(), c[2]);
        QCOMPARE(percentage.count(), c[0] == c[1] ? 0 : 1);
        QCOMPARE(changed.count(), percentage.count());
        if (!percentage.isEmpty())
            QCOMPARE(percentage.first().first().toInt(), c[2]);
    }
    // {minimum, maximum, value, thumb x}: truncated on either side of 100, and ranges that
    // only reach 100 have no second scale to divide by.
    for (const auto &c : {std::array<int, 4>{10, 400, 10, 85}, {10, 400, 400, 165}, {10, 400, 99, 124},
                          {10, 400, 107, 125}, {10, 400, 250, 145}, {50, 100, 100, 125}, {100, 200, 100, 125}}) {
        RibbonPercAction action(c[0], c[1], c[2], nullptr);
        QCOMPARE(RibbonPercWidget(action, nullptr).thumbPosition(c[2]), c[3]);
    }

    // Painted where the value puts the thumb, and enabled with the action.
    RibbonPercAction a(10, 400, 250, nullptr);
    RibbonPercAction b(10, 400, 100, nullptr);
    RibbonPercWidget first(a, nullptr);
    RibbonPercWidget second(b, nullptr);
    first.resize(190, 20);
    second.resize(190, 20);
    QVERIFY(first.grab().toImage() != second.grab().toImage());
    b.setPercentage(250);
    QCOMPARE(first.grab().toImage(), second.grab().toImage());
    a.setEnabled(false);
    QVERIFY(!first.isEnabled());
}

void tst_StatusBar::dragThumb()
{
    // {press x (-1: on the thumb), move x, expected}
    for (const auto &c : {
             std::array<int, 3>{-1, 85, 10}, {-1, 165, 400}, // the ends
             {-1, 20, 10}, {-1, 189, 400},                   // beyond the ends
             {-1, 121, 100}, {-1, 129, 100},                 // snapped to 100 from either side
             {-1, 120, 89}, {-1, 130, 138},                  // just outside the snap
             {-1, 100, 44}, {-1, 150, 288},                  // the low and the high scale
             // A press on the track moves the thumb there and holds it; the text area is not
             // track, and without a held thumb a move changes nothing.
             {150, 165, 400}, {30, 165, 100}}) {
        Zoom z(100);
        QVERIFY(exposed(z.widget));
        QSignalSpy spy(&z.action, SIGNAL(percentageChanged(int)));
        press(&z.widget, c[0] < 0 ? z.thumb() : QPoint(c[0], 10));
        QCOMPARE(spy.count(), c[0] == 150 ? 1 : 0);
        moveMouse(&z.widget, QPoint(c[1], 12));
        QCOMPARE(z.action.percentage(), c[2]);
        QCOMPARE(z.widget.text(), QString::number(c[2]) + QStringLiteral(" %"));
        release(&z.widget, QPoint(c[1], 12));
    }
}

void tst_StatusBar::clickSteps()
{
    // {start, plus (else minus), released over the button, expected}
    for (const auto &c : {std::array<int, 4>{100, 1, 1, 110}, {100, 0, 1, 90}, {395, 1, 1, 400}, {400, 1, 1, 400},
                          {15, 0, 1, 10}, {10, 0, 1, 10}, {100, 1, 0, 100}}) {
        Zoom z(c[0]);
        RibbonPercWidget second(z.action, nullptr); // widgets of one action move in step
        QVERIFY(exposed(z.widget));
        QSignalSpy spy(&z.action, SIGNAL(percentageChanged(int)));
        const QPoint button = c[1] ? z.plus() : z.minus();
        press(&z.widget, button);
        release(&z.widget, c[2] ? button : QPoint(125, 10));
        QCOMPARE(z.action.percentage(), c[3]);
        QCOMPARE(second.value(), c[3]);
        QCOMPARE(spy.count(), c[3] == c[0] ? 0 : 1);
    }
}

void tst_StatusBar::heldButtonsRepeat()
{
    Zoom z(100);
    QVERIFY(exposed(z.widget));
    auto *timer = z.widget.findChild<QTimer *>();
    QVERIFY(timer);

    // Each step is recorded with the time it was taken, so that a loaded machine that polls
    // late cannot miss one.
    QElapsedTimer clock;
    QVector<QPair<int, qint64>> steps;
    connect(&z.action, &RibbonPercAction::percentageChanged, &z.widget,
            [&](int value) { steps.append({value, clock.elapsed()}); });
    QSignalSpy ticks(timer, &QTimer::timeout);
    clock.start();
    press(&z.widget, z.plus());
    QCOMPARE(z.action.percentage(), 100);
    // First step after the first delay, not before; then one per repeat interval.
    QTRY_VERIFY_WITH_TIMEOUT(steps.size() >= 3, 5000);
    QCOMPARE(steps.at(0).first, 110);
    QCOMPARE(steps.at(1).first, 120);
    QCOMPARE(steps.at(2).first, 130);
    QVERIFY2(steps.at(0).second >= 195, qPrintable(QString::number(steps.at(0).second)));
    QVERIFY2(steps.at(2).second - steps.at(0).second >= 95,
             qPrintable(QString::number(steps.at(2).second - steps.at(0).second)));

    // The release over the button adds one step more and stops the repeat.
    release(&z.widget, z.plus());
    const int released = z.action.percentage();
    QVERIFY(released >= 140);
    QVERIFY(!timer->isActive());
    QCOMPARE(z.action.percentage(), released);

    // A second hold starts again with the first delay, and stops at the minimum: the
    // timer goes on ticking while the value stays pinned.
    z.action.setPercentage(30);
    QSignalSpy spy(&z.action, SIGNAL(percentageChanged(int)));
    press(&z.widget, z.minus());
    QCOMPARE(timer->interval(), 200);
    QTRY_COMPARE_WITH_TIMEOUT(z.action.percentage(), 10, 5000);
    const int ticksAtMinimum = ticks.count();
    QTRY_VERIFY_WITH_TIMEOUT(ticks.count() >= ticksAtMinimum + 2, 5000);
    release(&z.widget, z.minus());
    QCOMPARE(spy.count(), 2); // 30 -> 20 -> 10, then nothing while pinned
}

void tst_StatusBar::deleteActionInItsHandler()
{
    auto *action = new RibbonPercAction(10, 400, 100, nullptr);
    RibbonPercWidget widget(*action, nullptr);
    QVERIFY(exposed(widget));
    connect(action, &RibbonPercAction::percentageChanged, action, [action] { delete action; });

    press(&widget, QPoint(widget.thumbPosition(widget.value()), 10));
    moveMouse(&widget, QPoint(150, 10));
    QVERIFY(!widget.action());
    release(&widget, QPoint(160, 10));
    QVERIFY(!widget.grab().isNull());
}

void tst_StatusBar::progress()
{
    RibbonProgressAction action(2, 10, 4, QStringLiteral("Copying"), nullptr);
    RibbonProgressWidget widget(action, nullptr);
    QVERIFY(exposed(widget));
    QStringList order;
    connect(&action, &RibbonProgressAction::progressRangeChanged, [&] { order << QStringLiteral("range"); });
    connect(&action, &RibbonProgressAction::progressValueChanged,
            [&](int v) { order << QStringLiteral("value %1 of %2").arg(v).arg(action.maximum()); });
    connect(&action, &RibbonProgressAction::progressTextChanged, [&](const QString &t) { order << t; });

    // Range before value; a minimum other than 0 is reset even when the total stays.
    for (int i = 0; i < 2; ++i) {
        action.setProgress(3, 10);
        action.setProgressText(QStringLiteral("Saved"));
    }
    action.setRange(0, 100);
    QCOMPARE(widget.progressBar()->value(), 3); // a wider range keeps the value
    action.setProgress(9, 100);                 // same range: only the value
    QCOMPARE(order, QStringList({QStringLiteral("range"), QStringLiteral("value 3 of 10"), QStringLiteral("Saved"),
                                 QStringLiteral("range"), QStringLiteral("value 9 of 100")}));
    QCOMPARE(action.minimum(), 0);

    QCOMPARE(widget.label()->text(), QStringLiteral("Saved"));
    QCOMPARE(widget.progressBar()->value(), 9);
    action.setEnabled(false);
    QVERIFY(!widget.isEnabled());
}

void tst_StatusBar::buttons()
{
    for (bool checkable : {false, true}) {
        RibbonSimpleAction action(QStringLiteral("Print Layout"), nullptr);
        action.setCheckable(checkable);
        RibbonStatusBarWidget widget(action, nullptr);
        QVERIFY(exposed(widget));
        QCOMPARE(widget.sizeHint(), QSize(22, 22));
        moveMouse(&widget, QPoint(30, 30));
        const QImage resting = widget.grab().toImage();

        // Triggered on release, not on press; a toggle counts the click even when released outside.
        QSignalSpy triggered(&action, SIGNAL(triggered()));
        press(&widget, QPoint(10, 10));
        QCOMPARE(triggered.count(), 0);
        QVERIFY(widget.grab().toImage() != resting);
        release(&widget, checkable ? QPoint(40, 40) : QPoint(10, 10));
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(action.isChecked(), checkable);
        moveMouse(&widget, QPoint(30, 30));
        const QImage after = widget.grab().toImage();
        QCOMPARE(after != resting, checkable);
        if (checkable) {
            action.setChecked(false); // set by the host: the button follows
            QCOMPARE(widget.grab().toImage(), resting);
            action.setChecked(true);
            QCOMPARE(widget.grab().toImage(), after);
        }
    }
}

void tst_StatusBar::widgetsByActionClass()
{
    RibbonMainWindow window;
    RibbonStatusBar &bar = window.ribbonStatusBar();
    QCOMPARE(bar.height(), 23);
    window.resize(900, 400);
    QVERIFY(exposed(window));
    QVERIFY(bar.mapTo(&window, QPoint(0, bar.height())).y() > window.height() - 10);
    QSignalSpy changed(&bar, SIGNAL(statusBarChanged()));

    RibbonSimpleAction first(QStringLiteral("Read Mode"), nullptr);
    RibbonSimpleAction second(QStringLiteral("Web Layout"), nullptr);
    RibbonProgressAction progress(QStringLiteral("Saving"), nullptr);
    RibbonPercAction zoom(10, 400, 100, nullptr);
    QScopedPointer<RibbonCatMenuAction> menu(menuAction(QStringLiteral("Page 1")));
    QAction plain(QStringLiteral("Plain"), nullptr);
    bar.addActions({&first, &zoom, &second, &progress, menu.data(), &plain});
    QCOMPARE(changed.count(), 5);
    QVERIFY(!bar.widgetForAction(&plain));
    QVERIFY(qobject_cast<RibbonStatusBarWidget *>(bar.widgetForAction(&first)));
    QVERIFY(qobject_cast<RibbonProgressWidget *>(bar.widgetForAction(&progress)));
    QVERIFY(qobject_cast<RibbonPercWidget *>(bar.widgetForAction(&zoom)));
    QWidget *menuButton = bar.widgetForAction(menu.data());
    QVERIFY(qobject_cast<RibbonCatMenuButton *>(menuButton));

    // Laid out at once. Right area: the last added of progress and toggles first, the
    // zoom at the right end.
    QWidget *slider = bar.widgetForAction(&zoom);
    QCOMPARE(slider->size(), QSize(190, 20));
    QVERIFY(slider->geometry().right() > bar.width() - 20);
    const int x1 = bar.widgetForAction(&progress)->x();
    const int x3 = bar.widgetForAction(&first)->x();
    QVERIFY(x1 < bar.widgetForAction(&second)->x() && bar.widgetForAction(&second)->x() < x3 && x3 < slider->x());
    QVERIFY(menuButton->geometry().right() < x1);
    QVERIFY(bar.extensionsWidth() >= 22 + 22 + 160 + 190);

    // Login icons: nulls and duplicates ignored; a widget outside the area is not the bar's to delete.
    QPointer<QLabel> icon = new QLabel;
    icon->setFixedSize(16, 16);
    bar.addLoginStatusIcon(icon);
    bar.addLoginStatusIcon(icon);
    bar.addLoginStatusIcon(nullptr);
    QCOMPARE(icon->parentWidget(), &bar);
    QTRY_COMPARE(bar.loginLayoutWidth(), 16);
    QCOMPARE(bar.popupLayoutWidth(), 16 + menuButton->width() + 10 + 5);
    QLabel stranger;
    bar.removeLoginStatusIcon(&stranger);
    bar.removeLoginStatusIcon(nullptr);
    QVERIFY(icon);
    bar.removeLoginStatusIcon(icon);
    QVERIFY(!icon);
    QTRY_COMPARE(bar.loginLayoutWidth(), 0);

    // Removing: a plain action is silent; a widget goes with its action and comes back once.
    changed.clear();
    QPointer<QWidget> widget = bar.widgetForAction(&first);
    bar.removeAction(&plain);
    QCOMPARE(changed.count(), 0);
    bar.removeAction(&first);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!widget && !bar.widgetForAction(&first));
    bar.addAction(&first);
    bar.addAction(&first);
    QCOMPARE(bar.findChildren<RibbonStatusBarWidget *>().size(), 2);
}

void tst_StatusBar::lifetimes()
{
    for (bool actionsFirst : {true, false}) {
        auto *window = new RibbonMainWindow;
        auto *bar = new RibbonStatusBar(*window);
        QSignalSpy changed(bar, SIGNAL(statusBarChanged()));
        auto *progress = new RibbonProgressAction(QStringLiteral("Saving"), nullptr);
        auto *zoom = new RibbonPercAction(10, 400, 100, nullptr);
        const QList<QAction *> actions = {new RibbonSimpleAction(QStringLiteral("Toggle"), nullptr), progress, zoom,
                                          menuAction(QStringLiteral("Pages"))};
        bar->addActions(actions);
        auto *extra = new RibbonPercWidget(*zoom, nullptr); // a second slider, outside the bar
        QPointer<QWidget> zoomWidget = bar->widgetForAction(zoom);
        QVERIFY(exposed(*window));

        if (actionsFirst) {
            qDeleteAll(actions);
            QVERIFY(!zoomWidget);
            QCOMPARE(changed.count(), 8);
            QVERIFY(!extra->action());
            extra->grab();
            delete extra;
            delete window;
        } else {
            delete extra;
            delete window;
            for (QAction *a : actions)
                QVERIFY(a->associatedWidgets().isEmpty());
            zoom->setPercentage(200);
            progress->setProgress(1, 2);
            qDeleteAll(actions);
        }
    }
}

ZEL_TEST_MAIN(tst_StatusBar)
#include "tst_statusbar.moc"
