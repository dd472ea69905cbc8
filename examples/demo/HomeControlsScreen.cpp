// The menu buttons and the value controls of a home tab: split and plain drop-down
// buttons in the three sizes, a check box, a labelled combo and the font pickers; and
// the same buttons with a drop-down menu open.

#include "DemoIcons.h"
#include "DemoScreens.h"

#include "RibbonApplication.h"
#include "RibbonCatCheckBox.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboWidget.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatFontFamilyComboBox.h"
#include "RibbonCatFontSizeAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonMenuAction.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

using zel::RibbonCatMenuAction;
using zel::RibbonSimpleAction;

enum class Shape { Clipboard, Columns, Magnifier, Cursor, Brush, Page, Landscape };

// Drawn on a 32-unit grid so that the 16- and 32-pixel versions match.
QIcon makeIcon(Shape shape, const QColor &color)
{
    return gridIcon(color, 150, [&](QPainter &p) {
        switch (shape) {
        case Shape::Clipboard:
            p.drawRoundedRect(QRectF(5, 5, 22, 25), 3, 3);
            p.setBrush(Qt::white);
            p.drawRect(QRectF(9, 10, 14, 16));
            p.setBrush(color.darker(130));
            p.drawRoundedRect(QRectF(11, 2, 10, 6), 2, 2);
            break;
        case Shape::Columns:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(4, 4, 24, 24));
            p.setPen(QPen(color, 2.5));
            for (int y = 9; y <= 23; y += 4) {
                p.drawLine(QPointF(7, y), QPointF(14, y));
                p.drawLine(QPointF(18, y), QPointF(25, y));
            }
            break;
        case Shape::Magnifier:
            p.setBrush(Qt::white);
            p.drawEllipse(QRectF(4, 4, 17, 17));
            p.setPen(QPen(color, 5, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(QPointF(19, 19), QPointF(27, 27));
            break;
        case Shape::Cursor: {
            const QPointF arrow[7] = {{8, 3}, {8, 26}, {13, 21}, {17, 29}, {21, 27}, {17, 19}, {24, 19}};
            p.setBrush(Qt::white);
            p.drawPolygon(arrow, 7);
            break;
        }
        case Shape::Brush:
            p.drawRoundedRect(QRectF(6, 3, 20, 11), 2, 2);
            p.setBrush(color.darker(140));
            p.drawRect(QRectF(14, 14, 4, 15));
            break;
        case Shape::Page:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(8, 3, 16, 26));
            p.setPen(QPen(color, 2));
            for (int y = 9; y <= 23; y += 4)
                p.drawLine(QPointF(11, y), QPointF(21, y));
            break;
        case Shape::Landscape:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(3, 8, 26, 16));
            p.setPen(QPen(color, 2));
            for (int y = 12; y <= 20; y += 4)
                p.drawLine(QPointF(6, y), QPointF(26, y));
            break;
        }
    });
}

DemoPanelBack *makePanel()
{
    auto *panel = new DemoPanelBack;
    // The ribbon's metrics are made for the usual 9-point desktop UI font.
    QFont uiFont = panel->font();
    uiFont.setPointSize(9);
    panel->setFont(uiFont);
    return panel;
}

using namespace DemoColors;

// A large split "Paste" button: the caption pastes, the arrow offers the variants.
RibbonCatMenuAction *makePaste(QObject *owner)
{
    auto *paste = new RibbonCatMenuAction(makeIcon(Shape::Clipboard, Orange), QStringLiteral("Paste"),
                                          RibbonCatMenuAction::MenuTypeButton,
                                          RibbonCatMenuAction::MenuSizeLarge,
                                          RibbonCatMenuAction::PopupMenu, owner);
    auto *now = new RibbonSimpleAction(makeIcon(Shape::Clipboard, Orange), QStringLiteral("Paste"), owner);
    now->setToolTip(QStringLiteral("Paste the clipboard"));
    paste->addAction(now, true);
    paste->addAction(new RibbonSimpleAction(QStringLiteral("Paste Special..."), owner), false);
    paste->addAction(new RibbonSimpleAction(QStringLiteral("Paste as Text"), owner), false);
    return paste;
}

