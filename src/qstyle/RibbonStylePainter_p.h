#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>

class QPainter;
class QStyleOption;

namespace zel {

class RibbonStyle;

// Painting helpers shared by the library's QStyle classes.
namespace stylepainter {

// The palette of the running RibbonApplication, or nullptr when the application object
// is not one (a style created by a host that only borrows it); callers then leave the
// painting to the base style.
const RibbonStyle *palette();

// Draws row `row` of a state sheet (equal rows rowHeight pixels high, stacked
// vertically) as a nine-slice with `border`-pixel corners onto target. A row past the
// last one falls back to the last row; a sheet shorter than one row, or a rowHeight
// of 0, is used whole.
// Returns false, drawing nothing, when the sheet is null.
bool drawStateRow(QPainter *painter, const QRect &target, const QPixmap &sheet, int rowHeight, int row,
                  int border = 2);


// A flat panel: fill, then a one-pixel outline inside rect (an invalid colour skips the part).
void drawFlatPanel(QPainter *painter, const QRect &rect, const QColor &fill, const QColor &outline);

// preferred when it stands out from background, else fallback: an accent that is also
// a dark palette's frame colour would vanish on its dark fields.
QColor legibleOn(const QColor &background, const QColor &preferred, const QColor &fallback);

// A small filled arrow (Qt::UpArrow .. Qt::RightArrow) centred in rect, width x height
// pixels for up/down (height x width for left/right), in the painter's current brush.
void drawArrow(QPainter *painter, const QRect &rect, Qt::ArrowType type, int width = 7, int height = 4);

// The tab background used by both tab-bar styles, from style's tabBarTabShape. Returns
// false when the tab is not a top tab the helper knows how to draw.
bool drawTabShape(QPainter *painter, const QStyleOption *option, const RibbonStyle &style);

} // namespace stylepainter

} // namespace zel
