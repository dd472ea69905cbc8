#pragma once

#include "IRibbonGroupWidget.h"
#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonCatColorMenuAction;
class RibbonColorPickerPopup;

// The button of a RibbonCatColorMenuAction: the action's icon (with its colour bar),
// caption and a drop-down mark, in the action's size class. A press opens the colour
// picker below the button; what is chosen there goes to the action.
class ZELRIBBON_EXPORT RibbonCatColorMenuButton : public QWidget, public IRibbonGroupWidget
{
    Q_OBJECT
public:
    RibbonCatColorMenuButton(RibbonCatColorMenuAction &action, QWidget *parent);
    ~RibbonCatColorMenuButton() override;

    // The action shown; null once it has been destroyed.
    RibbonCatColorMenuAction *action() const;
    // The picker this button opens; it lives as long as the button.
    RibbonColorPickerPopup &popup() const;

    QSize sizeHint() const override;

    // Hands over a press that reached a container keeping this button hidden.
    void processEvents(QEvent *event) override;

protected:
    void actionEvent(QActionEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private slots:
    void popupClosed();

private:
    void calculateLineCount();
    void drawLargeIcon(QPainter &painter);
    void drawRowButton(QPainter &painter);
    // Row of the background image for the current state; NoRow for none.
    int stateRow(int hoverRow, int openRow) const;

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCatColorMenuButton)
};

} // namespace zel
