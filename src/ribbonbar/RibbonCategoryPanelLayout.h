#pragma once

#include "zelribbon_export.h"

#include <QHBoxLayout>
#include <QList>

namespace zel {

class RibbonCategoryPanel;
class RibbonCategoryWrapper;

// Places the groups of a tab page side by side and decides which of them are
// collapsed: when the page is too narrow the groups that free the least width fold
// first (the rightmost first among equals), and they reopen in the same order as
// room returns. The wrappers are placed directly, not as items of the box layout.
class ZELRIBBON_EXPORT RibbonCategoryPanelLayout : public QHBoxLayout
{
    Q_OBJECT
public:
    explicit RibbonCategoryPanelLayout(RibbonCategoryPanel &panel);
    ~RibbonCategoryPanelLayout() override;

    // Appends a wrapper; null and duplicates are ignored.
    void addCategory(RibbonCategoryWrapper *wrapper);
    void removeCategory(RibbonCategoryWrapper *wrapper);
    // The wrappers in group order.
    const QList<RibbonCategoryWrapper *> &categories() const;

    // All groups collapsed, with their gaps: the narrowest the page can be.
    QSize sizeHint() const override;
    void setGeometry(const QRect &rect) override;
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;

private:
    RibbonCategoryPanel &m_panel;
    QList<RibbonCategoryWrapper *> m_wrappers;
    Q_DISABLE_COPY(RibbonCategoryPanelLayout)
};

} // namespace zel
