#include "ZelTest.h"

#include "RibbonPlatform.h"
#include "RibbonWindow.h"
#include "RibbonWindowBorder.h"

#include <QMouseEvent>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <memory>

using namespace zel;

namespace {

const QRect kGeometry(100, 100, 300, 200);

QList<QWidget *> borderItems()
{
    QList<QWidget *> items;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    std::copy_if(topLevels.cbegin(), topLevels.cend(), std::back_inserter(items),
                 [](QWidget *w) { return w->objectName() == QLatin1String("BorderItem"); });
    return items;
}

// The eight item rectangles, in position order from the left side clockwise, around a
// window at kGeometry (100, 100, 300 by 200) with a contents margin of 0 or 7. The
// items lie s pixels deep outside the margin; with no margin the right and bottom ones
// start one pixel beyond the window.
QList<QRect> expectedItems(int margin)
{
    const int s = RibbonPlatform::sizingFrameThickness();
    if (margin == 0) {
        return {
            QRect(100 - s, 100, s, 201), QRect(100 - s, 100 - s, s, s), QRect(100, 100 - s, 301, s),
            QRect(400, 100 - s, s, s),   QRect(400, 100, s, 201),       QRect(400, 300, s, s),
            QRect(100, 300, 301, s),     QRect(100 - s, 300, s, s),
        };
    }
    Q_ASSERT(margin == 7);
    return {
        QRect(107 - s, 107, s, 187), QRect(107 - s, 107 - s, s, s), QRect(107, 107 - s, 287, s),
        QRect(393, 107 - s, s, s),   QRect(393, 107, s, 187),       QRect(393, 293, s, s),
        QRect(107, 293, 287, s),     QRect(107 - s, 293, s, s),
    };
}

// The same items after the window moved by offset and grew by growth.
QList<QRect> shiftedItems(QList<QRect> items, const QPoint &offset, const QSize &growth)
{
    const int dw = growth.width(), dh = growth.height();
    items[0].adjust(0, 0, 0, dh);   // left: taller
    items[2].adjust(0, 0, dw, 0);   // top: wider
    items[3].translate(dw, 0);      // top-right
    items[4].adjust(dw, 0, dw, dh); // right: along, taller
    items[5].translate(dw, dh);     // bottom-right
    items[6].adjust(0, dh, dw, dh); // bottom: down, wider
    items[7].translate(0, dh);      // bottom-left
    for (QRect &r : items)
        r.translate(offset);
    return items;
}

bool itemsPlacedAt(const QList<QRect> &expected)
{
    QList<QRect> actual;
    for (const QWidget *widget : borderItems())
        actual.append(widget->geometry());
    return actual.size() == 8
        && std::all_of(expected.cbegin(), expected.cend(),
                       [&actual](const QRect &r) { return actual.contains(r); });
}

// The item at a position (0 left, clockwise) around a window at kGeometry without margin.
QWidget *item(int position)
{
    const QList<QWidget *> items = borderItems();
    const QRect geometry = expectedItems(0).at(position);
    const auto it = std::find_if(items.cbegin(), items.cend(),
                                 [&geometry](QWidget *w) { return w->geometry() == geometry; });
    return it == items.cend() ? nullptr : *it;
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global, Qt::MouseButtons held = Qt::LeftButton)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, widget->mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

bool allVisible(bool visible)
{
    const QList<QWidget *> items = borderItems();
    return items.size() == 8
        && std::all_of(items.cbegin(), items.cend(),
                       [visible](QWidget *w) { return w->isVisible() == visible; });
}

// Which border items hid and which painted while it watched them.
class ItemEvents : public QObject
{
public:
    explicit ItemEvents(const QList<QWidget *> &items)
    {
        for (QWidget *item : items)
            item->installEventFilter(this);
    }
    void clear()
    {
        hidden.clear();
        painted.clear();
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide)
            hidden.insert(watched);
        else if (event->type() == QEvent::Paint)
            painted.insert(watched);
        return false;
    }

    QSet<QObject *> hidden;
    QSet<QObject *> painted;
};

int alphaAt(QWidget *widget, const QPoint &at)
{
    return qAlpha(widget->grab().toImage().pixel(at));
}

// The border's delayed updates still waiting to run.
QList<QTimer *> pendingUpdates(const QObject *border)
{
    QList<QTimer *> pending;
    if (!border)
        return pending;
    for (QTimer *timer : border->findChildren<QTimer *>(QStringLiteral("delayedBorderUpdate"))) {
        if (timer->isActive())
            pending.append(timer);
    }
    return pending;
}

