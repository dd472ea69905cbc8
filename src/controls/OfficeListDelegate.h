#pragma once

#include "zelribbon_export.h"

#include <QStyledItemDelegate>

namespace zel {

// Paints a tile of the in-ribbon gallery: the item's icon centred in a 60 x 60 cell
// and, while the list is enabled, a four-pixel frame on the checked or selected tile
// and a lighter one on the tile under the mouse.
class ZELRIBBON_EXPORT OfficeListDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit OfficeListDelegate(QObject *parent = nullptr);
    ~OfficeListDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace zel
