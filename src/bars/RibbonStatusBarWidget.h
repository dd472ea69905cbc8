#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QWidget>

namespace zel {

class RibbonSimpleAction;

// The small toggle button the status bar makes for a simple action: the action's icon
// on a button background, sunken while the action is checked.
class ZELRIBBON_EXPORT RibbonStatusBarWidget : public QWidget
{
    Q_OBJECT
public:
    RibbonStatusBarWidget(RibbonSimpleAction &action, QWidget *parent);
    ~RibbonStatusBarWidget() override;

    // The action shown; null once it has been destroyed.
    RibbonSimpleAction *action() const;

    QSize sizeHint() const override;

protected:
    void actionEvent(QActionEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    bool isHovered() const;
    void syncFromAction();

    QPointer<QAction> m_action;
    // Last cursor position seen over the widget; none after it left.
    QPoint m_mousePos;
    bool m_mouseInside = false;
    // Drawn sunken: follows the action's checked state, and toggles while the mouse
    // button is down so that a press shows at once.
    bool m_pressed = false;

    Q_DISABLE_COPY(RibbonStatusBarWidget)
};

} // namespace zel
