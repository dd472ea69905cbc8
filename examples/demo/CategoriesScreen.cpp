// Categories of a ribbon tab with every kind of button: large, medium and small buttons,
// checked and disabled ones, button strips, host-assigned rows, automatic rows and long
// two-line captions.

#include "DemoScreens.h"

#include "RibbonApplication.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonStyle.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <functional>

namespace {

using zel::RibbonCatActionGroup;
using zel::RibbonCatMenuAction;
using zel::RibbonCatSimpleAction;
using zel::RibbonCategory;
using zel::RibbonCategoryAction;

enum class Glyph { Disc, Square, Triangle, Page, Bars, Letter, Diamond, Ring };

// Draws a glyph into a square of the given extent; shapes are laid out on a 32-unit
// grid so the 16- and 32-pixel versions match.
void drawGlyph(QPainter &p, int extent, Glyph glyph, const QColor &color, QChar letter)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(extent / 32.0, extent / 32.0);
    const QColor dark = color.darker(140);
    p.setPen(QPen(dark, extent >= 32 ? 1.5 : 2.5));
    p.setBrush(color);
    switch (glyph) {
    case Glyph::Disc:
        p.drawEllipse(QRectF(4, 4, 24, 24));
        break;
    case Glyph::Square:
        p.drawRoundedRect(QRectF(5, 5, 22, 22), 4, 4);
        break;
    case Glyph::Triangle: {
        const QPointF points[3] = {{16, 4}, {28.5, 27}, {3.5, 27}};
        p.drawPolygon(points, 3);
        break;
    }
    case Glyph::Page: {
        QPainterPath path;
        path.moveTo(7, 3);
        path.lineTo(20, 3);
        path.lineTo(26, 9);
        path.lineTo(26, 29);
        path.lineTo(7, 29);
        path.closeSubpath();
        p.setBrush(Qt::white);
        p.drawPath(path);
        p.setPen(QPen(color, 2.5));
        for (int y = 12; y <= 24; y += 5)
            p.drawLine(QPointF(11, y), QPointF(22, y));
        break;
    }
    case Glyph::Bars:
        p.setPen(Qt::NoPen);
        p.setBrush(color);
        for (int i = 0; i < 4; ++i)
            p.drawRoundedRect(QRectF(4, 5 + i * 6.5, i % 2 ? 18 : 24, 4), 1.5, 1.5);
        break;
    case Glyph::Letter: {
        QFont font;
        font.setBold(true);
        font.setPixelSize(26);
        p.setFont(font);
        p.setPen(color);
        p.drawText(QRectF(0, 0, 32, 32), Qt::AlignCenter, QString(letter));
        break;
    }
    case Glyph::Diamond: {
        const QPointF points[4] = {{16, 3}, {29, 16}, {16, 29}, {3, 16}};
        p.drawPolygon(points, 4);
        break;
    }
    case Glyph::Ring:
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(color, 5));
        p.drawEllipse(QRectF(6, 6, 20, 20));
        break;
    }
}

