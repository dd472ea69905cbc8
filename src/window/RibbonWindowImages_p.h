#pragma once

// Where the states and pieces lie in the palette's window images (RibbonStyle's
// mainBorderCaption, mainBorder, sysBtnBack and the sysBtn glyph strips), for the
// frameless window, the title-row buttons and the child window's caption buttons that
// paint from them. Not installed.

namespace zel {
namespace WindowImages {

// mainBorderCaption (70 by 31) and mainBorder (70 by 23) hold two halves of 35 columns:
// the active window's, then the inactive one's. In each half columns 0-6 are the left
// end, 7-27 the stretchable middle, 28-34 the right end.
namespace Frame {
constexpr int InactiveHalf = 35;
constexpr int HalfWidth = 35;
constexpr int EndWidth = 7;
constexpr int RightEndX = 28;
// mainBorderCaption: the caption, the image's full height.
constexpr int CaptionHeight = 31;
// mainBorder: a one-pixel row for the sides, then seven rows for the bottom.
constexpr int SideRow = 15;
constexpr int BottomRow = 16;
constexpr int BottomHeight = 7;
} // namespace Frame

// sysBtnBack, 17 by 32: the back of a system button, one 16-pixel row per state.
namespace SysButtonBack {
constexpr int Width = 17;
constexpr int RowHeight = 16;
constexpr int HoverRow = 0;
constexpr int PressedRow = 16;
} // namespace SysButtonBack

// sysBtnMinimize, sysBtnMaximize, sysBtnRestore, sysBtnClose, 17 by 80: the title-row
// glyphs, one 16-pixel frame per state.
namespace SysButtonGlyph {
constexpr int Width = 17;
constexpr int RowHeight = 16;
constexpr int PressedRow = 0;
constexpr int HoverRow = 16;
constexpr int ActiveRow = 32;
constexpr int InactiveRow = 64;
// A child window's undock button (sysBtnRestore) at rest takes the hover frame.
constexpr int UndockRestingRow = HoverRow;
} // namespace SysButtonGlyph

// sysBtnMinimizeSmall, sysBtnMaximizeSmall, sysBtnRestoreSmall, sysBtnCloseSmall,
// 13 by 60: the frameless window's smaller glyphs, frames of 13 by 12.
namespace SmallSysButtonGlyph {
constexpr int Width = 13;
constexpr int RowHeight = 12;
constexpr int PressedRow = 0;
constexpr int HoverRow = 12;
constexpr int NormalRow = 36;
// The child window's close button at rest (sysBtnCloseSmall).
constexpr int ChildNormalRow = 24;
} // namespace SmallSysButtonGlyph

} // namespace WindowImages
} // namespace zel
