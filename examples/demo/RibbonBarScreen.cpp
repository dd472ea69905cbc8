// The ribbon bar in a main window: several tabs with categories of generated icons, a
// help button and a contextual tab set on display; once wide and once narrow, where
// the categories that free the least width fold into single buttons.

#include "DemoIcons.h"
#include "DemoScreens.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonSimpleAction.h"

#include <QIcon>
#include <QPlainTextEdit>

namespace {

using zel::RibbonCatActionGroup;
using zel::RibbonCatSimpleAction;
using zel::RibbonCategoriesPanelAction;
using zel::RibbonCategoryAction;
using zel::RibbonContextCategoryPanelAction;

using Shape = DemoShape;

using namespace DemoColors;

// Builds the host's actions, owned by the window.
class RibbonBuilder
{
public:
    explicit RibbonBuilder(QObject *owner)
        : m_owner(owner)
    {
    }

    RibbonCatSimpleAction *simple(const QIcon &icon, const QString &text, RibbonCatSimpleAction::eSize size)
    {
        return new RibbonCatSimpleAction(icon, text, size, m_owner);
    }
    RibbonCategoryAction *category(const QString &text, const QIcon &icon)
    {
        return new RibbonCategoryAction(icon, text, m_owner);
    }
    RibbonCatActionGroup *group() { return new RibbonCatActionGroup(m_owner); }
    RibbonCategoriesPanelAction *tab(const QString &text)
    {
        return new RibbonCategoriesPanelAction(text, m_owner);
    }

    // A large button followed by medium ones in automatic rows.
    RibbonCategoryAction *largeAndMedium(const QString &caption, const QIcon &groupIcon,
                                         const QIcon &largeIcon, const QString &large,
                                         const QList<QPair<QIcon, QString>> &medium)
    {
        RibbonCategoryAction *c = category(caption, groupIcon);
        c->addAction(simple(largeIcon, large, RibbonCatSimpleAction::SizeLarge), -1);
        for (const auto &m : medium)
            c->addAction(simple(m.first, m.second, RibbonCatSimpleAction::SizeMedium), -1);
        return c;
    }