// Runs the waiting delayed updates now instead of after their delay; returns how many
// were waiting.
int runDelayedUpdates(const QObject *border)
{
    const QList<QTimer *> pending = pendingUpdates(border);
    for (QTimer *timer : pending)
        timer->setInterval(0);
    if (!QTest::qWaitFor([border] { return pendingUpdates(border).isEmpty(); }))
        return -1;
    return pending.size();
}

} // namespace

class tst_RibbonWindowBorder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void placement_data();
    void placement();
    void dragKeepsOppositeEdgeAtMinimum_data();
    void dragKeepsOppositeEdgeAtMinimum();
    void dragStopsAtMaximum_data();
    void dragStopsAtMaximum();
    void dragWaitsForTheDragDistance_data();
    void dragWaitsForTheDragDistance();
    void fixedSizeWindowDoesNotResize();
    void visibilityFollowsShowAndHide();
    void minimisingHidesAndRestoringShows();
    void closedWindowKeepsItemsHidden();
    void delayedUpdateKeepsShownItemsUp_data();
    void delayedUpdateKeepsShownItemsUp();
    void maskAndActivation();
    void maskFollowsActivationWithoutGrab();
    void shadowFadesAwayFromWindow_data();
    void shadowFadesAwayFromWindow();
    void stayOnTopShadowNeedsActiveApplication();
    void windowTakesBorderAlong();
    void borderMayGoFirst();
    void itemsMayGoFirst();
    void ribbonWindowTakesBorderAlong();

private:
    void makeWindow(int margin = 0, bool stayOnTop = false, bool fixedSize = false);
    bool showWindow(bool activate = false);

    std::unique_ptr<QWidget> m_window;
    QPointer<RibbonWindowBorder> m_border;
};

void tst_RibbonWindowBorder::init()
{
    QVERIFY(borderItems().isEmpty());
}

void tst_RibbonWindowBorder::cleanup()
{
    m_window.reset();
    QVERIFY(!m_border);
    QVERIFY(borderItems().isEmpty());
}

void tst_RibbonWindowBorder::makeWindow(int margin, bool stayOnTop, bool fixedSize)
{
    m_window.reset(new QWidget(nullptr, Qt::FramelessWindowHint));
    m_window->setContentsMargins(margin, margin, margin, margin);
    if (fixedSize) // read when the border is made
        m_window->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_window->setGeometry(kGeometry);
    m_border = new RibbonWindowBorder(m_window.get(), stayOnTop);
    QVERIFY(allVisible(false));
}

bool tst_RibbonWindowBorder::showWindow(bool activate)
{
    m_window->show();
    if (!activate)
        return QTest::qWaitForWindowExposed(m_window.get());
    QApplication::setActiveWindow(m_window.get());
    return QTest::qWaitForWindowActive(m_window.get());
}

void tst_RibbonWindowBorder::placement_data()
{
    QTest::addColumn<int>("margin");
    QTest::newRow("no margin") << 0;
    QTest::newRow("margin 7") << 7;
}

void tst_RibbonWindowBorder::placement()
{
    QFETCH(int, margin);
    makeWindow(margin);
    const QList<QRect> placed = expectedItems(margin);
    QVERIFY(itemsPlacedAt(placed));
    QVERIFY(showWindow());
    const QRect moved(150, 80, 300, 200);
    m_window->move(moved.topLeft());
    QTRY_COMPARE(m_window->geometry(), moved);
    QVERIFY(itemsPlacedAt(shiftedItems(placed, QPoint(50, -20), QSize(0, 0))));
    const QRect resized(150, 80, 240, 310);
    m_window->resize(resized.size());
    QTRY_COMPARE(m_window->geometry(), resized);
    QVERIFY(itemsPlacedAt(shiftedItems(placed, QPoint(50, -20), QSize(-60, 110))));
}

