#include "RibbonMainTabBarStyle.h"

namespace zel {

RibbonMainTabBarStyle::RibbonMainTabBarStyle(QStyle *baseStyle)
    : QProxyStyle(baseStyle)
{
}

RibbonMainTabBarStyle::~RibbonMainTabBarStyle() = default;

} // namespace zel
