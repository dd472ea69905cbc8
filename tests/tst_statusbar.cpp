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

using namespace zel;

namespace {

// Sent straight to the widget so it arrives whether or not the platform tracks a grab.
void moveMouse(QWidget *widget, const QPoint &pos, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void press(QWidget *w, const QPoint &p) { QTest::mousePress(w, Qt::LeftButton, Qt::NoModifier, p); }
void release(QWidget *w, const QPoint &p) { QTest::mouseRelease(w, Qt::LeftButton, Qt::NoModifier, p); }
void click(QWidget *w, const QPoint &p) { QTest::mouseClick(w, Qt::LeftButton, Qt::NoModifier, p); }

// A zoom slider over the range 10..400, shown on its own.
struct Zoom
{
    explicit Zoom(int value) : action(10, 400, value, nullptr), widget(action, nullptr) { widget.show(); }
    QPoint thumb() const { return QPoint(widget.thumbPosition(widget.value()), 10); }
    QPoint plus() const { return QPoint(widget.width() - 10, 10); }
    static QPoint minus() { return QPoint(70, 10); }
    RibbonPercAction action;
    RibbonPercWidget widget;
};

} // namespace

class tst_StatusBar : public QObject
{
    Q_OBJECT

private slots:
    void setPercentage_data();
    void setPercentage();
    void dragThumb_data();
    void dragThumb();
    void thumbPositions_data();
    void thumbPositions();
    void pressOnTrackMovesThumb();
    void clickSteps_data();
    void clickSteps();
    void heldPlusRepeats();
    void heldMinusStopsAtMinimum();
    void widgetsOfOneActionInStep();
    void deleteActionInItsHandler();

    void progressSignals();
    void progressWidgetFollows();

    void toggleButton();
    void plainButtonTriggersOnRelease();

    void widgetsByActionClass();
    void loginIcons();
    void lifetimes_data();
    void lifetimes();
    void heldByMainWindow();
};

void tst_StatusBar::setPercentage_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("request");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("emissions");

    QTest::newRow("inside") << 100 << 150 << 150 << 1;
    QTest::newRow("above maximum") << 100 << 500 << 400 << 1;
    QTest::newRow("above maximum, already there") << 400 << 500 << 400 << 1;
    QTest::newRow("below minimum") << 100 << -5 << 10 << 1;
    QTest::newRow("same value") << 120 << 120 << 120 << 0;
}

void tst_StatusBar::setPercentage()
{
    QFETCH(int, start);
    QFETCH(int, request);
    QFETCH(int, stored);
    QFETCH(int, emissions);

    RibbonPercAction action(10, 400, start, nullptr);
    QSignalSpy percentage(&action, SIGNAL(percentageChanged(int)));
    QSignalSpy changed(&action, SIGNAL(changed()));
    action.setPercentage(request);
    QCOMPARE(action.percentage(), stored);
    QCOMPARE(percentage.count(), emissions);
    QCOMPARE(changed.count(), emissions);
    if (emissions)
        QCOMPARE(percentage.first().first().toInt(), stored);
}

void tst_StatusBar::dragThumb_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("expected");

    // 40 pixels for 10..100 %, 40 pixels for 100..400 %.
    QTest::newRow("minimum end") << 85 << 10;
    QTest::newRow("maximum end") << 165 << 400;
    QTest::newRow("beyond the left") << 20 << 10;
    QTest::newRow("beyond the right") << 189 << 400;
    QTest::newRow("tick") << 125 << 100;
    QTest::newRow("snap from the left") << 121 << 100;
    QTest::newRow("snap from the right") << 129 << 100;
    QTest::newRow("left of the snap") << 120 << 89;
    QTest::newRow("right of the snap") << 130 << 138;
    QTest::newRow("low scale") << 100 << 44;
    QTest::newRow("high scale") << 150 << 288;
}

void tst_StatusBar::dragThumb()
{
    QFETCH(int, x);
    QFETCH(int, expected);

    Zoom z(100);
    QVERIFY(QTest::qWaitForWindowExposed(&z.widget));
    QSignalSpy spy(&z.action, SIGNAL(percentageChanged(int)));

    press(&z.widget, z.thumb());
    QCOMPARE(spy.count(), 0);
    moveMouse(&z.widget, QPoint(x, 12));
    QCOMPARE(z.widget.value(), expected);
    QCOMPARE(z.action.percentage(), expected);
    QCOMPARE(spy.count(), expected == 100 ? 0 : 1);
    QCOMPARE(z.widget.text(), QString::number(expected) + QStringLiteral(" %"));
    release(&z.widget, QPoint(x, 12));
    QCOMPARE(z.action.percentage(), expected);

    // Without a held thumb a move only repaints.
    moveMouse(&z.widget, QPoint(x == 85 ? 165 : 85, 12));
    QCOMPARE(z.action.percentage(), expected);
}

