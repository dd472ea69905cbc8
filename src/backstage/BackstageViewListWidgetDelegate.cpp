#include "BackstageViewListWidgetDelegate.h"

#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace zel {

namespace {
// The line ends where the entries' texts end at the narrowest column width.
constexpr int LineEnd = 120;
} // namespace

BackstageViewListWidgetDelegate::BackstageViewListWidgetDelegate(QObject *parent)
    : QAbstractItemDelegate(parent)
{
}

BackstageViewListWidgetDelegate::~BackstageViewListWidgetDelegate() = default;

void BackstageViewListWidgetDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    // The line starts under the entries' texts, which are indented by their leading blanks.
    const int start = QFontMetrics(option.font).horizontalAdvance(QStringLiteral("    "));
    const int y = option.rect.top() + option.rect.height() / 2;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(RibbonApplication::theApp().ribbonStyle().backstageWelcomeBluePressedColor(), 1));
    painter->drawLine(option.rect.left() + start, y, option.rect.left() + LineEnd, y);
    painter->restore();
}

QSize BackstageViewListWidgetDelegate::sizeHint(const QStyleOptionViewItem &,
                                                const QModelIndex &) const
{
    return QSize(16, 16);
}

} // namespace zel
