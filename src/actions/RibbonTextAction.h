#pragma once

#include "RibbonSimpleAction.h"

namespace zel {

// A simple action that shows a text.
class ZELRIBBON_EXPORT RibbonTextAction : public RibbonSimpleAction
{
    Q_OBJECT
public:
    explicit RibbonTextAction(QObject *parent = nullptr);
    RibbonTextAction(const QString &text, QObject *parent);
    // Unlike the simple action, copies the alias's text and icon at once.
    RibbonTextAction(QPointer<RibbonAction> alias, QObject *parent);
    ~RibbonTextAction() override;
};

} // namespace zel
