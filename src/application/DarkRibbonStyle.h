#pragma once

#include "DefaultRibbonStyle.h"

namespace zel {

// The dark palette: the same entries as the default one with dark surfaces and light
// text, and its own image set (drawn from the same description as the light images,
// with the same geometry). The application passes ":/zel/ribbon/dark/". Construct it
// after the RibbonApplication: two style sheets scale with its DPI factor.
class ZELRIBBON_EXPORT DarkRibbonStyle : public DefaultRibbonStyle
{
    Q_OBJECT
public:
    explicit DarkRibbonStyle(const QString &imagePath);
    ~DarkRibbonStyle() override;
};

} // namespace zel
