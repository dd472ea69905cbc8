#pragma once

// Deferred decoding of palette images. Not installed.

#include <QtGlobal>

namespace zel {

// While an instance lives, palettes constructed meanwhile decode each image on its
// first use through a getter instead of in their constructor. Only for palettes the
// library builds and keeps itself: a host's subclass may read its image entries directly.
class RibbonDeferredPaletteImages
{
public:
    RibbonDeferredPaletteImages();
    ~RibbonDeferredPaletteImages();

private:
    bool m_outer;
    Q_DISABLE_COPY(RibbonDeferredPaletteImages)
};

} // namespace zel
