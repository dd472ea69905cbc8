#include "RibbonQStyle.h"

namespace zel {

RibbonQStyle::RibbonQStyle(QStyle *baseStyle)
    : QProxyStyle(baseStyle)
{
}

RibbonQStyle::~RibbonQStyle() = default;

} // namespace zel
