// Categories of a ribbon tab with every kind of button: large, medium and small buttons,
// checked and disabled ones, button strips, host-assigned rows, automatic rows and long
// two-line captions.

#include "DemoIcons.h"
#include "DemoScreens.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QWidget>

namespace {

using zel::RibbonCatActionGroup;
using zel::RibbonCatMenuAction;
using zel::RibbonCatSimpleAction;
using zel::RibbonCategory;
using zel::RibbonCategoryAction;

using Glyph = DemoShape;
using namespace DemoColors;

QWidget *makeCategoriesScreen()
{
    auto *screen = new DemoPanelBack;
    // The ribbon's metrics (66-pixel large buttons with two caption lines, 14-pixel
    // category captions) are made for the usual 9-point desktop UI font.
    QFont uiFont = screen->font();
    uiFont.setPointSize(9);
    screen->setFont(uiFont);
    // The actions belong to the screen, so they outlive nothing they are shown in.
    QObject *owner = screen;
    auto *layout = new QHBoxLayout(screen);
    layout->setContentsMargins(4, 3, 4, 3);
    layout->setSpacing(2);

    auto simple = [owner](const QIcon &icon, const QString &text, RibbonCatSimpleAction::eSize size) {
        return new RibbonCatSimpleAction(icon, text, size, owner);
    };
    auto addCategory = [screen, layout](RibbonCategoryAction *category) {
        layout->addWidget(new RibbonCategory(screen, *category), 0, Qt::AlignTop);
    };

    // Clipboard: a large button followed by three medium ones in automatic rows.
    auto *clipboard = new RibbonCategoryAction(QStringLiteral("Clipboard"), owner);
    clipboard->addAction(simple(shapeIcon(Glyph::Page, Blue), QStringLiteral("Paste"), RibbonCatSimpleAction::SizeLarge), -1);
    clipboard->addAction(simple(shapeIcon(Glyph::Triangle, Red), QStringLiteral("Cut"), RibbonCatSimpleAction::SizeMedium), -1);
    clipboard->addAction(simple(shapeIcon(Glyph::Square, Blue), QStringLiteral("Copy"), RibbonCatSimpleAction::SizeMedium), -1);
    auto *painterAction = simple(shapeIcon(Glyph::Diamond, Orange), QStringLiteral("Format Painter"), RibbonCatSimpleAction::SizeMedium);
    painterAction->setCheckable(true);
    painterAction->setChecked(true);
    clipboard->addAction(painterAction, -1);
    addCategory(clipboard);

    // Font: strips and small buttons in rows chosen by the host.
    auto *font = new RibbonCategoryAction(QStringLiteral("Font"), owner);
    auto *style = new RibbonCatActionGroup(owner);
    const QString letters = QStringLiteral("BIUS");
    const QStringList names = {QStringLiteral("Bold"), QStringLiteral("Italic"),
                               QStringLiteral("Underline"), QStringLiteral("Strikethrough")};
    for (int i = 0; i < letters.size(); ++i) {
        auto *a = simple(shapeIcon(Glyph::Letter, Ink, letters.at(i)), names.at(i),
                         RibbonCatSimpleAction::SizeSmall);
        a->setToolTip(names.at(i));
        a->setCheckable(true);
        a->setChecked(i == 0);
        style->addAction(a, false);
    }
    auto *script = new RibbonCatActionGroup(owner);
    script->addAction(simple(shapeIcon(Glyph::Letter, Blue, QLatin1Char('x')), QStringLiteral("Subscript"), RibbonCatSimpleAction::SizeSmall), false);
    script->addAction(simple(shapeIcon(Glyph::Letter, Blue, QLatin1Char('X')), QStringLiteral("Superscript"), RibbonCatSimpleAction::SizeSmall), false);
    auto *colours = new RibbonCatActionGroup(owner);
    colours->addAction(simple(shapeIcon(Glyph::Disc, Red), QStringLiteral("Red"), RibbonCatSimpleAction::SizeSmall), false);
    colours->addAction(simple(shapeIcon(Glyph::Disc, Green), QStringLiteral("Green"), RibbonCatSimpleAction::SizeSmall), false);
    auto *disabledColour = simple(shapeIcon(Glyph::Disc, Blue), QStringLiteral("Blue"), RibbonCatSimpleAction::SizeSmall);
    disabledColour->setEnabled(false);
    colours->addAction(disabledColour, false);
    // A wide strip: each cell has a drop-down part that opens its member's menu.
    auto *highlights = new RibbonCatActionGroup(owner);
    const QColor marks[] = {Orange, Teal};
    const QStringList markNames = {QStringLiteral("Highlight"), QStringLiteral("Shading")};
    for (int i = 0; i < 2; ++i) {
        auto *menu = new RibbonCatMenuAction(shapeIcon(Glyph::Square, marks[i]), markNames.at(i),
                                             RibbonCatMenuAction::MenuTypeButton,
                                             RibbonCatMenuAction::MenuSizeSmall,
                                             RibbonCatMenuAction::PopupMenu, owner);
        menu->addAction(simple(shapeIcon(Glyph::Disc, marks[i]), QStringLiteral("Light"), RibbonCatSimpleAction::SizeMedium), false);
        menu->addAction(simple(shapeIcon(Glyph::Disc, marks[i].darker(150)), QStringLiteral("Dark"), RibbonCatSimpleAction::SizeMedium), false);
        highlights->addAction(menu, true);
    }
    font->addAction(style, 0);
    font->addAction(script, 0);
    font->addAction(colours, 1);
    font->addAction(simple(shapeIcon(Glyph::Ring, Teal), QStringLiteral("Grow Font"), RibbonCatSimpleAction::SizeMedium), 1);
    font->addAction(highlights, 2);
    font->addAction(simple(shapeIcon(Glyph::Bars, Violet), QStringLiteral("Clear Formatting"), RibbonCatSimpleAction::SizeMedium), 2);
    addCategory(font);

    // Insert: long captions wrapped to two lines, one checked and one disabled button.
    auto *insert = new RibbonCategoryAction(QStringLiteral("Insert"), owner);
    insert->addAction(simple(shapeIcon(Glyph::Bars, Blue), QStringLiteral("Table of Contents"), RibbonCatSimpleAction::SizeLarge), -1);
    insert->addAction(simple(shapeIcon(Glyph::Square, Green), QStringLiteral("Picture"), RibbonCatSimpleAction::SizeLarge), -1);
    auto *ruler = simple(shapeIcon(Glyph::Ring, Orange), QStringLiteral("Show Ruler Lines"), RibbonCatSimpleAction::SizeLarge);
    ruler->setCheckable(true);
    ruler->setChecked(true);
    insert->addAction(ruler, -1);
    auto *spelling = simple(shapeIcon(Glyph::Letter, Red, QLatin1Char('A')), QStringLiteral("Check Spelling and Grammar"), RibbonCatSimpleAction::SizeLarge);
    spelling->setEnabled(false);
    insert->addAction(spelling, -1);
    addCategory(insert);

    // Arrange: seven small and medium buttons fill three automatic rows column by column.
    auto *arrange = new RibbonCategoryAction(QStringLiteral("Arrange"), owner);
    const Glyph glyphs[] = {Glyph::Disc, Glyph::Square, Glyph::Triangle, Glyph::Diamond,
                            Glyph::Ring, Glyph::Bars, Glyph::Page};
    const QColor tints[] = {Blue, Green, Orange, Red, Violet, Teal, Blue};
    const QStringList labels = {QStringLiteral("Bring Forward"), QStringLiteral("Send Backward"),
                                QStringLiteral("Group"), QString(), QString(), QString(),
                                QStringLiteral("Selection Pane")};
    for (int i = 0; i < 7; ++i) {
        const auto size = labels.at(i).isEmpty() ? RibbonCatSimpleAction::SizeSmall : RibbonCatSimpleAction::SizeMedium;
        auto *a = simple(shapeIcon(glyphs[i], tints[i]), labels.at(i), size);
        if (i == 4) {
            a->setCheckable(true);
            a->setChecked(true);
        }
        if (i == 5)
            a->setEnabled(false);
        arrange->addAction(a, -1);
    }
    addCategory(arrange);

    layout->addStretch(1);
    screen->resize(screen->sizeHint());
    return screen;
}

const bool registered = registerDemoScreen(
    {QStringLiteral("categories"), QStringLiteral("Categories and buttons"), makeCategoriesScreen, 20});

} // namespace
