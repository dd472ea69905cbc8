#include "ZelTest.h"

#include "RibbonPlatform.h"
#include "RibbonStyle.h"
#include "RibbonWindow.h"

#include <QIcon>
#include <QImage>
#include <QMouseEvent>

#include <memory>

using namespace zel;

namespace {

// Sends mouse events with explicit global positions: while a window moves under the
// cursor, positions derived from the widget would drift with it.
struct Mouse
{
    QWidget *widget;
    Qt::MouseButtons held = Qt::NoButton;

    void send(QEvent::Type type, const QPoint &global, Qt::MouseButton button = Qt::LeftButton)
    {
        if (type == QEvent::MouseButtonRelease)
            held &= ~Qt::MouseButtons(button);
        else if (type != QEvent::MouseMove)
            held |= button;
        QMouseEvent event(type, widget->mapFromGlobal(global), global, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
    void press(const QPoint &at, Qt::MouseButton b = Qt::LeftButton) { send(QEvent::MouseButtonPress, at, b); }
    void release(const QPoint &at, Qt::MouseButton b = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, at, b);
    }
    void move(const QPoint &at) { send(QEvent::MouseMove, at, Qt::NoButton); }
    void click(const QPoint &at) { press(at); release(at); }
    void doubleClick(const QPoint &at) { click(at); send(QEvent::MouseButtonDblClick, at); release(at); }
    void drag(const QPoint &from, const QPoint &to) { press(from); move(to); release(to); }
};

const QRect kStartGeometry(100, 100, 300, 200);

// The system buttons of a window: minimise, maximise, close.
QRect buttonRect(const QWidget *w, int button) { return QRect(w->width() - 67 + 22 * button, 10, 16, 16); }

// The test screen's work area is (0, 0, 800 by 600) (checked in initTestCase). A
// maximised window lays its 7-pixel frame outside it, except at the bottom, where it
// stays one pixel inside.
const QRect kMaximizedGeometry(QPoint(-7, -7), QPoint(806, 598));

const RibbonStyle &style()
{
    return RibbonApplication::theApp().ribbonStyle();
}

} // namespace

class tst_RibbonWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void construction();
    void systemButtons_data();
    void systemButtons();
    void otherButtonsStayIdle();
    void borderResize_data();
    void borderResize();
    void dragWaitsForTheDragDistance_data();
    void dragWaitsForTheDragDistance();
    void lostReleaseEndsTheDrag();
    void resizeStepBelowMinimumIsDropped_data();
    void resizeStepBelowMinimumIsDropped();
    void maximized();
    void tinyWindowHasNoBorderAreas();
    void maskCutsCornersSymmetrically();
    void styleChangeResetsBackground();
    void titleAndIconPaintOnlyTheirPlace();
    void inactiveWindowUsesInactiveColours();
    void pressedButtonIsDrawnUntilRelease();

private:
    QPoint global(const QPoint &local) const { return m_window->mapToGlobal(local); }
    QImage grab(const QRect &rect = QRect(0, 0, -1, -1)) const { return m_window->grab(rect).toImage(); }

    std::unique_ptr<RibbonWindow> m_window;
};

void tst_RibbonWindow::initTestCase()
{
    QCOMPARE(RibbonPlatform::availableGeometry(), QRect(0, 0, 800, 600));
    QVERIFY(RibbonPlatform::isVistaOrLater());
}

void tst_RibbonWindow::init()
{
    m_window.reset(new RibbonWindow);
    m_window->setGeometry(kStartGeometry);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCOMPARE(m_window->geometry(), kStartGeometry);
}

void tst_RibbonWindow::cleanup()
{
    m_window.reset();
}

void tst_RibbonWindow::construction()
{
    const Qt::WindowFlags flags = Qt::FramelessWindowHint | Qt::WindowSystemMenuHint;
    QCOMPARE(m_window->windowFlags() & flags, flags);
    QVERIFY(m_window->hasMouseTracking());
    const int line = qMax(m_window->fontMetrics().height(), 16);
    QCOMPARE(m_window->captionHeight(), line + 17);
    QCOMPARE(m_window->contentsMargins(), QMargins(7, line + 17, 7, 7));
    QCOMPARE(m_window->captionRect(), QRect(29, 10, 300 - 96, line));
}

void tst_RibbonWindow::systemButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("releaseInside");

    QTest::newRow("minimise") << 0 << true;
    QTest::newRow("minimise, released outside") << 0 << false;
    QTest::newRow("maximise") << 1 << true;
    QTest::newRow("maximise, released outside") << 1 << false;
    QTest::newRow("close") << 2 << true;
    QTest::newRow("close, released outside") << 2 << false;
}