void tst_RibbonWindowBorder::dragKeepsOppositeEdgeAtMinimum_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QPoint>("step");
    QTest::addColumn<QRect>("first");
    QTest::addColumn<QRect>("second");

    // Minimum 150 by 100 on a window at (100, 100) of 300 by 200: the first step stays
    // above the minimum, the second would go 50 below it.
    QTest::newRow("left") << 0 << QPoint(100, 0) << QRect(200, 100, 200, 200) << QRect(250, 100, 150, 200);
    QTest::newRow("top") << 2 << QPoint(0, 70) << QRect(100, 170, 300, 130) << QRect(100, 200, 300, 100);
    QTest::newRow("top-left") << 1 << QPoint(100, 70) << QRect(200, 170, 200, 130) << QRect(250, 200, 150, 100);
    QTest::newRow("bottom-left") << 7 << QPoint(100, -70) << QRect(200, 100, 200, 130)
                                 << QRect(250, 100, 150, 100);
    QTest::newRow("right") << 4 << QPoint(-100, 0) << QRect(100, 100, 200, 200) << QRect(100, 100, 150, 200);
}

void tst_RibbonWindowBorder::dragKeepsOppositeEdgeAtMinimum()
{
    QFETCH(int, position);
    QFETCH(QPoint, step);
    QFETCH(QRect, first);
    QFETCH(QRect, second);

    makeWindow();
    m_window->setMinimumSize(150, 100);
    QVERIFY(showWindow());
    QWidget *edge = item(position);
    QVERIFY(edge);
    QVERIFY(edge->testAttribute(Qt::WA_SetCursor));
    const QPoint start = edge->mapToGlobal(edge->rect().center());
    sendMouse(edge, QEvent::MouseButtonPress, start);
    sendMouse(edge, QEvent::MouseMove, start + step);
    QTRY_COMPARE(m_window->geometry(), first);
    sendMouse(edge, QEvent::MouseMove, start + 2 * step);
    QTRY_COMPARE(m_window->geometry(), second);

    // Once stopped by the minimum, the edge follows the cursor again straight away.
    sendMouse(edge, QEvent::MouseMove, start - step);
    QTRY_VERIFY(m_window->width() > kGeometry.width() || m_window->height() > kGeometry.height());
    sendMouse(edge, QEvent::MouseButtonRelease, start - step, Qt::NoButton);
    // A move without the button does nothing.
    const QRect released = m_window->geometry();
    sendMouse(edge, QEvent::MouseMove, start, Qt::NoButton);
    QCOMPARE(m_window->geometry(), released);
}

void tst_RibbonWindowBorder::dragStopsAtMaximum_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QPoint>("step");
    QTest::addColumn<QRect>("expected");

    // Maximum 350 by 250 on a window at (100, 100) of 300 by 200: each step asks for 50
    // more than the maximum, and the edge opposite the dragged one stays.
    QTest::newRow("left") << 0 << QPoint(-100, 0) << QRect(50, 100, 350, 200);
    QTest::newRow("top-left") << 1 << QPoint(-100, -100) << QRect(50, 50, 350, 250);
    QTest::newRow("top") << 2 << QPoint(0, -100) << QRect(100, 50, 300, 250);
    QTest::newRow("right") << 4 << QPoint(100, 0) << QRect(100, 100, 350, 200);
    QTest::newRow("bottom-right") << 5 << QPoint(100, 100) << QRect(100, 100, 350, 250);
    QTest::newRow("bottom-left") << 7 << QPoint(-100, 100) << QRect(50, 100, 350, 250);
}

void tst_RibbonWindowBorder::dragStopsAtMaximum()
{
    QFETCH(int, position);
    QFETCH(QPoint, step);
    QFETCH(QRect, expected);

    makeWindow();
    m_window->setMaximumSize(350, 250);
    QVERIFY(showWindow());
    QWidget *edge = item(position);
    QVERIFY(edge);
    const QPoint start = edge->mapToGlobal(edge->rect().center());
    sendMouse(edge, QEvent::MouseButtonPress, start);
    sendMouse(edge, QEvent::MouseMove, start + step);
    QTRY_COMPARE(m_window->geometry(), expected);
    sendMouse(edge, QEvent::MouseButtonRelease, start + step, Qt::NoButton);
}

void tst_RibbonWindowBorder::dragWaitsForTheDragDistance_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QRect>("expected");

    // A step of (20, 20) on a window at (100, 100) of 300 by 200.
    QTest::newRow("left") << 0 << QRect(120, 100, 280, 200);
    QTest::newRow("top-left") << 1 << QRect(120, 120, 280, 180);
    QTest::newRow("top") << 2 << QRect(100, 120, 300, 180);
    QTest::newRow("top-right") << 3 << QRect(100, 120, 320, 180);
    QTest::newRow("right") << 4 << QRect(100, 100, 320, 200);
    QTest::newRow("bottom-right") << 5 << QRect(100, 100, 320, 220);
    QTest::newRow("bottom") << 6 << QRect(100, 100, 300, 220);
    QTest::newRow("bottom-left") << 7 << QRect(120, 100, 280, 220);
}

