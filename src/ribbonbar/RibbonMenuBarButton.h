#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

#include <memory>

namespace zel {

class RibbonCategoriesPanelAction;
class RibbonMenuBar;

// The button of one tab in the ribbon's tab row. Its only action is the tab it shows.
// A single click while the ribbon is minimised acts after a short delay, so that a
// double click (which toggles minimised and pinned) does not open the popup first.
class ZELRIBBON_EXPORT RibbonMenuBarButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonMenuBarButton(RibbonMenuBar &menuBar);
    ~RibbonMenuBarButton() override;

    RibbonMenuBar &ribbonMenuBar() const;
    // The tab shown, null before one is added.
    RibbonCategoriesPanelAction *panelAction() const;

    QSize sizeHint() const override;

public slots:
    void onDoubleClickTimeout();

protected:
    bool event(QEvent *event) override;
    void actionEvent(QActionEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void syncFromAction(RibbonCategoriesPanelAction *tab);

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonMenuBarButton)
};

} // namespace zel
