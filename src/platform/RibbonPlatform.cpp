#include "RibbonPlatform.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>
#include <QWindow>
#include <QtMath>

namespace zel {

namespace {

// Native metrics of a sizing frame and a caption at 96 DPI; scaled with the screen.
constexpr int kFrameAt96Dpi = 4;
constexpr int kCaptionAt96Dpi = 23;

int scaledByScreen(int valueAt96Dpi)
{
    int dpiY = 96;
    RibbonPlatform::screenDpi(nullptr, &dpiY);
    return int(valueAt96Dpi * dpiY / 96.0 + 0.5);
}

RibbonPlatform::SystemDragHandler &systemDragHandler()
{
    static RibbonPlatform::SystemDragHandler handler;
    return handler;
}

// Keeps the cursor position through a run of paint events. While it holds a position it
// watches the application's events and forgets the position at the first event that is
// not part of painting: the cursor's movements reach the application as events, so a
// paint pass sees where the cursor was when it began, as a run of queries would, and
// whatever comes after it asks again.
class CursorCache : public QObject
{
public:
    QPoint pos()
    {
        if (!m_valid) {
            m_pos = QCursor::pos();
            m_valid = true;
            QCoreApplication::instance()->installEventFilter(this);
        }
        return m_pos;
    }

    void forget()
    {
        m_valid = false;
        QCoreApplication::instance()->removeEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Paint:
        case QEvent::UpdateRequest:
        case QEvent::UpdateLater:
            break;
        default:
            forget();
            break;
        }
        return false;
    }

    // The application's cache, made on first use and owned by the application.
    static CursorCache *instance()
    {
        static QPointer<CursorCache> cache;
        if (!cache) {
            cache = new CursorCache;
            cache->setParent(QCoreApplication::instance());
        }
        return cache;
    }

private:
    QPoint m_pos;
    bool m_valid = false;
};

// Under X11 every QCursor::pos() is a round trip to the server; elsewhere the platform
// knows the position (or, offscreen, is the position) and answering from a cache would
// only risk missing a QCursor::setPos().
bool cursorQueryIsRoundTrip()
{
    static const bool roundTrip = QGuiApplication::platformName() == QLatin1String("xcb");
    return roundTrip;
}

// Set by tests: 1 keeps the cursor position, 0 always asks, -1 leaves it to the platform.
int &cursorCachingOverride()
{
    static int keep = -1;
    return keep;
}

} // namespace

bool RibbonPlatform::screenDpi(int *dpiX, int *dpiY)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const int x = screen ? qRound(screen->logicalDotsPerInchX()) : 96;
    const int y = screen ? qRound(screen->logicalDotsPerInchY()) : 96;
    if (dpiX)
        *dpiX = x;
    if (dpiY)
        *dpiY = y;
    return screen != nullptr;
}

int RibbonPlatform::sizingFrameThickness()
{
    return scaledByScreen(kFrameAt96Dpi);
}

int RibbonPlatform::captionHeight()
{
    return scaledByScreen(kCaptionAt96Dpi);
}

QRect RibbonPlatform::availableGeometry()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

bool RibbonPlatform::isVistaOrLater()
{
    return true;
}

bool RibbonPlatform::usesVistaLook()
{
    return true;
}

QStyle *RibbonPlatform::createBaseStyle(const QString &name)
{
    if (QStyle *style = QStyleFactory::create(name))
        return style;
    return QStyleFactory::create(QStringLiteral("Fusion"));
}

QRect RibbonPlatform::availableGeometry(const QWidget *widget)
{
    const QScreen *screen = widget ? widget->screen() : nullptr;
    if (!screen)
        return availableGeometry();
    return screen->availableGeometry();
}

QRect RibbonPlatform::desktopGeometry()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->virtualGeometry() : QRect();
}

void RibbonPlatform::frameCell(const QRect &frame, const QPoint &globalPos, FrameRow *row, FrameColumn *column)
{
    const int f = sizingFrameThickness();
    const int c = captionHeight();
    const int x = globalPos.x();
    const int y = globalPos.y();
    // Native frame rectangles end one past their last pixel.
    const int left = frame.left();
    const int top = frame.top();
    const int right = frame.left() + frame.width();
    const int bottom = frame.top() + frame.height();

    FrameRow r = FrameMiddle;
    if (y >= top && y < top + f + c) {
        const bool overMenuButton = x > left + f && x <= left + 30 && y > top + f;
        r = overMenuButton ? FrameMiddle : FrameTop;
    } else if (y >= top + f + c) {
        r = (y >= bottom - f && y < bottom) ? FrameBottom : FrameMiddle;
    }

    FrameColumn col = FrameCentre;
    if (x >= left && x < left + f)
        col = FrameLeft;
    else if (x >= right - f && x < right)
        col = FrameRight;
    if (col != FrameCentre && y > top + f && y < top + f + c)
        r = FrameMiddle;

    if (row)
        *row = r;
    if (column)
        *column = col;
}

bool RibbonPlatform::startSystemMove(QWidget *window)
{
    if (systemDragHandler())
        return systemDragHandler()(window, Qt::Edges());
    QWindow *handle = window ? window->windowHandle() : nullptr;
    return handle && handle->startSystemMove();
}

bool RibbonPlatform::startSystemResize(QWidget *window, Qt::Edges edges)
{
    if (systemDragHandler())
        return systemDragHandler()(window, edges);
    QWindow *handle = window ? window->windowHandle() : nullptr;
    return handle && handle->startSystemResize(edges);
}

void RibbonPlatform::setSystemDragHandler(const SystemDragHandler &handler)
{
    systemDragHandler() = handler;
}

QPoint RibbonPlatform::cursorPos()
{
    const int keep = cursorCachingOverride();
    if (!QCoreApplication::instance() || keep == 0 || (keep < 0 && !cursorQueryIsRoundTrip()))
        return QCursor::pos();
    return CursorCache::instance()->pos();
}

void RibbonPlatform::setCursorPosCaching(bool keep)
{
    cursorCachingOverride() = keep ? 1 : 0;
    if (QCoreApplication::instance())
        CursorCache::instance()->forget();
}

void RibbonPlatform::resetCursorPosCaching()
{
    cursorCachingOverride() = -1;
    if (QCoreApplication::instance())
        CursorCache::instance()->forget();
}

void RibbonPlatform::bringToFront(QWidget *window)
{
    if (!window)
        return;
    window->raise();
    window->activateWindow();
}

bool RibbonPlatform::autoHideTaskBar(Qt::Edge *edge)
{
    // Qt offers no portable way to ask about task-bar behaviour; answer that it stays.
    if (edge)
        *edge = Qt::BottomEdge;
    return false;
}

void RibbonPlatform::revealTaskBar()
{
}

} // namespace zel
