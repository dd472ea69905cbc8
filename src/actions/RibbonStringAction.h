#pragma once

#include "RibbonAction.h"

namespace zel {

// A plain action carrying a string; it does not announce activation to containers.
class ZELRIBBON_EXPORT RibbonStringAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonStringAction(QObject *parent = nullptr);
    RibbonStringAction(const QString &text, QObject *parent);
    ~RibbonStringAction() override;
};

} // namespace zel
