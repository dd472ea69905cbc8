#include "RibbonStylePainter_p.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cstdlib>

namespace zel {
namespace stylepainter {

namespace {
constexpr int kTabShapeRowHeight = 24;
} // namespace

const RibbonStyle *palette()
{
    auto *app = qobject_cast<RibbonApplication *>(QCoreApplication::instance());
    // The application installs its style before it has measured the screen; building the
    // palette then would bake a zero row height into its sheets for good.
    if (!app || app->dpiFactor().second <= 0.0)
        return nullptr;
    return &app->ribbonStyle();
}

bool drawStateRow(QPainter *painter, const QRect &target, const QPixmap &sheet, int rowHeight, int row,
                  int border)
{
    if (sheet.isNull() || !target.isValid())
        return false;

    QRect source(QPoint(0, 0), RibbonPaint::logicalSize(sheet));
    int offset = 0;
    if (rowHeight > 0 && source.height() >= rowHeight) {
        const int rows = source.height() / rowHeight;
        source.setHeight(rowHeight);
        offset = std::clamp(row, 0, rows - 1) * rowHeight;
    }
    RibbonSlices slices;
    slices.set(target, source, QMargins(border, border, border, border));
    slices.draw(*painter, sheet, offset);
    return true;
}

QColor legibleOn(const QColor &background, const QColor &preferred, const QColor &fallback)
{
    return std::abs(preferred.lightness() - background.lightness()) >= 64 ? preferred : fallback;
}

void drawFlatPanel(QPainter *painter, const QRect &rect, const QColor &fill, const QColor &outline)
{
    if (fill.isValid())
        painter->fillRect(rect, fill);
    if (outline.isValid()) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(outline);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
}

void drawArrow(QPainter *painter, const QRect &rect, Qt::ArrowType type, int width, int height)
{
    const bool vertical = type == Qt::UpArrow || type == Qt::DownArrow;
    QRect box(0, 0, vertical ? width : height, vertical ? height : width);
    box.moveCenter(rect.center());
    // Polygons leave out their right and bottom edge pixels; grow the box by one so the
    // visible arrow has exactly the requested size.
    box.adjust(0, 0, 1, 1);
    switch (type) {
    case Qt::UpArrow:
        RibbonStyle::drawSymbol(*painter, box, SymbolArrowUp);
        break;
    case Qt::LeftArrow:
        RibbonStyle::drawSymbol(*painter, box, SymbolArrowLeft);
        break;
    case Qt::RightArrow:
        RibbonStyle::drawSymbol(*painter, box, SymbolArrowRight);
        break;
    case Qt::DownArrow: {
        const QPoint points[3] = {box.topLeft(), box.topRight(), QPoint(box.center().x(), box.bottom())};
        painter->drawPolygon(points, 3, Qt::OddEvenFill);
        break;
    }
    case Qt::NoArrow:
        break;
    }
}

bool drawTabShape(QPainter *painter, const QStyleOption *option, const RibbonStyle &palette)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    const RibbonStyle *style = &palette;
    if (!tab || (tab->shape != QTabBar::RoundedNorth && tab->shape != QTabBar::TriangularNorth))
        return false;

    const bool enabled = tab->state & QStyle::State_Enabled;
    const bool selected = tab->state & QStyle::State_Selected;
    const bool hover = enabled && (tab->state & QStyle::State_MouseOver);

    // Rows of 24 pixels, open at the bottom: normal, hover, selected. Tabs other than
    // the current one sit two pixels lower.
    const QRect rect = selected ? tab->rect : tab->rect.adjusted(0, 2, 0, 0);
    if (drawStateRow(painter, rect, style->tabBarTabShape(), kTabShapeRowHeight, selected ? 2 : (hover ? 1 : 0)))
        return true;

    if (!selected && !hover)
        return true;
    if (!selected) {
        drawFlatPanel(painter, rect.adjusted(1, 0, -1, 0), style->backstageBlueHoverColor(), QColor());
        return true;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    drawFlatPanel(painter, rect, style->mainMenuBgColor(), QColor());
    painter->setPen(style->backstageGrayBorderColor());
    painter->drawLine(rect.topLeft(), rect.bottomLeft());
    painter->drawLine(rect.topLeft(), rect.topRight());
    painter->drawLine(rect.topRight(), rect.bottomRight());
    // An accent line marks the current tab.
    drawFlatPanel(painter, QRect(rect.left() + 1, rect.top() + 1, rect.width() - 2, 2), style->frameBorderColor(), QColor());
    painter->restore();
    return true;
}

} // namespace stylepainter
} // namespace zel
