#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QStackedWidget>

#include <memory>

namespace zel {

class RibbonCategoriesPanelAction;
class RibbonCategoryPanel;
class RibbonCategoryPanelsProxy;
class RibbonMenuBar;
class RibbonMenuBarButton;

// The panel area of the ribbon: one page per shown tab, the page of the current tab
// on top. Pinned it sits in the bar; minimised it is a popup below the tab row.
class ZELRIBBON_EXPORT RibbonCategoryPanels : public QStackedWidget
{
    Q_OBJECT
public:
    explicit RibbonCategoryPanels(RibbonMenuBar &menuBar);
    ~RibbonCategoryPanels() override;

    RibbonMenuBar &menuBar() const;
    // The page of a tab, null when the tab has none.
    RibbonCategoryPanel *panel(RibbonCategoriesPanelAction *tab) const;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    // The tab whose page this is; null when none.
    QPointer<RibbonCategoriesPanelAction> action(QWidget *page) const;

    void actionEvent(QActionEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    RibbonMenuBarButton *panelMenuButton(QWidget *page) const;
    void giveUpdatesToCurrent();

    friend class RibbonCategoryPanelsProxy;

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCategoryPanels)
};

} // namespace zel
