#pragma once

#include "zelribbon_export.h"

#include <QScrollBar>

namespace zel {

// The narrow vertical scroll bar of the in-ribbon gallery: two buttons, the upper one
// scrolling up a row and the lower one down, with no slider. Held down, a button
// repeats.
class ZELRIBBON_EXPORT OfficeScrollBar : public QScrollBar
{
    Q_OBJECT
public:
    explicit OfficeScrollBar(QWidget *parent = nullptr);
    ~OfficeScrollBar() override;

    // Whether a button is held down with the left mouse button.
    bool isPressed() const;

    // The style's size, within the minimum and maximum width: the scroll area sizes its
    // scroll bar by the hint, so a fixed width set on the bar holds.
    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    SliderAction actionAt(const QPoint &pos) const;

    bool m_pressed = false;
    Q_DISABLE_COPY(OfficeScrollBar)
};

} // namespace zel
