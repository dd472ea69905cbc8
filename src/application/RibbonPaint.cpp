#include "RibbonPaint_p.h"

#include "RibbonApplication.h"
#include "RibbonImageRows_p.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>

namespace zel {

namespace {

// A piece of a palette image, by the image's cache key and the piece's rectangle.
struct PieceKey
{
    qint64 image;
    QRect source;
    bool operator==(const PieceKey &other) const { return image == other.image && source == other.source; }
};

uint qHash(const PieceKey &key, uint seed = 0)
{
    const int rect[4] = {key.source.x(), key.source.y(), key.source.width(), key.source.height()};
    return ::qHash(key.image, seed) ^ qHashBits(rect, sizeof rect, seed);
}

// What stretching a piece may skip: a piece whose columns are all alike looks the same
// stretched sideways as tiled sideways, one whose rows are alike the same stretched or
// tiled downwards; the raster engine tiles several times faster than it scales.
struct PieceShape
{
    QPixmap piece; // the piece alone, for tiling; null when neither way is alike
    bool sameColumns = false;
    bool sameRows = false;
};

PieceShape shapeOf(const QPixmap &pixmap, const QRect &source)
{
    PieceShape shape;
    const QImage image = pixmap.copy(source).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return shape;
    const int rowBytes = image.width() * 4;
    shape.sameRows = true;
    for (int y = 1; y < image.height() && shape.sameRows; ++y)
        shape.sameRows = memcmp(image.constScanLine(y), image.constScanLine(0), size_t(rowBytes)) == 0;
    shape.sameColumns = true;
    for (int y = 0; y < image.height() && shape.sameColumns; ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 1; x < image.width() && shape.sameColumns; ++x)
            shape.sameColumns = line[x] == line[0];
    }
    if (shape.sameColumns || shape.sameRows)
        shape.piece = pixmap.copy(source);
    return shape;
}

// Stretches source of pixmap (at its own ratio of 1) onto target by tiling where that
// gives the pixels nearest-pixel scaling gives; false where it does not.
bool drawStretchedAsTiles(QPainter &painter, const QRect &target, const QPixmap &pixmap, const QRect &source)
{
    const bool wider = target.width() != source.width();
    const bool taller = target.height() != source.height();
    // Scaled painting, a high-resolution device's included, samples differently when tiling.
    if ((!wider && !taller) || painter.testRenderHint(QPainter::SmoothPixmapTransform)
        || painter.deviceTransform().type() > QTransform::TxTranslate)
        return false;
    // Palette images are few and their pieces fewer: the shapes are kept for the process
    // (bounded all the same, should someone stretch pixmaps made afresh), and let go
    // with the application, before the pixmaps could outlive it.
    static QHash<PieceKey, PieceShape> shapes;
    static const bool cleanedUp = [] {
        qAddPostRoutine([] { shapes.clear(); });
        return true;
    }();
    Q_UNUSED(cleanedUp)
    const PieceKey key{pixmap.cacheKey(), source};
    auto it = shapes.constFind(key);
    if (it == shapes.cend()) {
        if (shapes.size() >= 256)
            shapes.clear();
        it = shapes.insert(key, shapeOf(pixmap, source));
    }
    if ((wider && !it->sameColumns) || (taller && !it->sameRows) || it->piece.isNull())
        return false;
    painter.drawTiledPixmap(target, it->piece);
    return true;
}

} // namespace

void RibbonSlices::set(const QRect &target, const QRect &source, const QMargins &border)
{
    if (target == m_target && source == m_source && border == m_border && !m_pieces.isEmpty())
        return;
    m_target = target;
    m_source = source;
    m_border = border;
    m_pieces.clear();

    // Columns and rows as (offset, size) in source and target; the middle one stretches.
    const int sx[3] = {0, border.left(), source.width() - border.right()};
    const int sw[3] = {border.left(), source.width() - border.left() - border.right(), border.right()};
    const int sy[3] = {0, border.top(), source.height() - border.bottom()};
    const int sh[3] = {border.top(), source.height() - border.top() - border.bottom(), border.bottom()};
    const int tx[3] = {0, border.left(), target.width() - border.right()};
    const int tw[3] = {border.left(), target.width() - border.left() - border.right(), border.right()};
    const int ty[3] = {0, border.top(), target.height() - border.bottom()};
    const int th[3] = {border.top(), target.height() - border.top() - border.bottom(), border.bottom()};

    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            if (sw[col] <= 0 || sh[row] <= 0 || tw[col] <= 0 || th[row] <= 0)
                continue;
            m_pieces.append({QRect(target.x() + tx[col], target.y() + ty[row], tw[col], th[row]),
                             QRect(source.x() + sx[col], source.y() + sy[row], sw[col], sh[row])});
        }
    }
}

void RibbonSlices::draw(QPainter &painter, const QPixmap &pixmap, int sourceOffsetY) const
{
    if (pixmap.isNull())
        return;
    for (const Piece &piece : m_pieces)
        RibbonPaint::drawPart(painter, piece.target, pixmap, piece.source.translated(0, sourceOffsetY));
}

