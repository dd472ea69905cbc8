#pragma once

// What the in-ribbon gallery's helpers paint with: the fixed colours of its frame and
// buttons (the resting fill is the palette's mainMenuBgColor) and their small arrow.
// Not installed.

#include <QColor>
#include <QPainter>
#include <QWidget>

namespace zel {
namespace OfficeGallery {

// The frame around the gallery and its buttons, and the glyph of a disabled button.
inline QColor frameColor() { return QColor(0xaf, 0xaf, 0xaf); }
inline QColor hoverFill() { return QColor(0xd5, 0xe1, 0xf2); }
inline QColor pressedFill() { return QColor(0xa3, 0xbd, 0xe2); }
inline QColor glyphColor(bool enabled) { return enabled ? QColor(0x5f, 0x5f, 0x5f) : frameColor(); }

// The 7-pixel arrow of a button of widget, centred across it, anchored on row: an
// optional bar along the row, and a filled triangle pointing up or down whose rows lie
// 3 to 5 pixels beyond the row in the arrow's direction. In the glyph colour of the
// widget's enabled state.
inline void drawArrow(QPainter &painter, const QWidget &widget, int row, bool up, bool bar)
{
    const int glyphWidth = 7;
    const int left = (widget.width() - glyphWidth) / 2;
    const int right = left + glyphWidth - 1;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(glyphColor(widget.isEnabled()));
    if (bar)
        painter.drawLine(left, row, right, row);
    // Rows of 5, 3 and 1 pixels narrowing towards the tip.
    const int direction = up ? -1 : 1;
    for (int step = 0; step < 3; ++step) {
        const int y = row + direction * (3 + step);
        painter.drawLine(left + 1 + step, y, right - 1 - step, y);
    }
    painter.restore();
}

} // namespace OfficeGallery
} // namespace zel