void tst_RibbonWindow::systemButtons()
{
    QFETCH(int, button);
    QFETCH(bool, releaseInside);

    const QPoint target = buttonRect(m_window.get(), button).center();
    Mouse mouse{m_window.get()};
    mouse.press(global(target));
    // Neither the press nor a release of another button acts.
    mouse.release(global(target), Qt::RightButton);
    QVERIFY(m_window->isVisible() && !m_window->isMinimized());
    QCOMPARE(m_window->geometry(), kStartGeometry);

    mouse.release(global(releaseInside ? target : QPoint(150, 120))); // outside: the client area
    QCOMPARE(m_window->isMinimized(), button == 0 && releaseInside);
    QCOMPARE(m_window->geometry(), button == 1 && releaseInside ? kMaximizedGeometry : kStartGeometry);
    QCOMPARE(m_window->isVisible(), !(button == 2 && releaseInside));
    QVERIFY(!m_window->isMaximized()); // the window state is left alone

    // The machine is back in its idle state: a release alone does nothing.
    if (m_window->isVisible() && !m_window->isMinimized()) {
        const QRect geometry = m_window->geometry();
        mouse.release(global(buttonRect(m_window.get(), 2).center()));
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_window->geometry(), geometry);
    }
}

void tst_RibbonWindow::otherButtonsStayIdle()
{
    // On the caption, the left border, the minimise and the close button.
    for (const QPoint &pressAt : {QPoint(100, 18), QPoint(3, 100), QPoint(241, 18), QPoint(285, 18)}) {
        for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            Mouse mouse{m_window.get()};
            const QPoint start = global(pressAt);
            mouse.press(start, button);
            mouse.move(start + QPoint(-30, 25));
            QCOMPARE(m_window->geometry(), kStartGeometry);
            // Had the press entered a button state, this left release would act.
            mouse.release(start, Qt::LeftButton);
            mouse.release(start, button);
            QVERIFY(m_window->isVisible() && !m_window->isMinimized());
            QCOMPARE(m_window->geometry(), kStartGeometry);
        }
    }
}

void tst_RibbonWindow::borderResize_data()
{
    QTest::addColumn<QPoint>("pressAt");
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QRect>("expected");

    const int hor = Qt::SizeHorCursor, ver = Qt::SizeVerCursor;
    const int fdiag = Qt::SizeFDiagCursor, bdiag = Qt::SizeBDiagCursor, arrow = Qt::ArrowCursor;
    QTest::newRow("top") << QPoint(150, 4) << QPoint(5, -10) << ver << QRect(100, 90, 300, 210);
    QTest::newRow("top-right") << QPoint(296, 2) << QPoint(10, -10) << bdiag << QRect(100, 90, 310, 210);
    QTest::newRow("right") << QPoint(297, 100) << QPoint(20, 5) << hor << QRect(100, 100, 320, 200);
    QTest::newRow("bottom-right") << QPoint(299, 199) << QPoint(10, 10) << fdiag << QRect(100, 100, 310, 210);
    QTest::newRow("bottom") << QPoint(150, 197) << QPoint(5, 10) << ver << QRect(100, 100, 300, 210);
    QTest::newRow("bottom-left") << QPoint(0, 195) << QPoint(-10, 10) << bdiag << QRect(90, 100, 310, 210);
    QTest::newRow("left") << QPoint(3, 100) << QPoint(-20, 5) << hor << QRect(80, 100, 320, 200);
    QTest::newRow("top-left") << QPoint(6, 9) << QPoint(-10, -10) << fdiag << QRect(90, 90, 310, 210);
    QTest::newRow("caption") << QPoint(130, 18) << QPoint(-45, 7) << arrow << kStartGeometry.translated(-45, 7);
    QTest::newRow("client area") << QPoint(150, 100) << QPoint(10, 10) << arrow << kStartGeometry;
    QTest::newRow("just inside the frame") << QPoint(7, 100) << QPoint(10, 10) << arrow << kStartGeometry;
}

