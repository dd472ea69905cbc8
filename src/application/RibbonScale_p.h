#pragma once

#include "RibbonApplication.h"

namespace zel {

// Scales a vertical metric by the screen's vertical resolution factor: the integer part
// of v * fy + 0.5. Heights and vertical insets scale; horizontal metrics stay fixed.
inline int scaled(double v)
{
    return int(v * RibbonApplication::theApp().dpiFactor().second + 0.5);
}

// The same for a horizontal metric, by the horizontal factor. Only widths that hold text
// grow with the resolution, since the text they hold does; the others stay fixed.
inline int scaledX(double v)
{
    return int(v * RibbonApplication::theApp().dpiFactor().first + 0.5);
}

} // namespace zel
