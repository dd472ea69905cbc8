#pragma once

// What a ribbon control tells about its command. Not installed.
//
// A command the host describes gets a screen tip: its text in bold with its shortcut,
// then the description (the action's statusTip, else its whatsThis), then, while it is
// disabled, the reason the host gives in the action's "disabledReason" property. A
// command without a description or a reason keeps its plain tool tip.

#include "RibbonAutotestExport_p.h"

#include <QString>

class QAction;

namespace zel {

ZELRIBBON_AUTOTEST_EXPORT QString ribbonScreenTip(const QAction *action);

// The name a screen reader gives the control of a command: its text without mnemonic
// marks, else its tool tip (icon-only commands).
ZELRIBBON_AUTOTEST_EXPORT QString ribbonAccessibleName(const QAction *action);

// The longer description of a command: its statusTip, else its whatsThis.
ZELRIBBON_AUTOTEST_EXPORT QString ribbonDescription(const QAction *action);

// text without its mnemonic marks; a doubled "&" stays as one.
QString ribbonShownText(const QString &text);

} // namespace zel