void tst_StatusBar::thumbPositions_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("x");

    QTest::newRow("minimum") << 10 << 400 << 10 << 85;
    QTest::newRow("100") << 10 << 400 << 100 << 125;
    QTest::newRow("maximum") << 10 << 400 << 400 << 165;
    QTest::newRow("low side truncates") << 10 << 400 << 99 << 124;
    QTest::newRow("high side truncates") << 10 << 400 << 107 << 125;
    QTest::newRow("high side") << 10 << 400 << 250 << 145;
    QTest::newRow("range ends at 100") << 50 << 100 << 100 << 125;
    QTest::newRow("range starts at 100") << 100 << 200 << 100 << 125;
}

void tst_StatusBar::thumbPositions()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, x);

    RibbonPercAction action(minimum, maximum, value, nullptr);
    QCOMPARE(RibbonPercWidget(action, nullptr).thumbPosition(value), x);
}

void tst_StatusBar::pressOnTrackMovesThumb()
{
    Zoom z(100);
    QVERIFY(QTest::qWaitForWindowExposed(&z.widget));
    press(&z.widget, QPoint(150, 10));
    QCOMPARE(z.action.percentage(), 288);
    // The thumb stays held for dragging.
    moveMouse(&z.widget, QPoint(165, 10));
    QCOMPARE(z.action.percentage(), 400);
    release(&z.widget, QPoint(165, 10));

    // The text area is not part of the track.
    click(&z.widget, QPoint(30, 10));
    QCOMPARE(z.action.percentage(), 400);
}

void tst_StatusBar::clickSteps_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("plus");
    QTest::addColumn<bool>("releaseOver");
    QTest::addColumn<int>("expected");

    QTest::newRow("plus") << 100 << true << true << 110;
    QTest::newRow("minus") << 100 << false << true << 90;
    QTest::newRow("plus near the maximum") << 395 << true << true << 400;
    QTest::newRow("plus at the maximum") << 400 << true << true << 400;
    QTest::newRow("minus near the minimum") << 15 << false << true << 10;
    QTest::newRow("minus at the minimum") << 10 << false << true << 10;
    QTest::newRow("released elsewhere") << 100 << true << false << 100;
}

void tst_StatusBar::clickSteps()
{
    QFETCH(int, start);
    QFETCH(bool, plus);
    QFETCH(bool, releaseOver);
    QFETCH(int, expected);

    Zoom z(start);
    QVERIFY(QTest::qWaitForWindowExposed(&z.widget));
    QSignalSpy spy(&z.action, SIGNAL(percentageChanged(int)));
    const QPoint button = plus ? z.plus() : z.minus();
    press(&z.widget, button);
    release(&z.widget, releaseOver ? button : QPoint(125, 10));
    QCOMPARE(z.action.percentage(), expected);
    QCOMPARE(z.widget.value(), expected);
    QCOMPARE(spy.count(), expected == start ? 0 : 1);
}

void tst_StatusBar::heldPlusRepeats()
{
    Zoom z(100);
    QVERIFY(QTest::qWaitForWindowExposed(&z.widget));
    auto *timer = z.widget.findChild<QTimer *>();
    QVERIFY(timer);

    QElapsedTimer clock;
    clock.start();
    press(&z.widget, z.plus());
    QCOMPARE(z.action.percentage(), 100);
    QCOMPARE(timer->interval(), 200);

    // First step after the first delay, not before; then one per repeat interval.
    QTRY_COMPARE_WITH_TIMEOUT(z.action.percentage(), 110, 5000);
    const qint64 first = clock.elapsed();
    QVERIFY2(first >= 195, qPrintable(QString::number(first)));
    QCOMPARE(timer->interval(), 50);
    QTRY_COMPARE_WITH_TIMEOUT(z.action.percentage(), 130, 5000);
    QVERIFY2(clock.elapsed() - first >= 95, qPrintable(QString::number(clock.elapsed() - first)));

    // The release over the button adds one step more and stops the repeat.
    release(&z.widget, z.plus());
    const int released = z.action.percentage();
    QVERIFY(released >= 140);
    QVERIFY(!timer->isActive());
    QTest::qWait(120);
    QCOMPARE(z.action.percentage(), released);

    // A second hold starts again with the first delay.
    press(&z.widget, z.plus());
    QCOMPARE(timer->interval(), 200);
    release(&z.widget, z.plus());
}

