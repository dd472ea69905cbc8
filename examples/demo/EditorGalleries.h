#pragma once

// The editor's commands that show as tiles: the paragraph styles as an in-ribbon
// gallery on the Home tab, and the page layout and zoom presets in a view popup on the
// View tab.

#include "EditorDemoPickers.h"

#include <functional>

class QObject;
class QTextEdit;

namespace zel {
class RibbonCategoryAction;
class RibbonPercAction;
}

// The Styles group: a gallery whose tiles format the paragraph at the cursor (the tile
// of the paragraph's style is checked) and whose button opens the full list with a
// Clear Formatting command.
struct EditorStyles
{
    zel::RibbonCategoryAction *category = nullptr;
    // Checks the tile of the paragraph at the current editor's cursor.
    std::function<void()> follow;
};
EditorStyles buildStylesCategory(const CurrentEditor &editor, QObject *owner);

// The Layout group: a Page Layout button opening a view popup with the print and web
// layouts on top, zoom presets as tiles (through zoom, which the status bar shows) and
// Custom Zoom... at the bottom. printLayout switches the editor's page look.
zel::RibbonCategoryAction *buildLayoutCategory(zel::RibbonPercAction *zoom, const CurrentEditor &editor,
                                               std::function<void(bool)> printLayout, QObject *owner);
