#include "RibbonPlatform.h"

#include <QGuiApplication>
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
