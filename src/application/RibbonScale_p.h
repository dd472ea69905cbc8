#pragma once

#include "RibbonApplication.h"

#include <QFontMetrics>
#include <QWidget>
#include <algorithm>

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

// The height of a control that holds one line of text: its design height v at the screen's
// resolution, or more when a large font's line, between margin pixels above and below,
// would not fit in that. The last pixel of a line's descent is left out: glyphs hardly
// reach it, and so a 12-point desktop font at 96 DPI still fits the design heights.
inline int textFitHeight(double v, const QFontMetrics &fm, int margin)
{
    return std::max(scaled(v), fm.height() - 1 + 2 * margin);
}

// The rows of a category and the two-line captions of large buttons are designed for
// text of at most 9 points (their heights follow the resolution, as points do). A widget
// built on them draws in the inherited font capped at that size; a larger desktop font
// would push a second caption line out of the widget. Smaller fonts are kept.
inline void capToDesignFont(QWidget &widget)
{
    const qreal designPoints = 9;
    if (widget.font().pointSizeF() > designPoints) {
        QFont capped; // only the size is set, the rest stays inherited
        capped.setPointSizeF(designPoints);
        widget.setFont(capped);
    }
}

// A one-row combo box of a group: 22 pixels at 96 DPI, its text inside a frame of 2.
inline int comboRowHeight(const QFontMetrics &fm)
{
    return textFitHeight(22, fm, 2);
}

} // namespace zel
