#pragma once

// What a screen reader learns about the ribbon. Not installed.
//
// The library paints most of its controls itself, so Qt's generic interfaces would
// see plain widgets. A factory installed once per process gives them their roles:
// commands are buttons (check boxes when checkable), menu and colour buttons are
// drop-down buttons, a category is a grouping named by its caption and, folded, a
// menu button that reports whether its popup is open; the tab row is a page-tab list
// of the tabs, the quick-access bar a tool bar, the zoom a slider. Names come from
// the commands' texts without mnemonic marks, descriptions from their screen tips.

class QWidget;

namespace zel {

// Installs the factory; later calls do nothing.
void ribbonInstallAccessibility();

// The control the arrow keys highlight while key tips are shown (child: a cell of a
// button group, -1 for the whole control; null when none). The keyboard focus stays
// where the user was typing, so a screen reader is told of the highlight instead:
// it hears a focus event and sees the control as focused.
void ribbonSetKeyboardHighlight(QWidget *widget, int child = -1);

} // namespace zel
