#pragma once

// The editor's picker commands: colour buttons for the characters and a palette of
// symbols to insert.

class QObject;
class QTextEdit;

namespace zel {
class RibbonCatColorMenuAction;
class RibbonCatMenuAction;
class RibbonCategoryAction;
} // namespace zel

struct EditorColorCommands
{
    zel::RibbonCatColorMenuAction *fontColor = nullptr;
    zel::RibbonCatColorMenuAction *highlight = nullptr;
};

// Font colour ("Automatic" is the default text colour) and text highlight ("None" is no
// highlight), applied to the selection (or the word under the cursor) and following the
// cursor's format. Added to category in the given row.
EditorColorCommands addColorCommands(zel::RibbonCategoryAction &category, int row, QTextEdit *edit,
                                     QObject *owner);

// A drop-down palette of symbols; choosing one inserts it at the cursor.
zel::RibbonCatMenuAction *makeSymbolPalette(QTextEdit *edit, QObject *owner);
