#pragma once

#include "zelribbon_export.h"

#include <QLayout>
#include <QList>
#include <QRect>

namespace zel {

class RibbonCategory;

// Places the controls of a category in its fixed height: tall controls side by side,
// runs of short controls three to a column (filled column by column) or in the rows
// the host assigned. Controls keep their own size hints; the arrangement is computed
// when a control is added or removed, not when a size hint changes later. The initial
// controls of a category are arranged when a size or a place is first asked for, so
// that the pages nobody has looked at yet do not measure their controls.
class ZELRIBBON_EXPORT RibbonCategoryLayout : public QLayout
{
    Q_OBJECT
public:
    explicit RibbonCategoryLayout(RibbonCategory *category);
    ~RibbonCategoryLayout() override;

    void addItem(QLayoutItem *item) override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    int count() const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect &rect) override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

    // The rectangle of item index in the layout's own coordinates; empty outside the range.
    QRect itemRect(int index) const;

private:
    // The category adds its initial controls with the arrangement suspended.
    friend class RibbonCategory;

    void recompute();
    // Arranges the initial controls if that is still to be done.
    void ensureArranged() const;
    int arrangeAutomatic(int first, int end, int x0);
    int arrangeRows(int first, int end, int x0, int rowCount);
    int rowOf(int index) const;
    bool countsAsShort(int index) const;

    RibbonCategory *m_category;
    QList<QLayoutItem *> m_items;
    QList<QRect> m_rects;
    QSize m_size;
    bool m_suppressed = false;
    // The initial controls wait for their arrangement.
    bool m_pending = false;
};

} // namespace zel