// A large drop-down with exclusive, checkable items, a titled separator and a submenu.
RibbonCatMenuAction *makeOrientation(QObject *owner)
{
    auto *orientation = new RibbonCatMenuAction(makeIcon(Shape::Page, Blue), QStringLiteral("Orientation"),
                                                RibbonCatMenuAction::MenuTypeButton,
                                                RibbonCatMenuAction::MenuSizeLarge,
                                                RibbonCatMenuAction::PopupMenu, owner);
    auto *heading = new zel::RibbonSeparatorAction(owner);
    heading->setText(QStringLiteral("Page orientation"));
    auto *portrait = new RibbonSimpleAction(makeIcon(Shape::Page, Blue), QStringLiteral("Portrait"), owner);
    auto *landscape = new RibbonSimpleAction(makeIcon(Shape::Landscape, Blue), QStringLiteral("Landscape"), owner);
    portrait->setCheckable(true);
    landscape->setCheckable(true);
    auto *more = new zel::RibbonMenuAction(QStringLiteral("Margins"), owner);
    more->addAction(new RibbonSimpleAction(QStringLiteral("Normal"), owner), false);
    more->addAction(new RibbonSimpleAction(QStringLiteral("Narrow"), owner), false);
    orientation->addAction(heading, false);
    orientation->addAction(portrait, false);
    orientation->addAction(landscape, false);
    orientation->addAction(more, false);
    orientation->setExclusive(true);
    portrait->setChecked(true);
    return orientation;
}

QWidget *makeHomeControls()
{
    DemoPanelBack *screen = makePanel();
    QObject *owner = screen;
    auto *layout = new QHBoxLayout(screen);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);

    layout->addWidget(new zel::RibbonCatMenuButton(*makePaste(owner), screen), 0, Qt::AlignTop);
    layout->addWidget(new zel::RibbonCatMenuButton(*makeOrientation(owner), screen), 0, Qt::AlignTop);

    // A large split button whose default command is on: it shows the toggled state.
    auto *columns = new RibbonCatMenuAction(makeIcon(Shape::Columns, Violet), QStringLiteral("Two Columns"),
                                            RibbonCatMenuAction::MenuTypeButton,
                                            RibbonCatMenuAction::MenuSizeLarge,
                                            RibbonCatMenuAction::PopupMenu, owner);
    auto *twoColumns = new RibbonSimpleAction(QStringLiteral("Two"), owner);
    twoColumns->setCheckable(true);
    twoColumns->setChecked(true);
    columns->addAction(twoColumns, true);
    columns->addAction(new RibbonSimpleAction(QStringLiteral("Three"), owner), false);
    layout->addWidget(new zel::RibbonCatMenuButton(*columns, screen), 0, Qt::AlignTop);

    // One-row buttons: medium split and plain, small split and plain, one disabled.
    auto *rows = new QVBoxLayout;
    rows->setSpacing(0);
    auto *find = new RibbonCatMenuAction(makeIcon(Shape::Magnifier, Blue), QStringLiteral("Find"),
                                         RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                         RibbonCatMenuAction::PopupMenu, owner);
    find->addAction(new RibbonSimpleAction(makeIcon(Shape::Magnifier, Blue), QStringLiteral("Find"), owner), true);
    find->addAction(new RibbonSimpleAction(QStringLiteral("Go To..."), owner), false);
    auto *select = new RibbonCatMenuAction(makeIcon(Shape::Cursor, Green), QStringLiteral("Select"),
                                           RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                           RibbonCatMenuAction::PopupMenu, owner);
    select->addAction(new RibbonSimpleAction(QStringLiteral("Select All"), owner), false);
    auto *disabled = new RibbonCatMenuAction(makeIcon(Shape::Brush, Orange), QStringLiteral("Styles"),
                                             RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeMedium,
                                             RibbonCatMenuAction::PopupMenu, owner);
    disabled->setEnabled(false);
    rows->addWidget(new zel::RibbonCatMenuButton(*find, screen));
    rows->addWidget(new zel::RibbonCatMenuButton(*select, screen));
    rows->addWidget(new zel::RibbonCatMenuButton(*disabled, screen));
    layout->addLayout(rows);

    auto *smallRows = new QVBoxLayout;
    smallRows->setSpacing(0);
    auto *brush = new RibbonCatMenuAction(makeIcon(Shape::Brush, Violet), QString(),
                                          RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeSmall,
                                          RibbonCatMenuAction::PopupMenu, owner);
    brush->addAction(new RibbonSimpleAction(makeIcon(Shape::Brush, Violet), QStringLiteral("Format Painter"), owner), true);
    auto *bordered = new RibbonCatMenuAction(makeIcon(Shape::Page, Green), QString(),
                                             RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeSmall,
                                             RibbonCatMenuAction::PopupMenu, owner);
    bordered->addAction(new RibbonSimpleAction(QStringLiteral("Page Setup..."), owner), false);
    auto *borderedButton = new zel::RibbonCatMenuButton(*bordered, screen);
    borderedButton->drawBorder(true);
    smallRows->addWidget(new zel::RibbonCatMenuButton(*brush, screen));
    smallRows->addWidget(borderedButton);
    smallRows->addStretch();
    layout->addLayout(smallRows);

    // Value controls.
    auto *values = new QVBoxLayout;
    values->setSpacing(0);
    auto *ruler = new zel::RibbonCatCheckBoxAction(QStringLiteral("Ruler"), owner);
    auto *gridlines = new zel::RibbonCatCheckBoxAction(QStringLiteral("Gridlines"), owner);
    gridlines->setChecked(true);
    values->addWidget(new zel::RibbonCatCheckBox(*ruler, screen));
    values->addWidget(new zel::RibbonCatCheckBox(*gridlines, screen));
    auto *zoom = new zel::RibbonCatComboAction(QStringLiteral("Zoom:"), owner);
    for (const char *level : {"50%", "75%", "100%", "150%", "200%"})
        zoom->addItem(QLatin1String(level));
    zoom->setWidth(64);
    zoom->setSelectionText(QStringLiteral("100%"));
    values->addWidget(new zel::RibbonCatComboWidget(*zoom, screen));
    layout->addLayout(values);

    auto *fonts = new QVBoxLayout;
    fonts->setSpacing(2);
    auto *family = new zel::RibbonCatFontFamilyAction(screen->font(), owner);
    auto *size = new zel::RibbonCatFontSizeAction(11, owner);
    // The size picker is made by its action, for a tool bar.
    auto *toolBar = new QToolBar(screen);
    toolBar->addAction(family);
    toolBar->addAction(size);
    auto *style = new zel::RibbonCatComboAction(QStringLiteral("Style"), owner);
    style->setEditable(false);
    style->addItem(makeIcon(Shape::Page, Blue), QStringLiteral("Normal"));
    style->addItem(makeIcon(Shape::Columns, Violet), QStringLiteral("Heading 1"));
    style->setWidth(130);
    style->setVerticalAligned(true);
    style->setSelectionIndex(1);
    fonts->addWidget(toolBar);
    fonts->addWidget(new zel::RibbonCatComboWidget(*style, screen));
    fonts->addStretch();
    layout->addLayout(fonts);
    layout->addStretch();
    return screen;
}

