#include "RibbonStyles.h"

#include "RibbonMainTabBarStyle.h"
#include "RibbonPlatform.h"
#include "RibbonQStyle.h"

#include <QApplication>

namespace zel {

namespace {

QString baseStyleName(bool vista)
{
    return vista ? QStringLiteral("windowsvista") : QStringLiteral("windowsxp");
}

} // namespace

QStyle *createStyle(Style style)
{
    return new RibbonQStyle(RibbonPlatform::createBaseStyle(baseStyleName(style == StyleWindowsVista)));
}

QStyle *createStyle(ControlStyle style)
{
    switch (style) {
    case ControlStyleMainTabBar:
        return new RibbonMainTabBarStyle(
            RibbonPlatform::createBaseStyle(baseStyleName(defaultStyle() == StyleWindowsVista)));
    }
    return nullptr;
}

Style defaultStyle()
{
    return RibbonPlatform::usesVistaLook() ? StyleWindowsVista : StyleWindowsXP;
}

Style currentStyle()
{
    return qobject_cast<RibbonQStyle *>(QApplication::style()) ? StyleWindowsXP : StyleForeign;
}

} // namespace zel
