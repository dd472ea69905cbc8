#pragma once

#include "RibbonSimpleAction.h"

namespace zel {

// A separator among simple actions (menus, view popups, status bar).
class ZELRIBBON_EXPORT RibbonSeparatorAction : public RibbonSimpleAction
{
    Q_OBJECT
public:
    explicit RibbonSeparatorAction(QObject *parent = nullptr);
    ~RibbonSeparatorAction() override;
};

} // namespace zel