void tst_RibbonWindowBorder::dragWaitsForTheDragDistance()
{
    QFETCH(int, position);
    QFETCH(QRect, expected);

    makeWindow();
    QVERIFY(showWindow());
    // A window system that would take the drag is not asked: it would start from the
    // pointer's last place over the window, not from the press on the strip.
    ZelAcceptingWindowSystem system;
    QWidget *edge = item(position);
    QVERIFY(edge);
    const QPoint start = edge->mapToGlobal(edge->rect().center());
    const int distance = QApplication::startDragDistance();
    sendMouse(edge, QEvent::MouseButtonPress, start);
    sendMouse(edge, QEvent::MouseMove, start + QPoint(distance - 1, 0));
    QCoreApplication::processEvents();
    QCOMPARE(m_window->geometry(), kGeometry);
    sendMouse(edge, QEvent::MouseMove, start + QPoint(20, 20));
    QTRY_COMPARE(m_window->geometry(), expected);
    sendMouse(edge, QEvent::MouseButtonRelease, start + QPoint(20, 20), Qt::NoButton);
    QCOMPARE(system.requests.size(), 0);
}

void tst_RibbonWindowBorder::fixedSizeWindowDoesNotResize()
{
    makeWindow(0, false, true);
    QVERIFY(showWindow());
    for (QWidget *edge : borderItems()) {
        QVERIFY(!edge->testAttribute(Qt::WA_SetCursor));
        const QPoint start = edge->mapToGlobal(edge->rect().center());
        sendMouse(edge, QEvent::MouseButtonPress, start);
        sendMouse(edge, QEvent::MouseMove, start + QPoint(-20, -20));
        sendMouse(edge, QEvent::MouseButtonRelease, start + QPoint(-20, -20), Qt::NoButton);
    }
    QCOMPARE(m_window->geometry(), kGeometry);
}

void tst_RibbonWindowBorder::visibilityFollowsShowAndHide()
{
    makeWindow();
    QVERIFY(showWindow());
    QVERIFY(allVisible(true));
    m_window->hide();
    QVERIFY(allVisible(false));
    m_window->show();
    QVERIFY(allVisible(true));
}

void tst_RibbonWindowBorder::minimisingHidesAndRestoringShows()
{
    makeWindow();
    QVERIFY(showWindow());
    m_window->showMinimized();
    QVERIFY(allVisible(false));
    // Qt sends the restored window a show event, which brings the items back at once;
    // the delayed update after the state change follows and must not hide them again.
    m_window->setWindowState(Qt::WindowNoState);
    QTRY_VERIFY(allVisible(true));
    QVERIFY(runDelayedUpdates(m_border) > 0);
    QVERIFY(allVisible(true));
    m_window->showMinimized();
    QCOMPARE(runDelayedUpdates(m_border), 0); // minimising hides at once, with no delay
    QVERIFY(allVisible(false));
    m_window->showNormal();
    QTRY_VERIFY(allVisible(true));
}

void tst_RibbonWindowBorder::closedWindowKeepsItemsHidden()
{
    makeWindow();
    QVERIFY(showWindow());
    // Closed, they stay hidden for good, the delayed updates after activation included.
    QVERIFY(m_window->close());
    QVERIFY(allVisible(false));
    QVERIFY(showWindow());
    QApplication::setActiveWindow(m_window.get());
    QTRY_VERIFY(m_window->isActiveWindow());
    QVERIFY(runDelayedUpdates(m_border) > 0);
    QVERIFY(allVisible(false));
}

void tst_RibbonWindowBorder::delayedUpdateKeepsShownItemsUp_data()
{
    QTest::addColumn<bool>("maximise");
    QTest::newRow("activation") << false;
    QTest::newRow("maximised") << true;
}

