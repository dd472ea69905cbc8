// The two bars of the main window: the quick-access toolbar in the title row (with a
// command the user hid earlier restored as hidden) and the status bar with a login
// icon, a menu button, view toggles, a progress display and the zoom slider.

#include "DemoIcons.h"
#include "DemoScreens.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonPercAction.h"
#include "RibbonProgressAction.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBar.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>

namespace {

using zel::RibbonCatMenuAction;
using zel::RibbonCatSimpleAction;
using zel::RibbonSimpleAction;

enum class Glyph { Disk, Undo, Redo, Printer, Reading, PrintLayout, WebLayout, Person, Page };

// Drawn on a 32-unit grid so that the 16- and 32-pixel versions match.
QIcon makeIcon(Glyph glyph, const QColor &color)
{
    return gridIcon(color, 150, [&](QPainter &p) {
        switch (glyph) {
        case Glyph::Disk:
            p.drawRoundedRect(QRectF(4, 4, 24, 24), 3, 3);
            p.setBrush(Qt::white);
            p.drawRect(QRectF(9, 4, 14, 9));
            p.drawRect(QRectF(8, 18, 16, 10));
            break;
        case Glyph::Undo:
        case Glyph::Redo: {
            if (glyph == Glyph::Redo) {
                p.translate(32, 0);
                p.scale(-1, 1);
            }
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(color, 4, Qt::SolidLine, Qt::RoundCap));
            QPainterPath arc;
            arc.moveTo(8, 14);
            arc.cubicTo(14, 6, 28, 8, 26, 24);
            p.drawPath(arc);
            p.setPen(Qt::NoPen);
            p.setBrush(color);
            const QPointF head[3] = {{3, 14}, {14, 8}, {12, 20}};
            p.drawPolygon(head, 3);
            break;
        }
        case Glyph::Printer:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(9, 3, 14, 10));
            p.setBrush(color);
            p.drawRoundedRect(QRectF(3, 11, 26, 12), 2, 2);
            p.setBrush(Qt::white);
            p.drawRect(QRectF(9, 19, 14, 10));
            break;
        case Glyph::Reading:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(3, 6, 13, 20));
            p.drawRect(QRectF(16, 6, 13, 20));
            break;
        case Glyph::PrintLayout:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(7, 3, 18, 26));
            p.setPen(QPen(color, 2.5));
            for (int y = 9; y <= 23; y += 5)
                p.drawLine(QPointF(11, y), QPointF(21, y));
            break;
        case Glyph::WebLayout:
            p.setBrush(Qt::white);
            p.drawEllipse(QRectF(4, 4, 24, 24));
            p.drawLine(QPointF(4, 16), QPointF(28, 16));
            p.drawEllipse(QRectF(11, 4, 10, 24));
            break;
        case Glyph::Person:
            p.drawEllipse(QRectF(10, 3, 12, 12));
            p.drawChord(QRectF(4, 17, 24, 24), 0, 180 * 16);
            break;
        case Glyph::Page:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(7, 3, 18, 26));
            break;
        }
    });
}

QWidget *makeBarsScreen()
{
    auto *window = new zel::RibbonMainWindow;
    QFont uiFont = window->font();
    uiFont.setPointSize(9);
    window->setFont(uiFont);
    window->setWindowTitle(QStringLiteral("Report.docx"));

    zel::RibbonQuickAccessBar *quickAccess = &window->quickAccessBar();
    // Restored from the previous session: the user had hidden Print.
    quickAccess->setQuickAccessBarItems({QStringLiteral("quick.print")});
    const QList<QPair<Glyph, QString>> commands = {{Glyph::Disk, QStringLiteral("Save")},
                                                   {Glyph::Undo, QStringLiteral("Undo")},
                                                   {Glyph::Redo, QStringLiteral("Redo")},
                                                   {Glyph::Printer, QStringLiteral("Print")}};
    const QColor ink(0x2B, 0x57, 0x9A);
    for (const auto &command : commands) {
        auto *action = new RibbonSimpleAction(makeIcon(command.first, ink), command.second, window);
        action->setData(QStringLiteral("quick.") + command.second.toLower());
        quickAccess->addAction(action);
    }

    // A small ribbon so that the bars sit where they do in an application.
    auto *home = new zel::RibbonCategoriesPanelAction(QStringLiteral("Home"), window);
    auto *views = new zel::RibbonCategoryAction(QStringLiteral("Views"), window);
    views->addAction(new RibbonCatSimpleAction(makeIcon(Glyph::Reading, ink), QStringLiteral("Read Mode"),
                                               RibbonCatSimpleAction::SizeLarge, window), -1);
    views->addAction(new RibbonCatSimpleAction(makeIcon(Glyph::PrintLayout, ink), QStringLiteral("Print Layout"),
                                               RibbonCatSimpleAction::SizeLarge, window), -1);
    home->addCategory(views);
    window->ribbonMenuBar().addAction(home);

    auto *document = new QPlainTextEdit(window);
    document->setPlainText(QStringLiteral("The quick-access toolbar is in the title row; Print is hidden "
                                          "through its customise menu. The status bar below shows the "
                                          "page menu, the view toggles, the progress of a save and the zoom."));
    window->setCentralWidget(document);

    zel::RibbonStatusBar *status = &window->ribbonStatusBar();

    auto *signedIn = new QLabel(window);
    signedIn->setPixmap(makeIcon(Glyph::Person, Qt::white).pixmap(16, 16));
    signedIn->setContentsMargins(6, 0, 0, 0);
    status->addLoginStatusIcon(signedIn);

    auto *pages = new RibbonCatMenuAction(makeIcon(Glyph::Page, DemoColors::Ink), QStringLiteral("Page 2 of 5"),
                                          RibbonCatMenuAction::MenuTypeButton,
                                          RibbonCatMenuAction::MenuSizeMedium, RibbonCatMenuAction::PopupMenu,
                                          window);
    for (int page = 1; page <= 5; ++page) {
        auto *item = new RibbonSimpleAction(QStringLiteral("Go to page %1").arg(page), window);
        pages->addAction(item, false);
    }
    status->addAction(pages);

    auto *progress = new zel::RibbonProgressAction(0, 100, 60, QStringLiteral("Saving..."), window);
    status->addAction(progress);

    // Inserted at the front of their area, so added right to left.
    const QList<QPair<Glyph, QString>> toggles = {{Glyph::WebLayout, QStringLiteral("Web Layout")},
                                                  {Glyph::PrintLayout, QStringLiteral("Print Layout")},
                                                  {Glyph::Reading, QStringLiteral("Read Mode")}};
    for (const auto &toggle : toggles) {
        auto *action = new RibbonSimpleAction(makeIcon(toggle.first, Qt::white), toggle.second, window);
        action->setToolTip(toggle.second);
        action->setCheckable(true);
        action->setChecked(toggle.first == Glyph::PrintLayout);
        status->addAction(action);
    }

    status->addAction(new zel::RibbonPercAction(10, 400, 120, window));

    window->resize(900, 330);
    return window;
}

const bool registered = registerDemoScreen({QStringLiteral("status-and-quick-access"),
                                            QStringLiteral("Status bar and quick-access toolbar"),
                                            makeBarsScreen, 50});

} // namespace
