#include "RibbonToolBar.h"

#include <QEvent>

namespace zel {

RibbonToolBar::RibbonToolBar(QWidget *parent)
    : QToolBar(parent)
{
}

RibbonToolBar::~RibbonToolBar() = default;

bool RibbonToolBar::event(QEvent *event)
{
    // Hover moves need no handling here, and QToolBar's would repaint the bar.
    if (event->type() == QEvent::HoverMove)
        return false;
    return QToolBar::event(event);
}

void RibbonToolBar::paintEvent(QPaintEvent *)
{
}

} // namespace zel
