#include "RibbonCatMenuPalettePopup.h"

#include "RibbonApplication.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuPalettePopupSizer.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonStyle.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPolygon>
#include <QRegion>
#include <QScrollBar>

namespace zel {

namespace {

// Room around the cells: the 3-pixel border, and the 11-pixel resize bar on the grip's
// side (plus the border's inner pixel).
const int kBorder = 3;
const int kResizeBarHeight = 11;
const int kFrameHeight = 15; // border + resize bar + border, top to bottom
const int kLargeRow = 66;    // paletteItemLarge rows
const int kLargeIcon = 48;
const int kSmallIcon = 16;

int cellSize(RibbonCatMenuAction::eMenuSize size)
{
    switch (size) {
    case RibbonCatMenuAction::MenuSizeLarge:
    case RibbonCatMenuAction::MenuSizeMedium:
        return 56;
    case RibbonCatMenuAction::MenuSizeSmall:
        return 20;
    }
    return 0;
}

int defaultColumns(RibbonCatMenuAction::eMenuSize size)
{
    switch (size) {
    case RibbonCatMenuAction::MenuSizeLarge:
        return 8;
    case RibbonCatMenuAction::MenuSizeMedium:
        return 6;
    case RibbonCatMenuAction::MenuSizeSmall:
        return 12;
    }
    return 0;
}

} // namespace

struct RibbonCatMenuPalettePopup::Priv
{
    QPointer<QAction> action;
    RibbonCatMenuAction::eMenuSize menuSize = RibbonCatMenuAction::MenuSizeLarge;
    RibbonCatMenuPalettePopupSizer *sizer = nullptr;
    QScrollBar *scrollBar = nullptr;
    int firstIndex = 0;
    QPointer<QAction> pressedAction;
    // The side the popup opened on is chosen once; resizing by the grip keeps it.
    bool placed = false;
    bool upward = false;
    RibbonSlices border;
    RibbonSlices resizeBar;
    RibbonSlices cell;

    RibbonCatMenuAction *liveAction() const { return qobject_cast<RibbonCatMenuAction *>(action); }

    int itemCount() const
    {
        const RibbonCatMenuAction *menu = liveAction();
        return menu ? menu->menuActions().size() : 0;
    }

    RibbonAction *item(int index) const
    {
        const RibbonCatMenuAction *menu = liveAction();
        return menu && index >= 0 && index < menu->menuActions().size() ? menu->menuActions().at(index) : nullptr;
    }
};

RibbonCatMenuPalettePopup::RibbonCatMenuPalettePopup(RibbonCatMenuAction &action, QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint)
    , d(new Priv)
{
    d->action = &action;
    d->menuSize = action.menuSize();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);

    d->scrollBar = new QScrollBar(Qt::Vertical, this);
    d->scrollBar->setSingleStep(1);
    d->scrollBar->setPageStep(2);
    d->scrollBar->setEnabled(false);
    // The keyboard focus stays with the widget that had it before the popup opened.
    d->scrollBar->setFocusPolicy(Qt::NoFocus);
    connect(d->scrollBar, &QScrollBar::valueChanged, this, &RibbonCatMenuPalettePopup::scrolled);
    connect(&action, &RibbonAction::ribbonActionActivated, this, &QWidget::close);
    // Items may come, go or change while the popup is open.
    connect(&action, &QAction::changed, this, [this] {
        updateScrollBar();
        update();
    });
    connect(&action, &QObject::destroyed, this, &QWidget::close);
    d->sizer = new RibbonCatMenuPalettePopupSizer(this);
    setMouseTracking(true);

    // A long palette opens as tall as the screen allows above or below its button; the
    // scroll bar reaches the rest.
    QSize size = sizeHint();
    if (parent) {
        const QRect available = RibbonPlatform::availableGeometry(parent);
        const int buttonTop = parent->mapToGlobal(QPoint(0, 0)).y();
        const int room = qMax(available.y() + available.height() - (buttonTop + parent->height()),
                              buttonTop - available.y());
        const int cs = cellSize(d->menuSize);
        if (cs > 0 && size.height() > room)
            size.setHeight(qMax(minimumSizeHint().height(), kFrameHeight + (room - kFrameHeight) / cs * cs));
    }
    resize(size);
    show();
}

RibbonCatMenuPalettePopup::~RibbonCatMenuPalettePopup() = default;

QSize RibbonCatMenuPalettePopup::sizeHint() const
{
    const QSize sb = d->scrollBar->sizeHint();
    const int cs = cellSize(d->menuSize);
    const int cols = defaultColumns(d->menuSize);
    const int rows = cols > 0 ? (d->itemCount() + cols - 1) / cols : 0;
    return QSize(sb.width() + cols * cs + 2 * kBorder, qMax(sb.height(), rows * cs) + kFrameHeight);
}

