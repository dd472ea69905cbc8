#include "RibbonMainMenuItem.h"

#include <QKeyEvent>

namespace zel {

RibbonMainMenuItem::RibbonMainMenuItem(QWidget *parent)
    : QAbstractButton(parent)
{
}

RibbonMainMenuItem::~RibbonMainMenuItem() = default;

void RibbonMainMenuItem::keyPressEvent(QKeyEvent *event)
{
    event->accept();
}

void RibbonMainMenuItem::paintEvent(QPaintEvent *)
{
}

} // namespace zel
