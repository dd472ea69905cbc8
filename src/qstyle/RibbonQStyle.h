#pragma once

#include "zelribbon_export.h"

#include <QProxyStyle>

namespace zel {

// Paints the standard Qt controls (menus, scroll bars, check boxes, combo boxes, tool
// tips, tool-box tabs, tabs) in the palette's colours and images over a base style,
// so that they sit well next to the ribbon.
class ZELRIBBON_EXPORT RibbonQStyle : public QProxyStyle
{
    Q_OBJECT
public:
    // Takes ownership of baseStyle; nullptr means the default base style.
    explicit RibbonQStyle(QStyle *baseStyle = nullptr);
    ~RibbonQStyle() override;
};

} // namespace zel
