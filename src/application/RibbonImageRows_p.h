#pragma once

// The rows of the palette's state images (RibbonStyle): each image holds one row (or
// column) per look, and a widget picks the row by its state. One set of names per
// family of images, named after the looks. Not installed.

namespace zel {
namespace RibbonImageRows {

// No row: the state paints no background.
constexpr int NoRow = -1;

// paletteItemLarge (66-pixel rows) and paletteItemSmall (22-pixel rows): ribbon
// buttons and popup cells.
namespace PaletteItem {
enum : int { Hover, Pressed, Checked, CheckedHover, Disabled };
}

// normalButtonSmall (22-pixel rows): small tool buttons. Outline is the faint resting
// outline, drawn for a disabled checked tool button and by the status bar's buttons
// at rest.
namespace SmallButton {
enum : int { Outline, Hover, Pressed, CheckedHover, Checked };
}

// btnGroupFirst, btnGroupMidle and btnGroupLast (22-pixel rows): the cells of a button
// strip.
namespace GroupCell {
enum : int { Normal, Hover, Pressed, Checked, CheckedHover };
}

// horizontalMenuButtonCaption (22-pixel rows) and verticalMenuButtonCaption (39): the
// caption part of a menu button. The pressed look is also the checked one; Framed is
// the drawn border, and a caption hovered while its action is disabled.
namespace MenuCaption {
enum : int { Hover, Pressed, Checked = Pressed, Open, CheckedHover, Framed, OtherPartHovered };
}

// horizontalMenuButtonMenu (22-pixel rows) and verticalMenuButtonMenu (27): the arrow
// part of a menu button.
namespace MenuArrow {
enum : int { Hover, Pressed, Open, Framed, OtherPartHovered };
}

// menuBarButton (24-pixel rows): the tab buttons. The first two rows are not read.
namespace TabButton {
enum : int { Hover = 2, Current, CurrentHover };
}

// fileBarButton (24-pixel rows): the File button.
namespace FileButton {
enum : int { HoverOrChecked, Normal };
}

// categoryWrapperBack (85-pixel rows): the button of a folded group.
namespace FoldedGroup {
enum : int { Normal, Hover, Open };
}

// sliderMinus and sliderPlus (18-pixel frames), sliderThumb (15-pixel frames): the
// parts of the zoom slider.
namespace SliderPart {
enum : int { Normal, Hover, Pressed };
}

// statusBar: two halves side by side, 34 columns each.
namespace StatusBarHalf {
enum : int { Active, Inactive };
}

// mainPanelButton (23-pixel frames): the page buttons of the options dialog and of the
// stacked panes. The dialog shows a hovered button in LightHover and its checked one in
// Hover; the panes use Hover and Checked.
namespace PanelButton {
enum : int { LightHover, Hover, Checked };
}

} // namespace RibbonImageRows
} // namespace zel
