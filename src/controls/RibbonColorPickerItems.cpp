#include "RibbonColorPickerItems.h"

#include "RibbonApplication.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

namespace zel {

namespace {

// The fixed colours, column by column, top row first.
const QRgb kColorTable[RibbonColorPickerItems::Columns * RibbonColorPickerItems::Rows] = {
    0x000000, 0x800000, 0xFF0000, 0xFF00FF, 0xFF99CC, // column 0
    0x993300, 0xFF6600, 0xFF9900, 0xFFCC00, 0xFFCC99, // column 1
    0x333300, 0x808000, 0x99CC00, 0xFFFF00, 0xFFFF99, // column 2
    0x003300, 0x008000, 0x339966, 0x00FF00, 0xCCFFCC, // column 3
    0x003366, 0x008080, 0x33CCCC, 0x00FFFF, 0xCCFFFF, // column 4
    0x000080, 0x0000FF, 0x3366FF, 0x00CCFF, 0x99CCFF, // column 5
    0x333399, 0x666699, 0x800080, 0x993366, 0xCC99FF, // column 6
    0x333333, 0x808080, 0x999999, 0xC0C0C0, 0xFFFFFF, // column 7
};

const QPoint kNoCell(-1, -1);

} // namespace

RibbonColorPickerItems::RibbonColorPickerItems(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setContentsMargins(5, 5, 5, 5);
    setMouseTracking(true);
}

RibbonColorPickerItems::~RibbonColorPickerItems() = default;

QColor RibbonColorPickerItems::colorAt(const QPoint &cell)
{
    if (cell.x() < 0 || cell.x() >= Columns || cell.y() < 0 || cell.y() >= Rows)
        return QColor();
    return QColor(kColorTable[cell.x() * Rows + cell.y()]);
}

QPoint RibbonColorPickerItems::cellAt(const QPoint &pos)
{
    // Measured from the widget's corner: the contents margins are not applied.
    if (pos.x() < 0 || pos.y() < 0)
        return kNoCell;
    const QPoint cell(pos.x() / CellWidth, pos.y() / CellHeight);
    return colorAt(cell).isValid() ? cell : kNoCell;
}

bool RibbonColorPickerItems::selectColor(const QColor &color)
{
    m_selectedCell = kNoCell;
    if (m_keepSelection && color.isValid()) {
        for (int i = 0; i < Columns * Rows; ++i) {
            if (QColor(kColorTable[i]) == color) {
                m_selectedCell = QPoint(i / Rows, i % Rows);
                break;
            }
        }
    }
    update();
    return m_selectedCell != kNoCell;
}

QPoint RibbonColorPickerItems::selectedCell() const
{
    return m_selectedCell;
}

void RibbonColorPickerItems::setKeepSelection(bool keep)
{
    if (keep == m_keepSelection)
        return;
    m_keepSelection = keep;
    if (!keep)
        m_selectedCell = kNoCell;
    update();
}

QSize RibbonColorPickerItems::sizeHint() const
{
    return QSize(Columns * CellWidth, Rows * CellHeight);
}

void RibbonColorPickerItems::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    event->accept();
    m_pressedCell = cellAt(event->pos());
    update();
}

void RibbonColorPickerItems::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    // Taken here: a choice may delete the grid, and an event left unaccepted would be
    // passed on through it.
    event->accept();
    const QPoint cell = cellAt(event->pos());
    const QPoint pressed = m_pressedCell;
    m_pressedCell = kNoCell;
    update();
    if (cell == kNoCell || cell != pressed)
        return;
    if (m_keepSelection)
        m_selectedCell = cell;
    emit colorSelected(colorAt(cell));
}

void RibbonColorPickerItems::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    update();
}

void RibbonColorPickerItems::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    update();
}

void RibbonColorPickerItems::paintEvent(QPaintEvent *)
{
    using namespace RibbonImageRows;
    const QPixmap &sheet = RibbonApplication::theApp().ribbonStyle().paletteItemSmall();
    const QRect rowSource(0, 0, RibbonPaint::logicalSize(sheet).width(), RibbonPaint::SmallRowHeight);
    const QPoint hoveredCell = underMouse() ? cellAt(mapFromGlobal(QCursor::pos())) : kNoCell;
    QPainter painter(this);
    painter.setPen(Qt::gray);
    RibbonSlices background;
    for (int column = 0; column < Columns; ++column) {
        for (int row = 0; row < Rows; ++row) {
            const QPoint cell(column, row);
            const bool hovered = cell == hoveredCell;
            int state = NoRow;
            if (cell == m_pressedCell)
                state = PaletteItem::Pressed;
            else if (cell == m_selectedCell)
                state = hovered ? PaletteItem::CheckedHover : PaletteItem::Checked;
            else if (hovered)
                state = PaletteItem::Hover;

            const QRect rect(column * CellWidth, row * CellHeight, CellWidth, CellHeight);
            if (state != NoRow) {
                background.set(rect, rowSource, QMargins(2, 2, 2, 2));
                background.draw(painter, sheet, state * RibbonPaint::SmallRowHeight);
            }
            painter.setBrush(colorAt(cell));
            painter.drawRect(rect.adjusted(2, 2, -3, -3));
        }
    }
}

} // namespace zel
