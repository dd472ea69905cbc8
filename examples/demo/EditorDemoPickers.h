#pragma once

// The editor's picker commands: colour buttons for the characters and a palette of
// symbols to insert.

#include <functional>

class QObject;
class QTextCharFormat;
class QTextEdit;

// The editor of the current document (null while there is none): the commands act on
// whichever document is current when they trigger.
using CurrentEditor = std::function<QTextEdit *()>;

namespace zel {
class RibbonCatColorMenuAction;
class RibbonCatMenuAction;
class RibbonCategoryAction;
} // namespace zel

struct EditorColorCommands
{
    zel::RibbonCatColorMenuAction *fontColor = nullptr;
    zel::RibbonCatColorMenuAction *highlight = nullptr;
    // Shows the colours of a format (the one at the cursor) without applying anything.
    std::function<void(const QTextCharFormat &)> follow;
};

// Font colour ("Automatic" is the default text colour) and text highlight ("None" is no
// highlight), applied to the selection (or the word under the cursor) and following the
// cursor's format through follow. Added to category in the given row.
EditorColorCommands addColorCommands(zel::RibbonCategoryAction &category, int row, const CurrentEditor &editor,
                                     QObject *owner);

// A drop-down palette of symbols; choosing one inserts it at the cursor.
zel::RibbonCatMenuAction *makeSymbolPalette(const CurrentEditor &editor, QObject *owner);