void tst_RibbonWindowBorder::delayedUpdateKeepsShownItemsUp()
{
    // The update after an activation or a change of state brings the items back in front
    // and repaints them (a maximised window's items draw nothing, whether or not they
    // moved), without hiding those that stay up: a hidden item is a window the window
    // manager lets go of and has to take in again.
    QFETCH(bool, maximise);
    makeWindow(0, true);
    QVERIFY(showWindow(true));
    runDelayedUpdates(m_border);
    ItemEvents events(borderItems());
    if (maximise) {
        m_window->showMaximized();
        QTRY_VERIFY(m_window->isMaximized());
    } else {
        QApplication::setActiveWindow(nullptr);
        QTRY_VERIFY(!QApplication::activeWindow());
        QApplication::setActiveWindow(m_window.get());
        QTRY_VERIFY(m_window->isActiveWindow());
    }
    QTRY_VERIFY(!pendingUpdates(m_border).isEmpty());
    // Only the update's own repaints count from here on.
    QTest::qWait(0);
    events.clear();
    QVERIFY(runDelayedUpdates(m_border) > 0);
    QVERIFY(allVisible(true));
    QVERIFY(events.hidden.isEmpty());
    QTRY_COMPARE(events.painted.size(), 8);
}

void tst_RibbonWindowBorder::maskAndActivation()
{
    makeWindow();
    QVERIFY(showWindow(true));
    QWidget *left = item(0);
    QVERIFY(left);
    left->grab();
    QVERIFY(left->mask().isEmpty());

    // Another window, active, overlaps the lower part of the left item. Its system
    // frame and caption count as part of it. Platforms that activate every window they
    // show may hand the activation on to a border item; what counts is that ours lost it.
    const int s = RibbonPlatform::sizingFrameThickness();
    QWidget other;
    other.setGeometry(50, 300, 100, 100);
    other.show();
    QApplication::setActiveWindow(&other);
    QTRY_VERIFY(!m_window->isActiveWindow());
    QVERIFY(alphaAt(left, QPoint(s - 1, 10)) > 0);
    const QRegion mask = left->mask();
    const int cutFrom = 300 - (RibbonPlatform::captionHeight() + s) - left->y();
    QVERIFY(mask.contains(QPoint(s - 1, cutFrom - 1)));
    QVERIFY(!mask.contains(QPoint(s - 1, cutFrom)));
    QVERIFY(!mask.contains(QPoint(s - 1, left->height() - 1)));

    // Wholly under the other window: no mask and nothing drawn.
    other.setGeometry(0, 60, 300, 400);
    QTRY_COMPARE(other.geometry(), QRect(0, 60, 300, 400));
    const QImage hidden = left->grab().toImage();
    QVERIFY(left->mask().isEmpty());
    QCOMPARE(qAlpha(hidden.pixel(s - 1, 10)), 0);
    QCOMPARE(qAlpha(hidden.pixel(s - 1, left->height() / 2)), 0);

    // A click on an item activates our window without resizing it: the whole item again.
    const QPoint at = left->mapToGlobal(left->rect().center());
    sendMouse(left, QEvent::MouseButtonPress, at);
    sendMouse(left, QEvent::MouseButtonRelease, at, Qt::NoButton);
    QCOMPARE(QApplication::activeWindow(), m_window.get());
    QCOMPARE(m_window->geometry(), kGeometry);
    left->grab();
    QVERIFY(left->mask().isEmpty());
}

void tst_RibbonWindowBorder::maskFollowsActivationWithoutGrab()
{
    // The items repaint, and so recompute their mask, by themselves when the activation
    // goes elsewhere; a window that is not a widget covers them as much as one that is.
    makeWindow();
    QVERIFY(showWindow(true));
    QWidget *left = item(0);
    QVERIFY(left);
    QTRY_VERIFY(left->mask().isEmpty());

    const int s = RibbonPlatform::sizingFrameThickness();
    const int cutFrom = 300 - (RibbonPlatform::captionHeight() + s) - left->y();
    QWindow other;
    other.setGeometry(50, 300, 100, 100);
    other.show();
    other.requestActivate();
    QTRY_VERIFY(!m_window->isActiveWindow());
    QTRY_VERIFY(left->mask().contains(QPoint(s - 1, cutFrom - 1)));
    QVERIFY(!left->mask().contains(QPoint(s - 1, cutFrom)));
    QVERIFY(!left->mask().contains(QPoint(s - 1, left->height() - 1)));
}

