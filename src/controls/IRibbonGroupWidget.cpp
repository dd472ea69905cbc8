#include "IRibbonGroupWidget.h"

#include <QWidget>

namespace zel {

IRibbonGroupWidget *IRibbonGroupWidget::groupWidget(QWidget *widget)
{
    return widget ? static_cast<IRibbonGroupWidget *>(widget->qt_metacast("IRibbonGroupWidget")) : nullptr;
}

} // namespace zel