QSize RibbonCatMenuPalettePopup::minimumSizeHint() const
{
    const QSize sb = d->scrollBar->sizeHint();
    const int cs = cellSize(d->menuSize);
    return QSize(sb.width() + defaultColumns(d->menuSize) * cs + 2 * kBorder, qMax(sb.height(), cs) + kFrameHeight);
}

int RibbonCatMenuPalettePopup::numColumns() const
{
    const int cs = cellSize(d->menuSize);
    return cs > 0 ? (width() - 2 * kBorder - d->scrollBar->sizeHint().width()) / cs : -1;
}

int RibbonCatMenuPalettePopup::numRows() const
{
    const int cs = cellSize(d->menuSize);
    return cs > 0 ? (height() - kFrameHeight) / cs : -1;
}

Qt::Corner RibbonCatMenuPalettePopup::gripSizerCorner() const
{
    return d->sizer->corner();
}

QScrollBar *RibbonCatMenuPalettePopup::scrollBar() const
{
    return d->scrollBar;
}

int RibbonCatMenuPalettePopup::firstIndex() const
{
    return d->firstIndex;
}

QRect RibbonCatMenuPalettePopup::itemArea() const
{
    const int sbWidth = d->scrollBar->sizeHint().width();
    const int gripSide = kResizeBarHeight + 1;
    if (gripSizerCorner() == Qt::BottomRightCorner)
        return rect().adjusted(kBorder, kBorder, -kBorder - sbWidth, -gripSide);
    return rect().adjusted(kBorder, gripSide, -kBorder - sbWidth, -kBorder);
}

RibbonAction *RibbonCatMenuPalettePopup::itemAt(const QPoint &pos) const
{
    const QRect area = itemArea();
    const int cols = numColumns();
    const int cs = cellSize(d->menuSize);
    if (!area.contains(pos) || cols <= 0)
        return nullptr;
    const int index = d->firstIndex + (pos.y() - area.y()) / cs * cols + (pos.x() - area.x()) / cs;
    // A point right of the last whole column lies in no cell.
    if ((pos.x() - area.x()) / cs >= cols)
        return nullptr;
    return d->item(index);
}

void RibbonCatMenuPalettePopup::scrolled(int value)
{
    d->firstIndex = value * qMax(numColumns(), 0);
    update();
}

void RibbonCatMenuPalettePopup::updateScrollBar()
{
    const int rows = numRows();
    const int cols = numColumns();
    QScrollBar *bar = d->scrollBar;
    const int needed = cols > 0 ? (d->itemCount() + cols - 1) / cols : 0;
    if (rows > 0 && rows < needed) {
        bar->setRange(0, needed - rows);
        bar->setValue(d->firstIndex / cols);
        bar->setEnabled(true);
        d->firstIndex = bar->value() * cols;
    } else {
        bar->setEnabled(false);
        bar->setValue(0);
        bar->setRange(0, 0);
        d->firstIndex = 0;
    }
}

QPoint RibbonCatMenuPalettePopup::placement(const QSize &size)
{
    const QWidget *button = parentWidget();
    const QRect available = RibbonPlatform::availableGeometry(button);
    const QPoint buttonTop = button->mapToGlobal(QPoint(0, 0));
    QPoint pos(qMax(buttonTop.x(), available.left()), qMax(buttonTop.y() + button->height(), available.top()));

    if (!d->placed) {
        d->upward = pos.y() + size.height() > available.bottom();
        d->placed = true;
    }
    // Overlapping the button by a pixel, so that the two read as one. Upwards the popup
    // ends at the button's top rather than covering the button it was opened from.
    if (d->upward)
        pos.setY(qMax(buttonTop.y() + 1 - size.height(), available.top()));
    else
        pos.setY(pos.y() - 1);
    if (pos.x() + size.width() > available.right())
        pos.setX(available.right() - size.width());
    else
        pos.setX(qMax(pos.x() - 2, available.left()));
    return pos;
}

void RibbonCatMenuPalettePopup::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int w = width();
    const int h = height();
    // The corner pixels are cut off.
    const QPolygon outline({QPoint(1, 0), QPoint(w - 1, 0), QPoint(w - 1, 1), QPoint(w, 1), QPoint(w, h),
                            QPoint(1, h), QPoint(1, h - 1), QPoint(0, h - 1), QPoint(0, 1), QPoint(1, 1),
                            QPoint(1, 0)});
    setMask(QRegion(outline));

    if (parentWidget())
        move(placement(size()));

    const bool gripAtTop = d->upward;
    d->sizer->move(w - 10, gripAtTop ? 1 : h - 9);
    const int sbWidth = d->scrollBar->sizeHint().width();
    d->scrollBar->setGeometry(w - kBorder - sbWidth, gripAtTop ? kResizeBarHeight : kBorder, sbWidth, h - 14);
    updateScrollBar();
}

