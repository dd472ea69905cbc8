#pragma once

#include "RibbonWindowBorder.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonWindowDrag;

// One of the eight shadow strips around a window. Other code recognises the items by
// their object name "BorderItem" (for example to leave them out of window lists).
class RibbonWindowBorder::BorderItem : public QWidget
{
public:
    // Positions run clockwise from the left side.
    enum Position {
        Left = 1,
        TopLeft,
        Top,
        TopRight,
        Right,
        BottomRight,
        Bottom,
        BottomLeft
    };

    BorderItem(QWidget *window, int position, bool stayOnTop);
    ~BorderItem() override;

    // Sizes the item and puts it against its edge or corner of the window.
    void place();
    // Hides the item outside a drag and shows it again in front while the window shows.
    void syncVisibility();

    int position;
    QWidget *window;
    // Set from the press of the left button to its release; the item stays shown meanwhile.
    bool pressed;
    std::unique_ptr<RibbonWindowDrag> drag;
    bool closing;
    bool stayOnTop;
    bool covered;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateMask();
    // Puts band i of the shadow into bands as one or two rectangles; returns how many.
    int shadowBand(int i, QRect bands[2]) const;
    bool windowHasFixedSize() const;
};

} // namespace zel
