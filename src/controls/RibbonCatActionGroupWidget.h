#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonCatActionGroup;

// The strip of a RibbonCatActionGroup: one 22-pixel cell per member (30 pixels with a
// drop-down part in a wide group), drawn as one segmented control. Clicking an enabled
// cell triggers its action. In a wide strip, menu-like members get a hidden button
// whose popup the press on their cell opens.
class ZELRIBBON_EXPORT RibbonCatActionGroupWidget : public QWidget
{
    Q_OBJECT
public:
    RibbonCatActionGroupWidget(RibbonCatActionGroup &group, QWidget *parent);
    ~RibbonCatActionGroupWidget() override;

    // The group shown; null once it has been destroyed.
    RibbonCatActionGroup *group() const;
    // Index of the cell under pos, or -1 when pos lies outside every cell.
    int cellAt(const QPoint &pos) const;
    // The cell of the member at index; null when there is none.
    QRect cellRect(int index) const;

    QSize sizeHint() const override;

protected:
    void actionEvent(QActionEvent *event) override;
    // The hovered cell changes its look; leaving must repaint it.
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int cellWidth() const;
    void syncPopupWidgets();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCatActionGroupWidget)
};

} // namespace zel
