#pragma once

#include "zelribbon_export.h"

class QStyle;

namespace zel {

// Base look of the RibbonQStyle laid over the whole application.
enum Style {
    StyleWindowsXP = 0,
    StyleWindowsVista = 1,
    StyleWindowsClassic = 2,
    // Returned by currentStyle() when the application's style is not a RibbonQStyle.
    StyleForeign = 3
};

// Styles made for single controls.
enum ControlStyle {
    ControlStyleMainTabBar = 0
};

// A new RibbonQStyle over the base style named by style; the caller owns it.
ZELRIBBON_EXPORT QStyle *createStyle(Style style);
// A new style for one kind of control, or nullptr for an unknown kind; the caller owns it.
ZELRIBBON_EXPORT QStyle *createStyle(ControlStyle style);
// The base look that suits the desktop the application runs on.
ZELRIBBON_EXPORT Style defaultStyle();
// StyleWindowsXP when the application's style is a RibbonQStyle, else StyleForeign.
ZELRIBBON_EXPORT Style currentStyle();

} // namespace zel
