#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonCategoryPanels;
class RibbonMenuBar;

// Stands in the ribbon bar's grid for the panel area. It owns the real panel widget
// and decides whether that widget is embedded (the ribbon is pinned) or a popup that
// opens below the tab row when a tab is clicked (the ribbon is minimised).
class ZELRIBBON_EXPORT RibbonCategoryPanelsProxy : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonCategoryPanelsProxy(RibbonMenuBar &menuBar);
    ~RibbonCategoryPanelsProxy() override;

    // The panel widget; null once it has been destroyed.
    RibbonCategoryPanels *subject() const;

    // Whether the panel widget is a popup, i.e. the ribbon is minimised.
    bool isCollapsable() const;
    void setCollapsable(bool collapsable);
    // Closes the popup panel; does nothing while the ribbon is pinned.
    void collapse();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void actionEvent(QActionEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCategoryPanelsProxy)
};

} // namespace zel