void tst_RibbonWindowBorder::shadowFadesAwayFromWindow_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QPoint>("nearest");
    QTest::addColumn<QPoint>("away");

    const int s = RibbonPlatform::sizingFrameThickness();
    QTest::newRow("left") << 0 << QPoint(s - 1, 20) << QPoint(-1, 0);
    QTest::newRow("top") << 2 << QPoint(20, s - 1) << QPoint(0, -1);
    QTest::newRow("right") << 4 << QPoint(0, 20) << QPoint(1, 0);
    QTest::newRow("bottom") << 6 << QPoint(20, 0) << QPoint(0, 1);
    QTest::newRow("top-left corner") << 1 << QPoint(s - 1, s - 1) << QPoint(-1, -1);
    QTest::newRow("bottom-right corner") << 5 << QPoint(0, 0) << QPoint(1, 1);
}

void tst_RibbonWindowBorder::shadowFadesAwayFromWindow()
{
    QFETCH(int, position);
    QFETCH(QPoint, nearest);
    QFETCH(QPoint, away);

    makeWindow();
    QVERIFY(showWindow(true));
    QWidget *edge = item(position);
    QVERIFY(edge);
    const QImage image = edge->grab().toImage();
    const int alphas[] = {128, 100, 70, 40, 20, 10, 3};
    const int s = RibbonPlatform::sizingFrameThickness();
    for (int i = 0; i < qMin(s, 7); ++i) {
        const QRgb pixel = image.pixel(nearest + i * away);
        QCOMPARE(qAlpha(pixel), alphas[i]);
        QCOMPARE(qRed(pixel), qBlue(pixel));
    }
    if (position == 1 || position == 5) {
        // The far row of a corner item belongs to the outermost L.
        const int farY = nearest.y() + (s - 1) * away.y();
        QCOMPARE(qAlpha(image.pixel(nearest.x(), farY)), alphas[s - 1]);
    }
}

void tst_RibbonWindowBorder::stayOnTopShadowNeedsActiveApplication()
{
    makeWindow(0, true);
    for (const QWidget *edge : borderItems())
        QVERIFY(edge->windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(showWindow(true));
    QWidget *left = item(0);
    QVERIFY(left);
    const int s = RibbonPlatform::sizingFrameThickness();
    QCOMPARE(alphaAt(left, QPoint(s - 1, 10)), 128);
    QApplication::setActiveWindow(nullptr);
    QTRY_VERIFY(!QApplication::activeWindow());
    QCOMPARE(alphaAt(left, QPoint(s - 1, 10)), 0);
}

void tst_RibbonWindowBorder::windowTakesBorderAlong()
{
    // The window takes its border and the items along; pending delayed updates die with them.
    makeWindow();
    QVERIFY(showWindow(true));
    QList<QPointer<QWidget>> items;
    for (QWidget *edge : borderItems())
        items.append(edge);
    QList<QPointer<QTimer>> pending;
    for (QTimer *timer : pendingUpdates(m_border))
        pending.append(timer);
    QVERIFY(!pending.isEmpty());
    m_window.reset();
    QVERIFY(!m_border);
    QVERIFY(std::none_of(items.cbegin(), items.cend(), [](const QPointer<QWidget> &p) { return p; }));
    QVERIFY(std::none_of(pending.cbegin(), pending.cend(), [](const QPointer<QTimer> &p) { return p; }));
}

void tst_RibbonWindowBorder::borderMayGoFirst()
{
    // The window lives on undecorated.
    makeWindow();
    QVERIFY(showWindow());
    delete m_border;
    QVERIFY(borderItems().isEmpty());
    m_window->move(10, 10);
    m_window->close();
}

void tst_RibbonWindowBorder::itemsMayGoFirst()
{
    // A host tearing down every top-level widget may delete the items before the border.
    makeWindow();
    QVERIFY(showWindow());
    qDeleteAll(borderItems());
    m_window->move(20, 20);
    m_window->hide();
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QTRY_VERIFY(m_window->isActiveWindow());
    QVERIFY(runDelayedUpdates(m_border) > 0);
    QVERIFY(borderItems().isEmpty());
}

void tst_RibbonWindowBorder::ribbonWindowTakesBorderAlong()
{
    // A RibbonWindow decorated the same way goes down cleanly with its border.
    auto *ribbonWindow = new RibbonWindow;
    new RibbonWindowBorder(ribbonWindow, true);
    ribbonWindow->setGeometry(kGeometry);
    ribbonWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(ribbonWindow));
    QCOMPARE(borderItems().size(), 8);
    delete ribbonWindow;
    QVERIFY(borderItems().isEmpty());
}

ZEL_TEST_MAIN(tst_RibbonWindowBorder)
#include "tst_ribbonwindowborder.moc"
