#include "DefaultRibbonStyle.h"

namespace zel {

DefaultRibbonStyle::DefaultRibbonStyle(const QString &imagePath)
{
    Q_UNUSED(imagePath)
}

DefaultRibbonStyle::~DefaultRibbonStyle() = default;

} // namespace zel
