#include "OfficeListDelegate.h"

#include "RibbonPaint_p.h"

#include <QPainter>

namespace zel {

namespace {

const int kTile = 60;
const int kIcon = 56;
const QColor kCheckedFrame(197, 219, 241);
const QColor kHoverFrame(222, 235, 248);

} // namespace

OfficeListDelegate::OfficeListDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

OfficeListDelegate::~OfficeListDelegate() = default;

void OfficeListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const bool enabled = !option.widget || option.widget->isEnabled();
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    RibbonPaint::drawCentred(*painter, option.rect, RibbonPaint::iconPixmap(icon, kIcon, enabled, *painter->device()));
    if (!enabled)
        return;

    const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    QColor frame;
    if ((option.state & QStyle::State_Selected) || checked)
        frame = kCheckedFrame;
    else if (option.state & QStyle::State_MouseOver)
        frame = kHoverFrame;
    else
        return;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(frame, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    for (int inset = 0; inset < 4; ++inset)
        painter->drawRect(option.rect.adjusted(inset, inset, -1 - inset, -1 - inset));
    painter->restore();
}

QSize OfficeListDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return QSize(kTile, kTile);
}

} // namespace zel
