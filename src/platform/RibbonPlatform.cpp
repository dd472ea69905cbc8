#include "RibbonPlatform.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
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

} // namespace zel
