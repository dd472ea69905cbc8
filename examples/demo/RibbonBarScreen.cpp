// The ribbon bar in a main window: several tabs with categories of generated icons, a
// help button and a contextual tab set on display; once wide and once narrow, where
// the categories that free the least width fold into single buttons.

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
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>

namespace {

using zel::RibbonCatActionGroup;
using zel::RibbonCatSimpleAction;
using zel::RibbonCategoriesPanelAction;
using zel::RibbonCategoryAction;
using zel::RibbonContextCategoryPanelAction;

enum class Shape { Disc, Square, Triangle, Page, Bars, Letter, Diamond, Ring, Frame };

// Icons drawn on a 32-unit grid so that the 16- and 32-pixel versions match.
QIcon makeIcon(Shape shape, const QColor &color, QChar letter = QChar())
{
    QIcon icon;
    for (int extent : {16, 32}) {
        QPixmap pixmap(extent, extent);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(extent / 32.0, extent / 32.0);
        p.setPen(QPen(color.darker(140), extent >= 32 ? 1.5 : 2.5));
        p.setBrush(color);
        switch (shape) {
        case Shape::Disc:
            p.drawEllipse(QRectF(4, 4, 24, 24));
            break;
        case Shape::Square:
            p.drawRoundedRect(QRectF(5, 5, 22, 22), 4, 4);
            break;
        case Shape::Triangle: {
            const QPointF points[3] = {{16, 4}, {28.5, 27}, {3.5, 27}};
            p.drawPolygon(points, 3);
            break;
        }
        case Shape::Page: {
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
        case Shape::Bars:
            p.setPen(Qt::NoPen);
            for (int i = 0; i < 4; ++i)
                p.drawRoundedRect(QRectF(4, 5 + i * 6.5, i % 2 ? 18 : 24, 4), 1.5, 1.5);
            break;
        case Shape::Letter: {
            QFont font;
            font.setBold(true);
            font.setPixelSize(26);
            p.setFont(font);
            p.setPen(color);
            p.drawText(QRectF(0, 0, 32, 32), Qt::AlignCenter, QString(letter));
            break;
        }
        case Shape::Diamond: {
            const QPointF points[4] = {{16, 3}, {29, 16}, {16, 29}, {3, 16}};
            p.drawPolygon(points, 4);
            break;
        }
        case Shape::Ring:
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(color, 5));
            p.drawEllipse(QRectF(6, 6, 20, 20));
            break;
        case Shape::Frame:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(4, 6, 24, 20));
            p.setBrush(color);
            p.setPen(Qt::NoPen);
            p.drawEllipse(QRectF(8, 10, 7, 7));
            p.drawPolygon(QPolygonF({{6, 24}, {14, 15}, {19, 20}, {22, 17}, {26, 24}}));
            break;
        }
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

const QColor Blue(0x2b, 0x6c, 0xc4);
const QColor Green(0x3a, 0x9a, 0x4a);
const QColor Orange(0xe0, 0x7a, 0x1f);
const QColor Red(0xc8, 0x3a, 0x3a);
const QColor Violet(0x7a, 0x4f, 0xb5);
const QColor Teal(0x1f, 0x96, 0x9a);
const QColor Ink(0x33, 0x33, 0x33);

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
    home->addCategory(b.largeAndMedium(QStringLiteral("Clipboard"), makeIcon(Shape::Page, Blue),
                                       makeIcon(Shape::Page, Blue), QStringLiteral("Paste"),
                                       {{makeIcon(Shape::Triangle, Red), QStringLiteral("Cut")},
                                        {makeIcon(Shape::Square, Blue), QStringLiteral("Copy")},
                                        {makeIcon(Shape::Diamond, Orange), QStringLiteral("Format Painter")}}));

    RibbonCategoryAction *font = b.category(QStringLiteral("Font"), makeIcon(Shape::Letter, Ink, QLatin1Char('A')));
    RibbonCatActionGroup *style = b.group();
    const QString letters = QStringLiteral("BIUS");
    const QStringList names = {QStringLiteral("Bold"), QStringLiteral("Italic"), QStringLiteral("Underline"),
                               QStringLiteral("Strikethrough")};
    for (int i = 0; i < letters.size(); ++i) {
        RibbonCatSimpleAction *a = b.simple(makeIcon(Shape::Letter, Ink, letters.at(i)), names.at(i),
                                            RibbonCatSimpleAction::SizeSmall);
        a->setCheckable(true);
        a->setChecked(i == 0);
        style->addAction(a, false);
    }
    RibbonCatActionGroup *colours = b.group();
    colours->addAction(b.simple(makeIcon(Shape::Disc, Red), QStringLiteral("Red"), RibbonCatSimpleAction::SizeSmall), false);
    colours->addAction(b.simple(makeIcon(Shape::Disc, Green), QStringLiteral("Green"), RibbonCatSimpleAction::SizeSmall), false);
    colours->addAction(b.simple(makeIcon(Shape::Disc, Blue), QStringLiteral("Blue"), RibbonCatSimpleAction::SizeSmall), false);
    font->addAction(style, 0);
    font->addAction(colours, 1);
    font->addAction(b.simple(makeIcon(Shape::Ring, Teal), QStringLiteral("Grow Font"), RibbonCatSimpleAction::SizeMedium), 1);
    font->addAction(b.simple(makeIcon(Shape::Bars, Violet), QStringLiteral("Clear Formatting"), RibbonCatSimpleAction::SizeMedium), 2);
    home->addCategory(font);

    home->addCategory(b.largeAndMedium(QStringLiteral("Paragraph"), makeIcon(Shape::Bars, Blue),
                                       makeIcon(Shape::Bars, Blue), QStringLiteral("Line Spacing"),
                                       {{makeIcon(Shape::Bars, Teal), QStringLiteral("Bullets")},
                                        {makeIcon(Shape::Bars, Violet), QStringLiteral("Numbering")},
                                        {makeIcon(Shape::Bars, Ink), QStringLiteral("Align Left")}}));
    home->addCategory(b.larges(QStringLiteral("Styles"), makeIcon(Shape::Letter, Violet, QLatin1Char('S')),
                               {{makeIcon(Shape::Letter, Ink, QLatin1Char('N')), QStringLiteral("Normal")},
                                {makeIcon(Shape::Letter, Blue, QLatin1Char('H')), QStringLiteral("Heading 1")},
                                {makeIcon(Shape::Letter, Teal, QLatin1Char('T')), QStringLiteral("Title")},
                                {makeIcon(Shape::Letter, Violet, QLatin1Char('Q')), QStringLiteral("Quote")}}));
    home->addCategory(b.largeAndMedium(QStringLiteral("Editing"), makeIcon(Shape::Ring, Blue),
                                       makeIcon(Shape::Ring, Blue), QStringLiteral("Find"),
                                       {{makeIcon(Shape::Diamond, Teal), QStringLiteral("Replace")},
                                        {makeIcon(Shape::Square, Green), QStringLiteral("Select All")}}));
    home->setChecked(true);

    // INSERT
    RibbonCategoriesPanelAction *insert = b.tab(QStringLiteral("Insert"));
    insert->addCategory(b.larges(QStringLiteral("Pages"), makeIcon(Shape::Page, Teal),
                                 {{makeIcon(Shape::Page, Teal), QStringLiteral("Cover Page")},
                                  {makeIcon(Shape::Page, Ink), QStringLiteral("Blank Page")}}));
    insert->addCategory(b.larges(QStringLiteral("Illustrations"), makeIcon(Shape::Frame, Green),
                                 {{makeIcon(Shape::Frame, Green), QStringLiteral("Picture")},
                                  {makeIcon(Shape::Triangle, Orange), QStringLiteral("Shapes")},
                                  {makeIcon(Shape::Bars, Blue), QStringLiteral("Chart")}}));
    insert->addCategory(b.larges(QStringLiteral("Links"), makeIcon(Shape::Ring, Violet),
                                 {{makeIcon(Shape::Ring, Violet), QStringLiteral("Hyperlink")},
                                  {makeIcon(Shape::Diamond, Red), QStringLiteral("Bookmark")}}));

    // VIEW
    RibbonCategoriesPanelAction *view = b.tab(QStringLiteral("View"));
    view->addCategory(b.larges(QStringLiteral("Views"), makeIcon(Shape::Page, Blue),
                               {{makeIcon(Shape::Page, Blue), QStringLiteral("Print Layout")},
                                {makeIcon(Shape::Square, Teal), QStringLiteral("Web Layout")}}));
    view->addCategory(b.largeAndMedium(QStringLiteral("Zoom"), makeIcon(Shape::Ring, Ink),
                                       makeIcon(Shape::Ring, Ink), QStringLiteral("Zoom"),
                                       {{makeIcon(Shape::Disc, Blue), QStringLiteral("100%")},
                                        {makeIcon(Shape::Bars, Teal), QStringLiteral("Page Width")}}));

    for (RibbonCategoriesPanelAction *tab : {home, insert, view})
        bar.addAction(tab);

    // A contextual set for a selected picture.
    auto *pictureTools = new RibbonContextCategoryPanelAction(QColor(0xfd, 0xe9, 0xd9), QColor(0xf0, 0x96, 0x09),
                                                              QColor(0xc5, 0x5a, 0x11), window);
    pictureTools->setText(QStringLiteral("Picture Tools"));
    RibbonCategoriesPanelAction *format = b.tab(QStringLiteral("Format"));
    format->addCategory(b.larges(QStringLiteral("Adjust"), makeIcon(Shape::Frame, Orange),
                                 {{makeIcon(Shape::Frame, Orange), QStringLiteral("Corrections")},
                                  {makeIcon(Shape::Disc, Violet), QStringLiteral("Color")}}));
    format->addCategory(b.larges(QStringLiteral("Arrange"), makeIcon(Shape::Square, Teal),
                                 {{makeIcon(Shape::Square, Teal), QStringLiteral("Position")},
                                  {makeIcon(Shape::Diamond, Blue), QStringLiteral("Rotate")}}));
    pictureTools->addPanelAction(format);
    bar.ribbonContextCategoryPanel().addContextPanelAction(pictureTools);
    bar.showContextPanelAction(pictureTools);

    bar.setHelpAction(new zel::RibbonSimpleAction(makeIcon(Shape::Letter, Blue, QLatin1Char('?')),
                                                  QStringLiteral("Help"), window));

    window->resize(width, 400);
    return window;
}

const bool registeredWide = registerDemoScreen(
    {QStringLiteral("ribbon-bar"), QStringLiteral("Ribbon bar"), [] { return makeRibbonWindow(1200); }, 40});
const bool registeredNarrow = registerDemoScreen(
    {QStringLiteral("ribbon-bar-narrow"), QStringLiteral("Ribbon bar, narrow"), [] { return makeRibbonWindow(600); }, 41});

} // namespace