QIcon makeIcon(Glyph glyph, const QColor &color, QChar letter = QChar())
{
    QIcon icon;
    for (int extent : {16, 32}) {
        QPixmap pixmap(extent, extent);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawGlyph(painter, extent, glyph, color, letter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

// The tab panel behind the categories.
class PanelBack : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QPixmap &back = zel::RibbonApplication::theApp().ribbonStyle().mainPanelBack();
        if (back.isNull())
            painter.fillRect(rect(), zel::RibbonApplication::theApp().ribbonStyle().mainClientColor());
        else
            painter.drawPixmap(rect(), back);
    }
};

QWidget *makeCategoriesScreen()
{
    auto *screen = new PanelBack;
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

    const QColor blue(0x2b, 0x6c, 0xc4);
    const QColor green(0x3a, 0x9a, 0x4a);
    const QColor orange(0xe0, 0x7a, 0x1f);
    const QColor red(0xc8, 0x3a, 0x3a);
    const QColor violet(0x7a, 0x4f, 0xb5);
    const QColor teal(0x1f, 0x96, 0x9a);

    auto simple = [owner](const QIcon &icon, const QString &text, RibbonCatSimpleAction::eSize size) {
        return new RibbonCatSimpleAction(icon, text, size, owner);
    };
    auto addCategory = [screen, layout](RibbonCategoryAction *category) {
        layout->addWidget(new RibbonCategory(screen, *category), 0, Qt::AlignTop);
    };

    // Clipboard: a large button followed by three medium ones in automatic rows.
    auto *clipboard = new RibbonCategoryAction(QStringLiteral("Clipboard"), owner);
    clipboard->addAction(simple(makeIcon(Glyph::Page, blue), QStringLiteral("Paste"), RibbonCatSimpleAction::SizeLarge), -1);
    clipboard->addAction(simple(makeIcon(Glyph::Triangle, red), QStringLiteral("Cut"), RibbonCatSimpleAction::SizeMedium), -1);
    clipboard->addAction(simple(makeIcon(Glyph::Square, blue), QStringLiteral("Copy"), RibbonCatSimpleAction::SizeMedium), -1);
    auto *painterAction = simple(makeIcon(Glyph::Diamond, orange), QStringLiteral("Format Painter"), RibbonCatSimpleAction::SizeMedium);
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
        auto *a = simple(makeIcon(Glyph::Letter, QColor(0x33, 0x33, 0x33), letters.at(i)), names.at(i),
                         RibbonCatSimpleAction::SizeSmall);
        a->setToolTip(names.at(i));
        a->setCheckable(true);
        a->setChecked(i == 0);
        style->addAction(a, false);
    }
    auto *script = new RibbonCatActionGroup(owner);
    script->addAction(simple(makeIcon(Glyph::Letter, blue, QLatin1Char('x')), QStringLiteral("Subscript"), RibbonCatSimpleAction::SizeSmall), false);
    script->addAction(simple(makeIcon(Glyph::Letter, blue, QLatin1Char('X')), QStringLiteral("Superscript"), RibbonCatSimpleAction::SizeSmall), false);
    auto *colours = new RibbonCatActionGroup(owner);
    colours->addAction(simple(makeIcon(Glyph::Disc, red), QStringLiteral("Red"), RibbonCatSimpleAction::SizeSmall), false);
    colours->addAction(simple(makeIcon(Glyph::Disc, green), QStringLiteral("Green"), RibbonCatSimpleAction::SizeSmall), false);
    auto *disabledColour = simple(makeIcon(Glyph::Disc, blue), QStringLiteral("Blue"), RibbonCatSimpleAction::SizeSmall);
    disabledColour->setEnabled(false);
    colours->addAction(disabledColour, false);
    // A wide strip: each cell has a drop-down part that opens its member's menu.
    auto *highlights = new RibbonCatActionGroup(owner);
    const QColor marks[] = {orange, teal};
    const QStringList markNames = {QStringLiteral("Highlight"), QStringLiteral("Shading")};
    for (int i = 0; i < 2; ++i) {
        auto *menu = new RibbonCatMenuAction(makeIcon(Glyph::Square, marks[i]), markNames.at(i),
                                             RibbonCatMenuAction::MenuTypeButton,
                                             RibbonCatMenuAction::MenuSizeSmall,
                                             RibbonCatMenuAction::PopupMenu, owner);
        menu->addAction(simple(makeIcon(Glyph::Disc, marks[i]), QStringLiteral("Light"), RibbonCatSimpleAction::SizeMedium), false);
        menu->addAction(simple(makeIcon(Glyph::Disc, marks[i].darker(150)), QStringLiteral("Dark"), RibbonCatSimpleAction::SizeMedium), false);
        highlights->addAction(menu, true);
    }
    font->addAction(style, 0);
    font->addAction(script, 0);
    font->addAction(colours, 1);
    font->addAction(simple(makeIcon(Glyph::Ring, teal), QStringLiteral("Grow Font"), RibbonCatSimpleAction::SizeMedium), 1);
    font->addAction(highlights, 2);
    font->addAction(simple(makeIcon(Glyph::Bars, violet), QStringLiteral("Clear Formatting"), RibbonCatSimpleAction::SizeMedium), 2);
    addCategory(font);

    // Insert: long captions wrapped to two lines, one checked and one disabled button.
    auto *insert = new RibbonCategoryAction(QStringLiteral("Insert"), owner);
    insert->addAction(simple(makeIcon(Glyph::Bars, blue), QStringLiteral("Table of Contents"), RibbonCatSimpleAction::SizeLarge), -1);
    insert->addAction(simple(makeIcon(Glyph::Square, green), QStringLiteral("Picture"), RibbonCatSimpleAction::SizeLarge), -1);
    auto *ruler = simple(makeIcon(Glyph::Ring, orange), QStringLiteral("Show Ruler Lines"), RibbonCatSimpleAction::SizeLarge);
    ruler->setCheckable(true);
    ruler->setChecked(true);
    insert->addAction(ruler, -1);
    auto *spelling = simple(makeIcon(Glyph::Letter, red, QLatin1Char('A')), QStringLiteral("Check Spelling and Grammar"), RibbonCatSimpleAction::SizeLarge);
    spelling->setEnabled(false);
    insert->addAction(spelling, -1);
    addCategory(insert);

    // Arrange: seven small and medium buttons fill three automatic rows column by column.
    auto *arrange = new RibbonCategoryAction(QStringLiteral("Arrange"), owner);
    const Glyph glyphs[] = {Glyph::Disc, Glyph::Square, Glyph::Triangle, Glyph::Diamond,
                            Glyph::Ring, Glyph::Bars, Glyph::Page};
    const QColor tints[] = {blue, green, orange, red, violet, teal, blue};
    const QStringList labels = {QStringLiteral("Bring Forward"), QStringLiteral("Send Backward"),
                                QStringLiteral("Group"), QString(), QString(), QString(),
                                QStringLiteral("Selection Pane")};
    for (int i = 0; i < 7; ++i) {
        const auto size = labels.at(i).isEmpty() ? RibbonCatSimpleAction::SizeSmall : RibbonCatSimpleAction::SizeMedium;
        auto *a = simple(makeIcon(glyphs[i], tints[i]), labels.at(i), size);
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