namespace RibbonPaint {

QSize logicalSize(const QPixmap &pixmap)
{
    const qreal ratio = pixmap.devicePixelRatio();
    return QSize(qRound(pixmap.width() / ratio), qRound(pixmap.height() / ratio));
}

void drawPart(QPainter &painter, const QRect &target, const QPixmap &pixmap, const QRect &source)
{
    const qreal ratio = pixmap.devicePixelRatio();
    if (qFuzzyCompare(ratio, 1.0)) {
        if (!drawStretchedAsTiles(painter, target, pixmap, source))
            painter.drawPixmap(target, pixmap, source);
        return;
    }
    // QPainter takes the source in device pixels. Where the image's and the device's
    // ratios differ (2x art on a 1.5 screen), nearest-pixel sampling would drop every
    // fourth row, so the art is filtered instead.
    const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    const qreal deviceRatio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    if (!smooth && !qFuzzyCompare(deviceRatio, ratio))
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.drawPixmap(QRectF(target), pixmap,
                       QRectF(source.x() * ratio, source.y() * ratio, source.width() * ratio, source.height() * ratio));
    if (!smooth)
        painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

QPixmap loadImage(const QString &path)
{
    return loadImage(path, wantsHighResolutionImages());
}

bool wantsHighResolutionImages()
{
    return qGuiApp && qGuiApp->devicePixelRatio() > 1.0;
}

QPixmap loadImage(const QString &path, bool highResolution)
{
    if (highResolution) {
        const QFileInfo info(path);
        const QString doubled =
            info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral("@2x.") + info.suffix();
        QPixmap pixmap(doubled);
        if (!pixmap.isNull()) {
            // The reader sets the ratio from the "@2x" name; say it once more for readers
            // that do not.
            pixmap.setDevicePixelRatio(2.0);
            return pixmap;
        }
    }
    return QPixmap(path);
}

void drawThreeSlice(QPainter &painter, const QRect &target, const QPixmap &pixmap,
                    const QRect &source, int leftCap, int rightCap)
{
    RibbonSlices slices;
    slices.set(target, source, QMargins(leftCap, 0, rightCap, 0));
    slices.draw(painter, pixmap);
}

QColor paneFill(const QColor &defaultLookFill)
{
    RibbonApplication &app = RibbonApplication::theApp();
    return app.getRibbonStyle() == RibbonApplication::RibbonStyleDefault ? defaultLookFill
                                                                          : app.ribbonStyle().mainMenuBgColor();
}

QColor textColor(bool enabled)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    return enabled ? style.highlightedCategoryTextColor() : style.disabledCategoryTextColor();
}

void drawDropDownArrow(QPainter &painter, int x, int y, const QColor &color)
{
    painter.setPen(color);
    painter.setBrush(color);
    RibbonStyle::drawSymbol(painter, QRect(x, y, 5, 3), SymbolDropDown);
}

void drawDropDownRow(QPainter &painter, int width, int height, int captionRow, int arrowRow)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    // One outline: the caption image without its right cap meets the arrow image
    // without its left edge.
    if (captionRow != RibbonImageRows::NoRow)
        drawThreeSlice(painter, QRect(0, 0, width - 12, height), style.horizontalMenuButtonCaption(),
                       QRect(0, SmallRowHeight * captionRow, 21, SmallRowHeight), 2, 0);
    if (arrowRow != RibbonImageRows::NoRow)
        drawThreeSlice(painter, QRect(width - 12, 0, 12, height), style.horizontalMenuButtonMenu(),
                       QRect(0, SmallRowHeight * arrowRow, 11, SmallRowHeight), 0, 2);
}

int smallButtonRow(const QAbstractButton &button)
{
    using namespace RibbonImageRows;
    const bool checked = button.isCheckable() && button.isChecked();
    if (!button.isEnabled())
        return checked ? SmallButton::Outline : NoRow;
    if (button.isDown())
        return SmallButton::Pressed;
    if (checked)
        return button.underMouse() ? SmallButton::CheckedHover : SmallButton::Checked;
    return button.underMouse() ? SmallButton::Hover : NoRow;
}

void drawSmallButtonBackground(QPainter &painter, const QAbstractButton &button,
                               RibbonSlices &slices)
{
    const int state = smallButtonRow(button);
    if (state == RibbonImageRows::NoRow)
        return;
    const QPixmap &sheet = RibbonApplication::theApp().ribbonStyle().normalButtonSmall();
    slices.set(button.rect(), QRect(0, 0, logicalSize(sheet).width(), SmallRowHeight), QMargins(2, 2, 2, 2));
    slices.draw(painter, sheet, state * SmallRowHeight);
}

QPixmap iconPixmap(const QIcon &icon, int extent, bool enabled, const QPaintDevice &device)
{
    if (icon.isNull())
        return QPixmap();
    const QIcon::Mode mode = enabled ? QIcon::Normal : QIcon::Disabled;
    const QSize size(extent, extent);
    const qreal ratio = device.devicePixelRatioF();
    // QIcon::pixmap() picks the application's ratio, right for every device of a screen
    // as fine as the finest, and the only way where the host turned high-resolution
    // pixmaps off.
    if (!QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps) || qFuzzyCompare(ratio, qGuiApp->devicePixelRatio()))
        return icon.pixmap(size, mode, QIcon::Off);
    // QIcon::paint() asks the icon for a drawing at the painted device's ratio.
    const QSize logical = icon.actualSize(size, mode, QIcon::Off);
    if (logical.isEmpty())
        return QPixmap();
    QPixmap pixmap(logical * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    icon.paint(&painter, QRect(QPoint(0, 0), logical), Qt::AlignCenter, mode, QIcon::Off);
    return pixmap;
}

void drawCentred(QPainter &painter, const QRect &target, const QPixmap &pixmap)
{
    if (pixmap.isNull())
        return;
    QRect placed(QPoint(0, 0), pixmap.size() / pixmap.devicePixelRatio());
    placed.moveCenter(target.center());
    painter.drawPixmap(placed, pixmap);
}

} // namespace RibbonPaint

} // namespace zel
