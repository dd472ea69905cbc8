#pragma once

// Tests for classes the library does not have yet, by class name, so that the code
// that must treat them apart can do so already. Each test becomes a qobject_cast when
// its class arrives. Not installed.

#include <QObject>

namespace zel {
namespace RibbonClassChecks {

// An in-ribbon gallery: the category frames it.
inline bool isListPreview(const QObject *object)
{
    return object && object->inherits("zel::RibbonCatListPreview");
}

} // namespace RibbonClassChecks
} // namespace zel