    RibbonCategoryAction *larges(const QString &caption, const QIcon &groupIcon,
                                 const QList<QPair<QIcon, QString>> &buttons)
    {
        RibbonCategoryAction *c = category(caption, groupIcon);
        for (const auto &b : buttons)
            c->addAction(simple(b.first, b.second, RibbonCatSimpleAction::SizeLarge), -1);
        return c;
    }

private:
    QObject *m_owner;
};

QWidget *makeRibbonWindow(int width)
{
    auto *window = new zel::RibbonMainWindow;
    QFont uiFont = window->font();
    uiFont.setPointSize(9);
    window->setFont(uiFont);
    window->setWindowTitle(QStringLiteral("Document1"));

    auto *document = new QPlainTextEdit(window);
    document->setPlainText(QStringLiteral("The ribbon above shows the HOME tab with its categories."));
    window->setCentralWidget(document);

    RibbonBuilder b(window);
    zel::RibbonMenuBar &bar = window->ribbonMenuBar();

    // HOME
    RibbonCategoriesPanelAction *home = b.tab(QStringLiteral("Home"));
    home->addCategory(b.largeAndMedium(QStringLiteral("Clipboard"), shapeIcon(Shape::Page, Blue),
                                       shapeIcon(Shape::Page, Blue), QStringLiteral("Paste"),
                                       {{shapeIcon(Shape::Triangle, Red), QStringLiteral("Cut")},
                                        {shapeIcon(Shape::Square, Blue), QStringLiteral("Copy")},
                                        {shapeIcon(Shape::Diamond, Orange), QStringLiteral("Format Painter")}}));

    RibbonCategoryAction *font = b.category(QStringLiteral("Font"), shapeIcon(Shape::Letter, Ink, QLatin1Char('A')));
    RibbonCatActionGroup *style = b.group();
    const QString letters = QStringLiteral("BIUS");
    const QStringList names = {QStringLiteral("Bold"), QStringLiteral("Italic"), QStringLiteral("Underline"),
                               QStringLiteral("Strikethrough")};
    for (int i = 0; i < letters.size(); ++i) {
        RibbonCatSimpleAction *a = b.simple(shapeIcon(Shape::Letter, Ink, letters.at(i)), names.at(i),
                                            RibbonCatSimpleAction::SizeSmall);
        a->setCheckable(true);
        a->setChecked(i == 0);
        style->addAction(a, false);
    }
    RibbonCatActionGroup *colours = b.group();
    colours->addAction(b.simple(shapeIcon(Shape::Disc, Red), QStringLiteral("Red"), RibbonCatSimpleAction::SizeSmall), false);
    colours->addAction(b.simple(shapeIcon(Shape::Disc, Green), QStringLiteral("Green"), RibbonCatSimpleAction::SizeSmall), false);
    colours->addAction(b.simple(shapeIcon(Shape::Disc, Blue), QStringLiteral("Blue"), RibbonCatSimpleAction::SizeSmall), false);
    font->addAction(style, 0);
    font->addAction(colours, 1);
    font->addAction(b.simple(shapeIcon(Shape::Ring, Teal), QStringLiteral("Grow Font"), RibbonCatSimpleAction::SizeMedium), 1);
    font->addAction(b.simple(shapeIcon(Shape::Bars, Violet), QStringLiteral("Clear Formatting"), RibbonCatSimpleAction::SizeMedium), 2);
    home->addCategory(font);

    home->addCategory(b.largeAndMedium(QStringLiteral("Paragraph"), shapeIcon(Shape::Bars, Blue),
                                       shapeIcon(Shape::Bars, Blue), QStringLiteral("Line Spacing"),
                                       {{shapeIcon(Shape::Bars, Teal), QStringLiteral("Bullets")},
                                        {shapeIcon(Shape::Bars, Violet), QStringLiteral("Numbering")},
                                        {shapeIcon(Shape::Bars, Ink), QStringLiteral("Align Left")}}));
    home->addCategory(b.larges(QStringLiteral("Styles"), shapeIcon(Shape::Letter, Violet, QLatin1Char('S')),
                               {{shapeIcon(Shape::Letter, Ink, QLatin1Char('N')), QStringLiteral("Normal")},
                                {shapeIcon(Shape::Letter, Blue, QLatin1Char('H')), QStringLiteral("Heading 1")},
                                {shapeIcon(Shape::Letter, Teal, QLatin1Char('T')), QStringLiteral("Title")},
                                {shapeIcon(Shape::Letter, Violet, QLatin1Char('Q')), QStringLiteral("Quote")}}));
    home->addCategory(b.largeAndMedium(QStringLiteral("Editing"), shapeIcon(Shape::Ring, Blue),
                                       shapeIcon(Shape::Ring, Blue), QStringLiteral("Find"),
                                       {{shapeIcon(Shape::Diamond, Teal), QStringLiteral("Replace")},
                                        {shapeIcon(Shape::Square, Green), QStringLiteral("Select All")}}));
    home->setChecked(true);

    // INSERT
    RibbonCategoriesPanelAction *insert = b.tab(QStringLiteral("Insert"));
    insert->addCategory(b.larges(QStringLiteral("Pages"), shapeIcon(Shape::Page, Teal),
                                 {{shapeIcon(Shape::Page, Teal), QStringLiteral("Cover Page")},
                                  {shapeIcon(Shape::Page, Ink), QStringLiteral("Blank Page")}}));
    insert->addCategory(b.larges(QStringLiteral("Illustrations"), shapeIcon(Shape::Frame, Green),
                                 {{shapeIcon(Shape::Frame, Green), QStringLiteral("Picture")},
                                  {shapeIcon(Shape::Triangle, Orange), QStringLiteral("Shapes")},
                                  {shapeIcon(Shape::Bars, Blue), QStringLiteral("Chart")}}));
    insert->addCategory(b.larges(QStringLiteral("Links"), shapeIcon(Shape::Ring, Violet),
                                 {{shapeIcon(Shape::Ring, Violet), QStringLiteral("Hyperlink")},
                                  {shapeIcon(Shape::Diamond, Red), QStringLiteral("Bookmark")}}));

    // VIEW
    RibbonCategoriesPanelAction *view = b.tab(QStringLiteral("View"));
    view->addCategory(b.larges(QStringLiteral("Views"), shapeIcon(Shape::Page, Blue),
                               {{shapeIcon(Shape::Page, Blue), QStringLiteral("Print Layout")},
                                {shapeIcon(Shape::Square, Teal), QStringLiteral("Web Layout")}}));
    view->addCategory(b.largeAndMedium(QStringLiteral("Zoom"), shapeIcon(Shape::Ring, Ink),
                                       shapeIcon(Shape::Ring, Ink), QStringLiteral("Zoom"),
                                       {{shapeIcon(Shape::Disc, Blue), QStringLiteral("100%")},
                                        {shapeIcon(Shape::Bars, Teal), QStringLiteral("Page Width")}}));

    for (RibbonCategoriesPanelAction *tab : {home, insert, view})
        bar.addAction(tab);

    // A contextual set for a selected picture.
    auto *pictureTools = new RibbonContextCategoryPanelAction(QColor(0xfd, 0xe9, 0xd9), QColor(0xf0, 0x96, 0x09),
                                                              QColor(0xc5, 0x5a, 0x11), window);
    pictureTools->setText(QStringLiteral("Picture Tools"));
    RibbonCategoriesPanelAction *format = b.tab(QStringLiteral("Format"));
    format->addCategory(b.larges(QStringLiteral("Adjust"), shapeIcon(Shape::Frame, Orange),
                                 {{shapeIcon(Shape::Frame, Orange), QStringLiteral("Corrections")},
                                  {shapeIcon(Shape::Disc, Violet), QStringLiteral("Color")}}));
    format->addCategory(b.larges(QStringLiteral("Arrange"), shapeIcon(Shape::Square, Teal),
                                 {{shapeIcon(Shape::Square, Teal), QStringLiteral("Position")},
                                  {shapeIcon(Shape::Diamond, Blue), QStringLiteral("Rotate")}}));
    pictureTools->addPanelAction(format);
    bar.ribbonContextCategoryPanel().addContextPanelAction(pictureTools);
    bar.showContextPanelAction(pictureTools);

    bar.setHelpAction(new zel::RibbonSimpleAction(shapeIcon(Shape::Letter, Blue, QLatin1Char('?')),
                                                  QStringLiteral("Help"), window));

    window->resize(width, 400);
    return window;
}

const bool registeredWide = registerDemoScreen(
    {QStringLiteral("ribbon-bar"), QStringLiteral("Ribbon bar"), [] { return makeRibbonWindow(1200); }, 40});
const bool registeredNarrow = registerDemoScreen(
    {QStringLiteral("ribbon-bar-narrow"), QStringLiteral("Ribbon bar, narrow"), [] { return makeRibbonWindow(600); }, 41});

} // namespace
