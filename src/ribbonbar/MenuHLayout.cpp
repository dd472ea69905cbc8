#include "MenuHLayout.h"

namespace zel {

MenuHLayout::MenuHLayout() = default;

MenuHLayout::MenuHLayout(QWidget *parent)
    : QHBoxLayout(parent)
{
}

MenuHLayout::~MenuHLayout() = default;

QSize MenuHLayout::sizeHint() const
{
    return QHBoxLayout::sizeHint();
}

QSize MenuHLayout::minimumSize() const
{
    return QHBoxLayout::minimumSize();
}

QSize MenuHLayout::maximumSize() const
{
    return QHBoxLayout::maximumSize();
}

} // namespace zel
