#pragma once

#include "zelribbon_export.h"

#include <QAbstractItemDelegate>

namespace zel {

// Paints the separator rows of the backstage page's navigation list: a thin line in a
// 16-pixel row.
class ZELRIBBON_EXPORT BackstageViewListWidgetDelegate : public QAbstractItemDelegate
{
    Q_OBJECT
public:
    explicit BackstageViewListWidgetDelegate(QObject *parent = nullptr);
    ~BackstageViewListWidgetDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    Q_DISABLE_COPY(BackstageViewListWidgetDelegate)
};

} // namespace zel