void tst_RibbonWindow::borderResize()
{
    QFETCH(QPoint, pressAt);
    QFETCH(QPoint, delta);
    QFETCH(int, cursor);
    QFETCH(QRect, expected);

    m_window->setCursor(Qt::CrossCursor);
    Mouse mouse{m_window.get()};
    const QPoint start = global(pressAt);
    mouse.move(start);
    QCOMPARE(int(m_window->cursor().shape()), cursor);
    mouse.drag(start, start + delta);
    QCOMPARE(m_window->geometry(), expected);
    mouse.move(start + 2 * delta);
    QCOMPARE(m_window->geometry(), expected);
}

void tst_RibbonWindow::dragWaitsForTheDragDistance_data()
{
    QTest::addColumn<QPoint>("pressAt");
    QTest::addColumn<int>("edges");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<bool>("systemDrags");

    // The last step is (-45, 7) from the press.
    const QRect moved = kStartGeometry.translated(-45, 7);
    const QRect resized(55, 100, 345, 200);
    QTest::newRow("caption, by hand") << QPoint(130, 18) << 0 << moved << false;
    QTest::newRow("caption, by the window system") << QPoint(130, 18) << 0 << kStartGeometry << true;
    QTest::newRow("left edge, by hand") << QPoint(3, 100) << int(Qt::LeftEdge) << resized << false;
    QTest::newRow("left edge, by the window system") << QPoint(3, 100) << int(Qt::LeftEdge) << kStartGeometry << true;
    QTest::newRow("top-right corner, by the window system")
        << QPoint(296, 2) << int(Qt::TopEdge | Qt::RightEdge) << kStartGeometry << true;
    QTest::newRow("bottom-left corner, by the window system")
        << QPoint(0, 195) << int(Qt::BottomEdge | Qt::LeftEdge) << kStartGeometry << true;
}

void tst_RibbonWindow::dragWaitsForTheDragDistance()
{
    QFETCH(QPoint, pressAt);
    QFETCH(int, edges);
    QFETCH(QRect, expected);
    QFETCH(bool, systemDrags);

    std::unique_ptr<ZelAcceptingWindowSystem> system(systemDrags ? new ZelAcceptingWindowSystem : nullptr);
    const int distance = QApplication::startDragDistance();
    Mouse mouse{m_window.get()};
    const QPoint press = global(pressAt);
    mouse.press(press);
    mouse.move(press + QPoint(0, distance - 1));
    QCOMPARE(m_window->geometry(), kStartGeometry);
    if (system)
        QCOMPARE(system->requests.size(), 0);
    mouse.move(press + QPoint(-45, 7));
    QCOMPARE(m_window->geometry(), expected);
    mouse.release(press + QPoint(-45, 7));
    if (system) {
        QCOMPARE(system->requests.size(), 1);
        QCOMPARE(int(system->requests.first()), edges);
    }
}

void tst_RibbonWindow::lostReleaseEndsTheDrag()
{
    // A window system that took over a drag may keep its release; the first move without
    // the button ends the gesture.
    Mouse mouse{m_window.get()};
    const QPoint press = global(QPoint(130, 18));
    mouse.press(press);
    mouse.move(press + QPoint(30, 0));
    QCOMPARE(m_window->geometry(), kStartGeometry.translated(30, 0));
    mouse.held = Qt::NoButton;
    mouse.move(press + QPoint(60, 10));
    QCOMPARE(m_window->geometry(), kStartGeometry.translated(30, 0));
    // Idle again, so the minimise button answers a click.
    mouse.click(global(buttonRect(m_window.get(), 0).center()));
    QVERIFY(m_window->isMinimized());
}

void tst_RibbonWindow::resizeStepBelowMinimumIsDropped_data()
{
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QPoint>("pressAt");
    QTest::addColumn<QList<QPoint>>("steps");
    QTest::addColumn<QList<QRect>>("expected");

    QTest::newRow("minimum width, right edge")
        << QSize(250, 0) << QPoint(297, 100) << QList<QPoint>{{-30, 0}, {-60, 0}, {-40, 0}}
        << QList<QRect>{{100, 100, 270, 200}, {100, 100, 270, 200}, {100, 100, 260, 200}};
    QTest::newRow("minimum height, top edge")
        << QSize(0, 150) << QPoint(150, 4) << QList<QPoint>{{0, 40}, {0, 60}, {0, 50}}
        << QList<QRect>{{100, 140, 300, 160}, {100, 140, 300, 160}, {100, 150, 300, 150}};
    QTest::newRow("frame width, left edge")
        << QSize() << QPoint(3, 100) << QList<QPoint>{{287, 0}, {286, 0}}
        << QList<QRect>{kStartGeometry, {386, 100, 14, 200}};
    QTest::newRow("frame height, bottom edge")
        << QSize() << QPoint(150, 197) << QList<QPoint>{{0, -184}, {0, -183}, {0, -300}}
        << QList<QRect>{kStartGeometry, {100, 100, 300, 17}, {100, 100, 300, 17}};
    QTest::newRow("corner, one direction too small")
        << QSize(200, 100) << QPoint(299, 199) << QList<QPoint>{{-50, -50}, {-150, -10}}
        << QList<QRect>{{100, 100, 250, 150}, {100, 100, 250, 150}};
}

