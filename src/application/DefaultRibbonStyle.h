#pragma once

#include "RibbonStyle.h"

namespace zel {

// The library's palette: a flat light look with a blue accent. Images are loaded from
// imagePath (a directory prefix ending in "/"); a missing file leaves its entry null.
// Construct it after the RibbonApplication: two style sheets scale with its DPI factor.
class ZELRIBBON_EXPORT DefaultRibbonStyle : public RibbonStyle
{
    Q_OBJECT
public:
    explicit DefaultRibbonStyle(const QString &imagePath);
    ~DefaultRibbonStyle() override;
};

} // namespace zel
