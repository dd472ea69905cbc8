#pragma once

#include <QColor>
#include <QIcon>

// The editor's command icons, drawn in code on a 32-unit grid so that the 16- and
// 32-pixel versions match.
enum class EditorIcon {
    Paste, Cut, Copy, FormatPainter,
    Bold, Italic, Underline, Strikethrough, Grow, Shrink, ClearFormat, FontColor, Highlight,
    AlignLeft, AlignCenter, AlignRight, Justify, Bullets, Numbering,
    SelectAll, Find,
    StyleNormal, StyleHeading1, StyleHeading2, StyleTitle, StyleQuote,
    Table, Picture, DateTime, Line, Symbol,
    ZoomIn, ZoomOut, Zoom100, MinimiseRibbon,
    Save, Undo, Redo, NewDocument, OpenFolder,
    RowAbove, RowBelow, ColumnLeft, ColumnRight, DeleteRow, DeleteColumn, DeleteTable,
    PictureLarger, PictureSmaller, PictureReset,
    Page, Words, Help, Person
};

namespace EditorColors {
const QColor Accent(0x2B, 0x57, 0x9A);
const QColor Ink(0x40, 0x40, 0x40);
const QColor Paper(0xFF, 0xFF, 0xFF);
const QColor Clipboard(0xC8, 0x86, 0x2A);
const QColor Green(0x3A, 0x8A, 0x4A);
const QColor Red(0xC4, 0x3E, 0x3E);
const QColor TableTools(0x7A, 0x4F, 0xB5);
const QColor PictureTools(0xC5, 0x5A, 0x11);
} // namespace EditorColors

QIcon editorIcon(EditorIcon icon);
// The same glyph in a single colour, for the dark status bar.
QIcon editorIcon(EditorIcon icon, const QColor &color);
