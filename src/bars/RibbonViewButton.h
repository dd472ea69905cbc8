#pragma once

#include "RibbonMainMenuItem.h"
#include "zelribbon_export.h"

#include <memory>

namespace zel {

class RibbonSimpleAction;

// An entry of the view popup bound to one simple action: a row (icon gutter and text)
// in the popup's top and bottom lists, or an icon tile in its grid. It mirrors the
// action's text, icon, tool tip and enabled state; a press followed by a release on
// the entry emits clicked() and triggers the action.
class ZELRIBBON_EXPORT RibbonViewButton : public RibbonMainMenuItem
{
    Q_OBJECT
public:
    // listMode: a row when true, a tile when false. showIcon: rows show the action's icon
    // in the gutter. centred: row text centred instead of left-aligned.
    RibbonViewButton(RibbonSimpleAction *action, bool listMode, bool showIcon, bool centred,
                     QWidget *parent);
    ~RibbonViewButton() override;

    // The action shown; null once it has been destroyed.
    RibbonSimpleAction *action() const;
    bool isListMode() const;

    QSize sizeHint() const override;

signals:
    void buttonClicked(RibbonSimpleAction *action);

protected:
    void actionEvent(QActionEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawMarker(QPainter &painter, int w, int h);
    void paintRow(QPainter &painter, bool hot);
    void paintTile(QPainter &painter, bool hot);

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonViewButton)
};

} // namespace zel