void RibbonCatMenuPalettePopup::paintEvent(QPaintEvent *)
{
    using namespace RibbonImageRows;
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const int w = width();
    const int h = height();
    QPainter painter(this);

    d->border.set(rect(), QRect(0, 0, 7, 7), QMargins(kBorder, kBorder, kBorder, kBorder));
    d->border.draw(painter, style.popupBorder());
    const int barY = gripSizerCorner() == Qt::BottomRightCorner ? h - 12 : 1;
    d->resizeBar.set(QRect(1, barY, w - 2, kResizeBarHeight), QRect(0, 0, 3, kResizeBarHeight),
                     QMargins(1, 0, 1, 0));
    d->resizeBar.draw(painter, style.popupResizeBarBack());

    const RibbonCatMenuAction *menu = d->liveAction();
    const int cols = numColumns();
    if (!menu || cols <= 0)
        return;
    const bool small = d->menuSize == RibbonCatMenuAction::MenuSizeSmall;
    const QPixmap &sheet = small ? style.paletteItemSmall() : style.paletteItemLarge();
    const int rowHeight = small ? RibbonPaint::SmallRowHeight : kLargeRow;
    const int cs = cellSize(d->menuSize);
    const QRect area = itemArea();
    const QPoint cursor = mapFromGlobal(QCursor::pos());
    painter.setClipRect(area);

    const QList<RibbonAction *> &items = menu->menuActions();
    for (int i = d->firstIndex; i < items.size(); ++i) {
        const int k = i - d->firstIndex;
        const QRect cell(area.x() + k % cols * cs, area.y() + k / cols * cs, cs, cs);
        if (!cell.intersects(area))
            break;
        RibbonAction *item = items.at(i);
        if (!item)
            continue;
        const bool hovered = cell.contains(cursor) && area.contains(cursor);
        const bool pressed = item == d->pressedAction;
        int state = NoRow;
        if (!item->isEnabled())
            state = hovered ? PaletteItem::Disabled : NoRow;
        else if (pressed)
            state = PaletteItem::Pressed;
        else if (item->isCheckable() && item->isChecked())
            state = hovered ? PaletteItem::CheckedHover : PaletteItem::Checked;
        else if (hovered)
            state = PaletteItem::Hover;
        if (state != NoRow) {
            d->cell.set(cell, QRect(0, 0, RibbonPaint::logicalSize(sheet).width(), rowHeight), QMargins(2, 2, 2, 2));
            d->cell.draw(painter, sheet, state * rowHeight);
        }

        const int extent = small ? kSmallIcon : kLargeIcon;
        const QPixmap pixmap = RibbonPaint::iconPixmap(item->icon(), extent, item->isEnabled(), *this);
        if (pixmap.isNull())
            continue;
        const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
        if (small) {
            const QRect inner = cell.adjusted(2, 2, -2, -2);
            painter.drawPixmap(inner.x() + (inner.width() - ps.width()) / 2,
                               inner.y() + (inner.height() - ps.height()) / 2, pixmap);
        } else {
            // A pressed item's picture fades while the button is held.
            painter.setOpacity(pressed ? 0.5 : 1.0);
            painter.drawPixmap(cell.x() + 4 + (kLargeIcon - ps.width()) / 2,
                               cell.y() + 4 + (kLargeIcon - ps.height()) / 2, pixmap);
            painter.setOpacity(1.0);
        }
    }
}

void RibbonCatMenuPalettePopup::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        RibbonAction *item = itemAt(event->pos());
        if (item && item->isEnabled())
            d->pressedAction = item;
    }
    update();
}

void RibbonCatMenuPalettePopup::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    // Taken here: the command may delete the popup, and an event left unaccepted would
    // be passed on through it.
    event->accept();
    RibbonAction *item = itemAt(event->pos());
    const bool hit = item && item->isEnabled() && item == d->pressedAction;
    d->pressedAction = nullptr;
    update();
    if (!hit)
        return;
    // The menu closes this popup when its item reports its activation; an item that
    // reports none (not a simple action) must close it as well. The command may also
    // delete the popup.
    QPointer<RibbonCatMenuPalettePopup> self(this);
    item->trigger();
    if (self && isVisible())
        close();
}

void RibbonCatMenuPalettePopup::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    update();
}

void RibbonCatMenuPalettePopup::wheelEvent(QWheelEvent *event)
{
    // The wheel scrolls the cells wherever it turns over the popup.
    if (d->scrollBar->isEnabled())
        QCoreApplication::sendEvent(d->scrollBar, event);
}

void RibbonCatMenuPalettePopup::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    update();
}

void RibbonCatMenuPalettePopup::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    deleteLater();
    emit closed();
}

} // namespace zel