// The Orientation drop-down opened, rendered with the window below the button.
QWidget *makeMenuOpen()
{
    DemoPanelBack *host = makePanel();
    auto *layout = new QHBoxLayout(host);
    layout->setContentsMargins(6, 6, 6, 6);
    auto *button = new zel::RibbonCatMenuButton(*makeOrientation(host), host);
    auto *paste = new zel::RibbonCatMenuButton(*makePaste(host), host);
    layout->addWidget(paste, 0, Qt::AlignTop);
    layout->addWidget(button, 0, Qt::AlignTop);
    layout->addStretch();
    host->resize(260, 80);
    host->show();
    QCoreApplication::processEvents();

    // Open the drop-down as a click on the arrow part would.
    const QPoint pressAt(button->width() / 2, button->height() - 5);
    QMouseEvent press(QEvent::MouseButtonPress, pressAt, button->mapToGlobal(pressAt), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &press);
    QCoreApplication::processEvents();
    QWidget *popup = QApplication::activePopupWidget();

    const QPixmap hostImage = host->grab();
    const QPixmap popupImage = popup ? popup->grab() : QPixmap();
    const QPoint popupAt = popup ? host->mapFromGlobal(popup->pos()) : QPoint();
    if (popup)
        popup->close();

    QPixmap shot(qMax(hostImage.width(), popupAt.x() + popupImage.width() + 10),
                 qMax(hostImage.height(), popupAt.y() + popupImage.height() + 10));
    shot.fill(zel::RibbonApplication::theApp().ribbonStyle().mainClientColor());
    QPainter painter(&shot);
    painter.drawPixmap(0, 0, hostImage);
    if (!popupImage.isNull())
        painter.drawPixmap(popupAt, popupImage);
    painter.end();
    delete host;

    auto *label = new QLabel;
    label->setPixmap(shot);
    label->resize(shot.size());
    return label;
}

const bool registered = registerDemoScreen({QStringLiteral("home-controls"),
                                            QStringLiteral("Menu buttons and value controls"),
                                            makeHomeControls, 30})
    && registerDemoScreen({QStringLiteral("menu-open"), QStringLiteral("Menu button, drop-down open"),
                           makeMenuOpen, 31});

} // namespace
