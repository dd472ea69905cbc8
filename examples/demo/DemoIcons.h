#pragma once

// Pieces shared by the demo screens: icons drawn in code and the panel backdrop that
// categories shown outside a ribbon bar sit on.

#include <QChar>
#include <QColor>
#include <QIcon>
#include <QWidget>

#include <functional>

class QPainter;

// The tints of the demo's generated icons.
namespace DemoColors {
const QColor Blue(0x2b, 0x6c, 0xc4);
const QColor Green(0x3a, 0x9a, 0x4a);
const QColor Orange(0xe0, 0x7a, 0x1f);
const QColor Red(0xc8, 0x3a, 0x3a);
const QColor Violet(0x7a, 0x4f, 0xb5);
const QColor Teal(0x1f, 0x96, 0x9a);
const QColor Ink(0x33, 0x33, 0x33);
} // namespace DemoColors

// Plain shapes for commands whose icon only has to be recognisable.
enum class DemoShape { Disc, Square, Triangle, Page, Bars, Letter, Diamond, Ring, Frame };

// Builds the 16- and 32-pixel versions of an icon drawn on a 32-unit grid, so that
// both match. `paint` gets an antialiased painter scaled to the grid and the pixel
// extent being drawn.
QIcon gridIcon(const std::function<void(QPainter &, int extent)> &paint);

// The same with `color` as brush and an outline in `color.darker(outlineDarkness)`,
// thicker at 16 pixels so that it stays visible.
QIcon gridIcon(const QColor &color, int outlineDarkness, const std::function<void(QPainter &)> &paint);

// One of the plain shapes; `letter` is the character drawn by DemoShape::Letter.
QIcon shapeIcon(DemoShape shape, const QColor &color, QChar letter = QChar());

// The panel background of a ribbon tab.
class DemoPanelBack : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override;
};