void tst_StatusBar::heldMinusStopsAtMinimum()
{
    Zoom z(30);
    QVERIFY(QTest::qWaitForWindowExposed(&z.widget));
    QSignalSpy spy(&z.action, SIGNAL(percentageChanged(int)));
    press(&z.widget, z.minus());
    QTRY_COMPARE_WITH_TIMEOUT(z.action.percentage(), 10, 5000);
    QTest::qWait(120);
    release(&z.widget, z.minus());
    QCOMPARE(z.action.percentage(), 10);
    QCOMPARE(spy.count(), 2); // 30 -> 20 -> 10, then nothing while pinned
}

void tst_StatusBar::widgetsOfOneActionInStep()
{
    Zoom z(100);
    RibbonPercWidget second(z.action, nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(&z.widget));

    click(&z.widget, z.plus());
    QCOMPARE(second.value(), 110);
    QCOMPARE(second.text(), QStringLiteral("110 %"));
    z.action.setPercentage(250);
    QCOMPARE(z.widget.value(), 250);
    QCOMPARE(z.widget.text(), QStringLiteral("250 %"));

    // The grab tells the two thumb positions apart.
    RibbonPercAction other(10, 400, 100, nullptr);
    RibbonPercWidget reference(other, nullptr);
    reference.resize(second.size());
    second.resize(reference.size());
    QVERIFY(second.grab().toImage() != reference.grab().toImage());
    other.setPercentage(250);
    QCOMPARE(second.grab().toImage(), reference.grab().toImage());

    z.action.setEnabled(false);
    QVERIFY(!z.widget.isEnabled());
    QVERIFY(!second.isEnabled());
}

