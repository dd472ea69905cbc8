#pragma once

#include "IRibbonGroupWidget.h"
#include "zelribbon_export.h"

#include <QPointer>
#include <QWidget>

namespace zel {

class RibbonCatMenuAction;
class RibbonCatMenuButtonPriv;

// The button of a RibbonCatMenuAction in a ribbon group. It opens the action's
// drop-down; when the action has a default action it is a split button whose caption
// part runs that default action and whose arrow part opens the drop-down. Geometry,
// painting and mouse handling live in a private object chosen by the menu type.
class ZELRIBBON_EXPORT RibbonCatMenuButton : public QWidget, public IRibbonGroupWidget
{
    Q_OBJECT
public:
    RibbonCatMenuButton(RibbonCatMenuAction &action, QWidget *parent);
    ~RibbonCatMenuButton() override;

    // The action shown; null once it has been destroyed.
    RibbonCatMenuAction *action() const;

    QSize sizeHint() const override;

    // Hands over a press that reached a container keeping this button hidden.
    void processEvents(QEvent *event) override;

    // Whether the drop-down of this button is open.
    bool isPopupOpen() const;

    // Draws the resting outline of a plain drop-down button (as in the status bar).
    void drawBorder(bool draw);

protected:
    void actionEvent(QActionEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private slots:
    void onDefaultActionChanged();

private:
    void refreshFromAction(QActionEvent *event);

    // Guarded as a QAction and read through qobject_cast: a QPointer of the menu action's
    // own class would cast it down while it is being destroyed.
    QPointer<QAction> m_action;
    RibbonCatMenuButtonPriv *d = nullptr;

    Q_DISABLE_COPY(RibbonCatMenuButton)
};

} // namespace zel
