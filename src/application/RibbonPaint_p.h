#pragma once

// Painting helpers shared by the ribbon's widgets: slicing palette images and the
// colours and icon modes that follow a widget's enabled state. Not installed.

#include "RibbonAutotestExport_p.h"

#include <QColor>
#include <QIcon>
#include <QMargins>
#include <QPixmap>
#include <QRect>
#include <QVector>

class QAbstractButton;
class QPaintDevice;
class QPainter;

namespace zel {

// A source rectangle of an image cut by a border into up to nine pieces and mapped onto
// a target rectangle: corners keep their size, edges stretch along their side, the
// centre stretches both ways. A three-slice is a border with zero top and bottom.
// The piece geometry is kept between paints; set() recomputes only when an input
// changed, so widgets may call it from paintEvent.
class RibbonSlices
{
public:
    void set(const QRect &target, const QRect &source, const QMargins &border);
    // Draws the pieces with the source moved down by sourceOffsetY, which selects a
    // row of a state sheet without recomputing the geometry.
    void draw(QPainter &painter, const QPixmap &pixmap, int sourceOffsetY = 0) const;

private:
    struct Piece
    {
        QRect target;
        QRect source;
    };
    // On the heap, and only once drawn: most buttons never draw their state background,
    // and a piece table kept inline would weigh on every one of them.
    QVector<Piece> m_pieces;
    QRect m_target;
    QRect m_source;
    QMargins m_border;
};

namespace RibbonPaint {

// Palette images may carry a device pixel ratio (their "@2x" drawing on a high-resolution
// screen). Every source rectangle, row and cap the painting code names is in the image's
// logical pixels, the pixels of its 1x drawing; these two translate.

// The size of pixmap in logical pixels.
ZELRIBBON_AUTOTEST_EXPORT QSize logicalSize(const QPixmap &pixmap);

// Draws the part source (logical pixels of pixmap) of pixmap onto target.
ZELRIBBON_AUTOTEST_EXPORT void drawPart(QPainter &painter, const QRect &target, const QPixmap &pixmap,
                                        const QRect &source);

// Loads the palette image at path: where the application has a device pixel ratio above
// 1, its "name@2x" drawing when there is one (a null pixmap when path is missing).
QPixmap loadImage(const QString &path);

// Whether loadImage() looks for "name@2x" drawings now.
bool wantsHighResolutionImages();

// loadImage() as it was when wantsHighResolutionImages() gave highResolution.
QPixmap loadImage(const QString &path, bool highResolution);

// Draws a three-slice (caps of leftCap and rightCap pixels) of source onto target.
// For one-off drawing; widgets that paint the same slices repeatedly keep a RibbonSlices.
void drawThreeSlice(QPainter &painter, const QRect &target, const QPixmap &pixmap,
                    const QRect &source, int leftCap, int rightCap);

// The pen colour of a control's text and symbols by its enabled state.
QColor textColor(bool enabled);

// The fill of a pane that the default look paints in a tone of its own, not a palette
// entry (the white options pages, the view popup): that tone under the default
// palette, the palette's menu background under any other, so that a dark look is dark.
QColor paneFill(const QColor &defaultLookFill);

// The drop-down mark of a button, a 5 x 3 triangle with its top-left corner at (x, y).
void drawDropDownArrow(QPainter &painter, int x, int y, const QColor &color);

// Background of a one-row drop-down button: the caption part (horizontalMenuButtonCaption
// without its right cap) over all but the last 12 pixels, joined to the arrow part
// (horizontalMenuButtonMenu) there; rows by RibbonImageRows::MenuCaption and MenuArrow,
// a part whose row is NoRow is not drawn.
void drawDropDownRow(QPainter &painter, int width, int height, int captionRow, int arrowRow);

// Height of a row in the small state sheets (normalButtonSmall, paletteItemSmall and
// the strip segments).
const int SmallRowHeight = 22;

// Row of normalButtonSmall for a small tool button's state, -1 for no background.
int smallButtonRow(const QAbstractButton &button);

// Paints a small tool button's state background (its normalButtonSmall row, nothing when
// the state has none) over the whole button; slices keeps the geometry between paints.
void drawSmallButtonBackground(QPainter &painter, const QAbstractButton &button,
                               RibbonSlices &slices);

// A pixmap of at most extent x extent logical pixels in the mode of the enabled state,
// drawn by the icon at the device pixel ratio of device (the widget or image painted on),
// so a high-resolution screen gets the icon's finer drawing, not a small one scaled up.
ZELRIBBON_AUTOTEST_EXPORT QPixmap iconPixmap(const QIcon &icon, int extent, bool enabled,
                                             const QPaintDevice &device);

// Draws pixmap at its own size centred in target (nothing for a null pixmap).
void drawCentred(QPainter &painter, const QRect &target, const QPixmap &pixmap);

} // namespace RibbonPaint

} // namespace zel