void tst_RibbonWindow::resizeStepBelowMinimumIsDropped()
{
    QFETCH(QSize, minimum);
    QFETCH(QPoint, pressAt);
    QFETCH(QList<QPoint>, steps);
    QFETCH(QList<QRect>, expected);

    if (minimum.isValid())
        m_window->setMinimumSize(minimum);
    QCOMPARE(m_window->geometry(), kStartGeometry);
    Mouse mouse{m_window.get()};
    const QPoint start = global(pressAt);
    mouse.press(start);
    for (int i = 0; i < steps.size(); ++i) {
        mouse.move(start + steps.at(i));
        QCOMPARE(m_window->geometry(), expected.at(i));
    }
    mouse.release(start + steps.last());
}

// A double click on the caption or the maximise button toggles; maximised, the window
// neither moves nor resizes and leaves the cursor alone over its frame.
void tst_RibbonWindow::maximized()
{
    Mouse mouse{m_window.get()};
    mouse.doubleClick(global(m_window->captionRect().center()));
    const QRect maximized = kMaximizedGeometry;
    QCOMPARE(m_window->geometry(), maximized);

    m_window->setCursor(Qt::CrossCursor);
    const QPoint leftEdge = maximized.topLeft() + QPoint(3, 100);
    mouse.move(leftEdge);
    QCOMPARE(m_window->cursor().shape(), Qt::CrossCursor);
    mouse.drag(leftEdge, leftEdge + QPoint(40, 0));
    const QPoint caption = global(m_window->captionRect().center());
    mouse.drag(caption, caption + QPoint(40, 40));
    QCOMPARE(m_window->geometry(), maximized);

    // A double-click elsewhere does not restore.
    mouse.doubleClick(global(QPoint(200, 200)));
    QCOMPARE(m_window->geometry(), maximized);
    mouse.doubleClick(global(m_window->captionRect().center()));
    QCOMPARE(m_window->geometry(), kStartGeometry);
    mouse.click(global(buttonRect(m_window.get(), 1).center()));
    QCOMPARE(m_window->geometry(), maximized);
    mouse.click(global(buttonRect(m_window.get(), 1).center()));
    QCOMPARE(m_window->geometry(), kStartGeometry);
}

void tst_RibbonWindow::tinyWindowHasNoBorderAreas()
{
    // Narrower or lower than two frames: no edge resizes, and the cursor stays an arrow.
    const QList<QPair<QSize, QPoint>> cases{{QSize(13, 100), QPoint(1, 50)}, {QSize(13, 100), QPoint(12, 99)},
                                            {QSize(100, 16), QPoint(50, 1)}, {QSize(100, 16), QPoint(50, 15)}};
    for (const auto &c : cases) {
        m_window->resize(c.first);
        QTRY_COMPARE(m_window->size(), c.first);
        const QRect geometry = m_window->geometry();
        m_window->setCursor(Qt::SizeAllCursor);
        Mouse mouse{m_window.get()};
        const QPoint start = global(c.second);
        mouse.move(start);
        QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
        mouse.drag(start, start + QPoint(30, 30));
        QCOMPARE(m_window->geometry(), geometry);
    }
}

void tst_RibbonWindow::maskCutsCornersSymmetrically()
{
    for (const QSize &size : {QSize(300, 200), QSize(120, 60)}) {
        m_window->resize(size);
        QTRY_COMPARE(m_window->size(), size);
        const QRegion mask = m_window->mask();
        const int w = size.width(), h = size.height();
        QCOMPARE(mask.boundingRect(), QRect(0, 0, w, h));
        for (const QPoint &kept : {QPoint(w / 2, 0), QPoint(0, h / 2), QPoint(w - 1, h / 2), QPoint(w / 2, h - 1),
                                   QPoint(4, 0), QPoint(2, 2)})
            QVERIFY(mask.contains(kept));

        // Diagonal steps, the same at every corner: (0,0) to (3,0), (1,1) and their mirrors.
        int cut = 0;
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 5; ++x) {
                const bool topLeft = mask.contains(QPoint(x, y));
                QCOMPARE(mask.contains(QPoint(w - 1 - x, y)), topLeft);
                QCOMPARE(mask.contains(QPoint(x, h - 1 - y)), topLeft);
                QCOMPARE(mask.contains(QPoint(w - 1 - x, h - 1 - y)), topLeft);
                QCOMPARE(mask.contains(QPoint(y, x)), topLeft);
                cut += !topLeft;
            }
        }
        QVERIFY(!mask.contains(QPoint(0, 0)) && !mask.contains(QPoint(1, 1)));
        QCOMPARE(cut, 8);
    }
}

