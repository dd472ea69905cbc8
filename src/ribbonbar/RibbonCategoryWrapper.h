#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

class RibbonCategory;
class RibbonCategoryAction;
class RibbonCategoryPanel;
class RibbonCategoryWrapperPopup;

// Holds one group of a tab page. Expanded it is an invisible frame around the group's
// RibbonCategory; collapsed (chosen by the page layout) it hides the group and paints
// itself as one tall button that opens the full group in a popup.
class ZELRIBBON_EXPORT RibbonCategoryWrapper : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonCategoryWrapper(RibbonCategoryPanel &panel, RibbonCategoryAction &action);
    ~RibbonCategoryWrapper() override;

    RibbonCategoryPanel &categoryPanel() const;
    RibbonCategoryAction &categoryAction() const;
    // The group widget shown while expanded.
    RibbonCategory *category() const;

    bool isColapsed() const;
    void setColapsed(bool colapsed);

    // True while the popup of the collapsed group is open.
    bool isMyChecked() const;
    void setMyChecked(bool checked);
    // The open popup, null when none.
    RibbonCategoryWrapperPopup *popup() const;

    // Full size of the group, and the size of the collapsed button.
    QSize normalSize() const;
    QSize colapsedSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCategoryWrapper)
};

} // namespace zel
