#pragma once

// The menu a right click on the ribbon opens. Not installed.
//
// On a command that can stand in the quick-access bar it offers to add it there, or to
// take it away when it is there already; everywhere on the ribbon (tab row, panel,
// categories, folded categories' popups, quick-access bar) it offers to collapse or to
// pin the ribbon, as the collapse button of the tab row would.

class QContextMenuEvent;
class QMenu;
class QWidget;

namespace zel {

// Opens the menu for event, which reached receiver (a widget of the ribbon or one of
// its popups), and accepts the event. Returns the menu, which deletes itself when it
// closes; null (the event left alone) when receiver belongs to no ribbon.
QMenu *ribbonOpenContextMenu(QWidget &receiver, QContextMenuEvent *event);

} // namespace zel