void tst_RibbonWindow::styleChangeResetsBackground()
{
    QPalette pal = m_window->palette();
    pal.setColor(QPalette::Window, Qt::red);
    m_window->setPalette(pal);
    emit RibbonApplication::theApp().ribbonStyleChanged();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(m_window->palette().color(group, QPalette::Window), style().mainClientColor());
}

void tst_RibbonWindow::titleAndIconPaintOnlyTheirPlace()
{
    const QImage blank = grab();
    m_window->setWindowTitle(QStringLiteral("Find and replace"));
    const QImage titled = grab();
    const QRect caption = m_window->captionRect();
    QVERIFY(titled.copy(caption) != blank.copy(caption));
    QImage outside = titled, outsideBlank = blank;
    for (QImage *image : {&outside, &outsideBlank}) {
        for (int y = caption.top(); y <= caption.bottom(); ++y)
            for (int x = caption.left(); x <= caption.right(); ++x)
                image->setPixel(x, y, 0);
    }
    QCOMPARE(outside, outsideBlank);

    QPixmap iconPixmap(16, 16);
    iconPixmap.fill(Qt::magenta);
    m_window->setWindowIcon(QIcon(iconPixmap));
    const QImage withIcon = grab();
    const QRect iconRect(7, 10 + (qMax(m_window->fontMetrics().height(), 16) - 16) / 2, 16, 16);
    QCOMPARE(withIcon.pixelColor(iconRect.center()), QColor(Qt::magenta));
    QCOMPARE(withIcon.copy(caption), titled.copy(caption));

    // A title too long for the caption is elided, never drawn over the buttons.
    const QRect buttons(buttonRect(m_window.get(), 0).left(), 0, 67, 30);
    m_window->setWindowTitle(QString(200, QLatin1Char('W')));
    QCOMPARE(grab(buttons), titled.copy(buttons));
}

void tst_RibbonWindow::inactiveWindowUsesInactiveColours()
{
    m_window->setWindowTitle(QStringLiteral("Find and replace"));
    const QImage active = grab();
    QWidget other;
    other.setGeometry(500, 400, 100, 100);
    other.show();
    QApplication::setActiveWindow(&other);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!m_window->isActiveWindow());
    const QImage inactive = grab();

    const QRect caption = m_window->captionRect();
    QVERIFY(active.copy(caption) != inactive.copy(caption));
    if (style().mainBorder().isNull() || style().mainBorderCaption().isNull())
        QSKIP("The palette has no frame images in this build");
    const int c = m_window->captionHeight(), h = m_window->height();
    for (const QRect &frame : {QRect(0, c, 7, h - 7 - c), QRect(7, h - 7, m_window->width() - 14, 7)})
        QVERIFY(active.copy(frame) != inactive.copy(frame));
}

void tst_RibbonWindow::pressedButtonIsDrawnUntilRelease()
{
    if (style().sysBtnBack().isNull() || style().sysBtnCloseSmall().isNull())
        QSKIP("The palette has no system-button images in this build");

    const QRect close = buttonRect(m_window.get(), 2);
    const QPoint client = global(QPoint(150, 120));
    QCursor::setPos(client);
    const QImage normal = grab(close);
    QCursor::setPos(global(close.center()));
    const QImage hovered = grab(close);
    QVERIFY(hovered != normal);

    Mouse mouse{m_window.get()};
    mouse.press(global(close.center()));
    const QImage pressed = grab(close);
    QVERIFY(pressed != hovered && pressed != normal);

    // Released away from the button: nothing happens and the button is drawn unpressed.
    QCursor::setPos(client);
    mouse.release(client);
    QVERIFY(m_window->isVisible());
    QCOMPARE(grab(close), normal);
}

ZEL_TEST_MAIN(tst_RibbonWindow)
#include "tst_ribbonwindow.moc"
