#include "RibbonTextAction.h"

namespace zel {

RibbonTextAction::RibbonTextAction(QObject *parent)
    : RibbonSimpleAction(parent)
{
}

RibbonTextAction::RibbonTextAction(const QString &text, QObject *parent)
    : RibbonSimpleAction(text, parent)
{
}

RibbonTextAction::RibbonTextAction(QPointer<RibbonAction> alias, QObject *parent)
    : RibbonSimpleAction(alias, parent)
{
    if (alias) {
        setText(alias->text());
        setIcon(alias->icon());
    }
}

RibbonTextAction::~RibbonTextAction() = default;

} // namespace zel
