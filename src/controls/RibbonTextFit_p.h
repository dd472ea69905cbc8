#pragma once

// Caption measuring shared by large buttons, large menu buttons and folded category
// buttons. Not installed.

#include "RibbonAutotestExport_p.h"

#include <QString>

class QWidget;

namespace zel {

struct RibbonCaptionFit
{
    int textWidth = 0;    // the caption on one line
    bool wrapped = false; // too long for one line: width and height come from the search
    int width = 0;        // bounding width at the narrowest two-line trial
    int height = 0;       // bounding height there; 0 when no trial fitted

    // The width the caption takes: on one line, or wrapped into two.
    int captionWidth() const { return wrapped ? width : textWidth; }
};

// Measures a caption in the widget's font. Captions with textWidth + 4 < 35 stay on one
// line. Longer ones take the narrowest wrapping in at most two lines: trial widths are
// searched by halving steps from textWidth; each trial measures the text as
// QFontMetrics::boundingRect(QRect(0, 0, trial, 0), AlignTop | AlignHCenter |
// TextWordWrap, text) does, and the last trial that fits gives width and height.
// The text is shaped once for the whole search, and results are remembered per font,
// resolution and text.
ZELRIBBON_AUTOTEST_EXPORT RibbonCaptionFit ribbonCaptionFit(const QWidget &widget, const QString &text);

} // namespace zel