void tst_StatusBar::deleteActionInItsHandler()
{
    auto *action = new RibbonPercAction(10, 400, 100, nullptr);
    RibbonPercWidget widget(*action, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    connect(action, &RibbonPercAction::percentageChanged, action, [action] { delete action; });

    press(&widget, QPoint(widget.thumbPosition(widget.value()), 10));
    moveMouse(&widget, QPoint(150, 10));
    QVERIFY(!widget.action());
    moveMouse(&widget, QPoint(160, 10));
    release(&widget, QPoint(160, 10));
    QVERIFY(!widget.grab().isNull());
}

void tst_StatusBar::progressSignals()
{
    RibbonProgressAction idle(QStringLiteral("Idle"), nullptr);
    QCOMPARE(idle.minimum(), 0);
    QCOMPARE(idle.maximum(), 1);
    QCOMPARE(idle.value(), 0);
    QVERIFY(idle.isGrabEnabled());

    // Each setter twice: one signal.
    QSignalSpy value(&idle, SIGNAL(progressValueChanged(int)));
    QSignalSpy text(&idle, SIGNAL(progressTextChanged(QString)));
    QSignalSpy range(&idle, SIGNAL(progressRangeChanged()));
    for (int i = 0; i < 2; ++i) {
        idle.setProgressValue(1);
        idle.setProgressText(QStringLiteral("Saving"));
        idle.setRange(0, 10);
    }
    QCOMPARE(value.count(), 1);
    QCOMPARE(text.count(), 1);
    QCOMPARE(text.first().first().toString(), QStringLiteral("Saving"));
    QCOMPARE(range.count(), 1);
    idle.setProgress(3, 10); // same range: only the value
    QCOMPARE(range.count(), 1);
    QCOMPARE(value.count(), 2);
    QCOMPARE(value.last().first().toInt(), 3);

    // Range before value; a minimum other than 0 is reset even when the total stays.
    RibbonProgressAction action(2, 10, 0, QStringLiteral("Copying"), nullptr);
    QStringList order;
    connect(&action, &RibbonProgressAction::progressRangeChanged, [&] { order << QStringLiteral("range"); });
    connect(&action, &RibbonProgressAction::progressValueChanged,
            [&](int v) { order << QStringLiteral("value %1 of %2").arg(v).arg(action.maximum()); });
    action.setProgress(3, 10);
    action.setProgress(5, 20);
    QCOMPARE(order, QStringList({QStringLiteral("range"), QStringLiteral("value 3 of 10"),
                                 QStringLiteral("range"), QStringLiteral("value 5 of 20")}));
    QCOMPARE(action.minimum(), 0);
}

void tst_StatusBar::progressWidgetFollows()
{
    RibbonProgressAction action(0, 10, 4, QStringLiteral("Saving"), nullptr);
    RibbonProgressWidget widget(action, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCOMPARE(widget.label()->text(), QStringLiteral("Saving"));
    QVERIFY(!widget.progressBar()->isTextVisible());
    QCOMPARE(widget.progressBar()->maximum(), 10);
    QCOMPARE(widget.progressBar()->value(), 4);

    const QImage before = widget.grab().toImage();
    action.setProgressValue(9);
    QCOMPARE(widget.progressBar()->value(), 9);
    const QImage afterValue = widget.grab().toImage();
    QVERIFY(afterValue != before);
    action.setProgressText(QStringLiteral("Saved"));
    QCOMPARE(widget.label()->text(), QStringLiteral("Saved"));
    QVERIFY(widget.grab().toImage() != afterValue);

    // A wider range keeps the value the action holds.
    action.setProgress(9, 100);
    QCOMPARE(widget.progressBar()->maximum(), 100);
    QCOMPARE(widget.progressBar()->value(), 9);
    action.setEnabled(false);
    QVERIFY(!widget.isEnabled());
}

void tst_StatusBar::toggleButton()
{
    RibbonSimpleAction action(QStringLiteral("Print Layout"), nullptr);
    action.setCheckable(true);
    action.setToolTip(QStringLiteral("Print Layout view"));
    RibbonStatusBarWidget widget(action, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCOMPARE(widget.toolTip(), QStringLiteral("Print Layout view"));
    QCOMPARE(widget.sizeHint(), QSize(22, 22));

    moveMouse(&widget, QPoint(30, 30));
    const QImage unchecked = widget.grab().toImage();
    QSignalSpy triggered(&action, SIGNAL(triggered()));
    // Released outside the button, the click still counts.
    press(&widget, QPoint(10, 10));
    release(&widget, QPoint(40, 40));
    QCOMPARE(triggered.count(), 1);
    QVERIFY(action.isChecked());
    const QImage checked = widget.grab().toImage();
    QVERIFY(checked != unchecked);

    click(&widget, QPoint(10, 10));
    QVERIFY(!action.isChecked());
    moveMouse(&widget, QPoint(30, 30));
    QCOMPARE(widget.grab().toImage(), unchecked);
    action.setChecked(true); // checked by the host: the button follows
    QCOMPARE(widget.grab().toImage(), checked);
}

void tst_StatusBar::plainButtonTriggersOnRelease()
{
    RibbonSimpleAction action(QStringLiteral("Refresh"), nullptr);
    RibbonStatusBarWidget widget(action, nullptr);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    moveMouse(&widget, QPoint(30, 30));
    const QImage resting = widget.grab().toImage();

    QSignalSpy triggered(&action, SIGNAL(triggered()));
    press(&widget, QPoint(10, 10));
    QCOMPARE(triggered.count(), 0);
    QVERIFY(widget.grab().toImage() != resting);
    release(&widget, QPoint(10, 10));
    QCOMPARE(triggered.count(), 1);
    moveMouse(&widget, QPoint(30, 30));
    QCOMPARE(widget.grab().toImage(), resting);
}

void tst_StatusBar::widgetsByActionClass()
{
    RibbonMainWindow window;
    RibbonStatusBar bar(window);
    QCOMPARE(bar.mainWindow(), &window);
    QCOMPARE(bar.height(), 23);
    QSignalSpy changed(&bar, SIGNAL(statusBarChanged()));

    RibbonSimpleAction first(QStringLiteral("Read Mode"), nullptr);
    RibbonSimpleAction second(QStringLiteral("Web Layout"), nullptr);
    RibbonProgressAction progress(QStringLiteral("Saving"), nullptr);
    RibbonPercAction zoom(10, 400, 100, nullptr);
    RibbonCatMenuAction menu(QStringLiteral("Page 1"), RibbonCatMenuAction::MenuTypeButton,
                             RibbonCatMenuAction::MenuSizeMedium, RibbonCatMenuAction::PopupMenu, nullptr);
    QAction plain(QStringLiteral("Plain"), nullptr);
    bar.addActions({&first, &zoom, &second, &progress, &menu, &plain});
    QCOMPARE(changed.count(), 5);
    QVERIFY(!bar.widgetForAction(&plain));
    QVERIFY(qobject_cast<RibbonStatusBarWidget *>(bar.widgetForAction(&first)));
    QVERIFY(qobject_cast<RibbonProgressWidget *>(bar.widgetForAction(&progress)));
    QVERIFY(qobject_cast<RibbonPercWidget *>(bar.widgetForAction(&zoom)));
    QVERIFY(qobject_cast<RibbonCatMenuButton *>(bar.widgetForAction(&menu)));

    bar.setParent(nullptr);
    bar.resize(900, bar.height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    // Right area: the last added of progress and toggles first, the zoom at the end.
    const int x1 = bar.widgetForAction(&progress)->x();
    const int x2 = bar.widgetForAction(&second)->x();
    const int x3 = bar.widgetForAction(&first)->x();
    QVERIFY(x1 < x2 && x2 < x3 && x3 < bar.widgetForAction(&zoom)->x());
    QVERIFY(bar.widgetForAction(&menu)->geometry().right() < x1);
    QVERIFY(bar.extensionsWidth() >= 22 + 22 + 160 + 190);
    QCOMPARE(bar.popupLayoutWidth(), bar.loginLayoutWidth() + bar.widgetForAction(&menu)->width() + 10 + 5);

    // Removing: a plain action is silent; a widget goes with its action and comes back once.
    changed.clear();
    QPointer<QWidget> widget = bar.widgetForAction(&first);
    bar.removeAction(&plain);
    QCOMPARE(changed.count(), 0);
    bar.removeAction(&first);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!widget);
    QVERIFY(!bar.widgetForAction(&first));
    bar.addAction(&first);
    bar.addAction(&first);
    QCOMPARE(bar.findChildren<RibbonStatusBarWidget *>().size(), 2);
}

void tst_StatusBar::loginIcons()
{
    RibbonMainWindow window;
    RibbonStatusBar bar(window);
    bar.setParent(nullptr);
    bar.resize(600, bar.height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QCOMPARE(bar.loginLayoutWidth(), 0);

    QPointer<QLabel> icon = new QLabel;
    icon->setFixedSize(16, 16);
    bar.addLoginStatusIcon(icon);
    bar.addLoginStatusIcon(icon);
    bar.addLoginStatusIcon(nullptr);
    QCOMPARE(icon->parentWidget(), &bar);
    QTRY_COMPARE(bar.loginLayoutWidth(), 16);

    // A widget outside the login area is not the bar's to delete.
    QLabel stranger;
    bar.removeLoginStatusIcon(&stranger);
    bar.removeLoginStatusIcon(nullptr);
    QVERIFY(icon);
    bar.removeLoginStatusIcon(icon);
    QVERIFY(!icon);
    QTRY_COMPARE(bar.loginLayoutWidth(), 0);
}

void tst_StatusBar::lifetimes_data()
{
    QTest::addColumn<bool>("actionsFirst");
    QTest::newRow("actions before widgets") << true;
    QTest::newRow("widgets before actions") << false;
}

void tst_StatusBar::lifetimes()
{
    QFETCH(bool, actionsFirst);

    auto *window = new RibbonMainWindow;
    auto *bar = new RibbonStatusBar(*window);
    QSignalSpy changed(bar, SIGNAL(statusBarChanged()));
    auto *progress = new RibbonProgressAction(QStringLiteral("Saving"), nullptr);
    auto *zoom = new RibbonPercAction(10, 400, 100, nullptr);
    const QList<QAction *> actions = {
        new RibbonSimpleAction(QStringLiteral("Toggle"), nullptr), progress, zoom,
        new RibbonCatMenuAction(QStringLiteral("Pages"), RibbonCatMenuAction::MenuTypeButton,
                                RibbonCatMenuAction::MenuSizeSmall, RibbonCatMenuAction::PopupMenu, nullptr)};
    bar->addActions(actions);
    auto *extra = new RibbonPercWidget(*zoom, nullptr); // a second slider, outside the bar
    QPointer<QWidget> zoomWidget = bar->widgetForAction(zoom);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));

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

void tst_StatusBar::heldByMainWindow()
{
    RibbonMainWindow window;
    RibbonStatusBar &bar = window.ribbonStatusBar();
    QCOMPARE(bar.mainWindow(), &window);
    window.resize(700, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QSignalSpy changed(&bar, SIGNAL(statusBarChanged()));
    RibbonPercAction zoom(10, 400, 100, nullptr);
    bar.addAction(&zoom);
    QCOMPARE(changed.count(), 1);
    QWidget *slider = bar.widgetForAction(&zoom);
    QVERIFY(slider);
    // Laid out before the signal: the slider already sits at the right end.
    QCOMPARE(slider->size(), QSize(190, 20));
    QVERIFY(slider->geometry().right() > bar.width() - 20);
    QVERIFY(bar.mapTo(&window, QPoint(0, bar.height())).y() > window.height() - 10);
}

ZEL_TEST_MAIN(tst_StatusBar)
#include "tst_statusbar.moc"
