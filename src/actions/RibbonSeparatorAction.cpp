#include "RibbonSeparatorAction.h"

namespace zel {

RibbonSeparatorAction::RibbonSeparatorAction(QObject *parent)
    : RibbonSimpleAction(parent)
{
    setSeparator(true);
}

RibbonSeparatorAction::~RibbonSeparatorAction() = default;

} // namespace zel
