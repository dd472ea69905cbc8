#pragma once

#include "RibbonStyle.h"

namespace zel {

// The library's palette: a flat light look with a blue accent. Images are loaded from
// imagePath (a directory prefix ending in "/"); a missing file leaves its entry null.
// Construct it after the RibbonApplication: two style sheets scale with its DPI factor.
class ZELRIBBON_EXPORT DefaultRibbonStyle : public RibbonStyle
{
    Q_OBJECT
public:
    explicit DefaultRibbonStyle(const QString &imagePath);
    ~DefaultRibbonStyle() override;

protected:
    // Style-sheet colours the palette entries do not hold, written as style sheets take them.
    struct SheetTones
    {
        QString base;       // fill of edit fields, scroll-bar buttons and light lists
        QString mutedText;  // secondary label text and underlines
        QString editBorder; // border of the backstage text edit
    };

    // For a palette that sets its own colours; fills nothing.
    DefaultRibbonStyle();

    // Loads every image entry from imagePath (a directory prefix ending in "/").
    void loadImages(const QString &imagePath);

    // Builds the style sheets and fonts from the colour entries already set.
    void buildStyleSheets(const SheetTones &tones);
};

} // namespace zel
