#include "RibbonStringAction.h"

namespace zel {

RibbonStringAction::RibbonStringAction(QObject *parent)
    : RibbonAction(parent)
{
}

RibbonStringAction::RibbonStringAction(const QString &text, QObject *parent)
    : RibbonAction(text, parent)
{
}

RibbonStringAction::~RibbonStringAction() = default;

} // namespace zel
