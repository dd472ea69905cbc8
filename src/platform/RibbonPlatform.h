#pragma once

#include "zelribbon_export.h"

#include <QRect>
#include <QString>

class QStyle;

namespace zel {

// The library's one door to the window system. Every question that a native desktop
// answers (screen resolution, frame metrics, system generation, window management) is
// asked here, so no other part of the library calls a native API. This implementation
// answers with portable Qt.
class ZELRIBBON_EXPORT RibbonPlatform
{
public:
    // Logical resolution of the primary screen in dots per inch. Returns false (and
    // writes 96) when there is no screen yet.
    static bool screenDpi(int *dpiX, int *dpiY);

    // Thickness of a resizable window's sizing frame and height of a system caption,
    // in device-independent pixels at the current screen resolution.
    static int sizingFrameThickness();
    static int captionHeight();

    // The part of the default screen not taken by task bars and docks, in global
    // coordinates; a null rectangle when there is no screen.
    static QRect availableGeometry();

    // Whether the desktop belongs to the generation that introduced translucent frames.
    // Decides the base look and how a maximised frameless window overhangs the work area.
    static bool isVistaOrLater();
    // True only for the generations whose native look the library's default style follows.
    static bool usesVistaLook();

    // Creates the named Qt base style; a name this machine does not offer falls back to
    // "Fusion" so that every machine draws the same.
    static QStyle *createBaseStyle(const QString &name);

private:
    RibbonPlatform() = delete;
};

} // namespace zel
