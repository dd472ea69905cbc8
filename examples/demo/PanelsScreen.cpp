// The widgets a host places around its documents: a tab strip of open documents, child
// windows with their own caption, and stacked panes. Each is shown at rest and with a
// part hovered or pressed, so that the screenshot shows every look.

#include "DemoScreens.h"

#include "RibbonChildWindow.h"
#include "RibbonMenuAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonSmallSysBtnClose.h"
#include "RibbonStackedButton.h"
#include "RibbonStackedWidget.h"
#include "RibbonSymbolButton.h"
#include "RibbonSysDockButton.h"
#include "RibbonTabBar.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace {

// The screenshot has no mouse: a part is shown hovered by telling it the mouse is on it.
void showHovered(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse, true);
}

zel::RibbonTabBar *makeTabBar(QWidget *owner, const QStringList &names, int current)
{
    auto *menu = new zel::RibbonMenuAction(owner);
    menu->setExclusive(true);
    for (const QString &name : names) {
        auto *entry = new zel::RibbonSimpleAction(name, menu);
        entry->setCheckable(true);
        menu->addAction(entry, false);
    }
    menu->menuActions().at(current)->setChecked(true);
    return new zel::RibbonTabBar(*menu, owner);
}

zel::RibbonChildWindow *makeChildWindow(QWidget *owner, const QString &title, bool dockable, const QStringList &items)
{
    auto *child = new zel::RibbonChildWindow(owner, dockable);
    child->setWindowTitle(title);
    auto *layout = new QVBoxLayout(child);
    auto *list = new QListWidget(child);
    list->setFrameShape(QFrame::NoFrame);
    list->addItems(items);
    layout->addWidget(list);
    child->setFixedSize(190, 150);
    return child;
}

QLabel *caption(const QString &text, QWidget *owner)
{
    auto *label = new QLabel(text, owner);
    label->setStyleSheet(QStringLiteral("color: #555555;"));
    return label;
}

QWidget *makePanelsScreen()
{
    auto *screen = new QWidget;
    screen->setAutoFillBackground(true);
    QPalette pal = screen->palette();
    pal.setColor(QPalette::Window, QColor(0xF3, 0xF3, 0xF3));
    screen->setPalette(pal);
    auto *grid = new QGridLayout(screen);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);

    const QStringList documents = {QStringLiteral("Quarterly report.html"), QStringLiteral("Landlord.html"),
                                   QStringLiteral("Budget notes.txt"), QStringLiteral("Timeline.html"),
                                   QStringLiteral("Minutes.html")};
    grid->addWidget(caption(QStringLiteral("Tab bar: five documents, the second current"), screen), 0, 0, 1, 4);
    grid->addWidget(makeTabBar(screen, documents, 1), 1, 0, 1, 4);
    grid->addWidget(caption(QStringLiteral("Narrow, scrolled by one; \"next\" hovered, \"last\" pressed"), screen),
                    2, 0, 1, 4);
    zel::RibbonTabBar *narrow = makeTabBar(screen, documents, 3);
    narrow->setFixedWidth(330);
    narrow->navNext();
    const QList<zel::RibbonSymbolButton *> nav = narrow->findChildren<zel::RibbonSymbolButton *>();
    showHovered(nav.at(2));
    nav.at(3)->setDown(true);
    grid->addWidget(narrow, 3, 0, 1, 4, Qt::AlignLeft);

    const QStringList headings = {QStringLiteral("Harbour Renewal Project"), QStringLiteral("Highlights"),
                                  QStringLiteral("Budget overview")};
    grid->addWidget(caption(QStringLiteral("Child windows: at rest, close hovered, undock pressed, no line"), screen),
                    4, 0, 1, 4);
    grid->addWidget(makeChildWindow(screen, QStringLiteral("Navigation"), true, headings), 5, 0);
    zel::RibbonChildWindow *hovered = makeChildWindow(screen, QStringLiteral("Properties"), false, headings);
    showHovered(hovered->findChild<zel::RibbonSmallSysBtnClose *>());
    grid->addWidget(hovered, 5, 1);
    zel::RibbonChildWindow *pressed = makeChildWindow(screen, QStringLiteral("Styles"), true, headings);
    pressed->findChild<zel::RibbonSysDockButton *>()->setDown(true);
    grid->addWidget(pressed, 5, 2);
    zel::RibbonChildWindow *plain = makeChildWindow(screen, QStringLiteral("Bookmarks"), true, headings);
    plain->drawCaptionFrame(false);
    plain->findChild<zel::RibbonSysDockButton *>()->setDown(true);
    showHovered(plain->findChild<zel::RibbonSmallSysBtnClose *>());
    plain->findChild<zel::RibbonSmallSysBtnClose *>()->setDown(true);
    grid->addWidget(plain, 5, 3);

    grid->addWidget(caption(QStringLiteral("Stacked panes: the first checked, the third hovered"), screen), 6, 0, 1, 4);
    auto *stacked = new zel::RibbonStackedWidget(screen);
    for (const QString &name : {QStringLiteral("Document information"), QStringLiteral("Statistics"),
                                QStringLiteral("Keyboard shortcuts")}) {
        auto *page = new QLabel(QStringLiteral("  The %1 page").arg(name.toLower()));
        stacked->addItem(page, name);
    }
    showHovered(stacked->findChildren<zel::RibbonStackedButton *>().at(2));
    stacked->setFixedSize(300, 230);
    grid->addWidget(stacked, 7, 0, 1, 2, Qt::AlignLeft);
    grid->setRowStretch(8, 1);
    screen->resize(860, 640);
    return screen;
}

const bool registered = registerDemoScreen(
    {QStringLiteral("panels"), QStringLiteral("Tab bar, child windows, stacked panes"), makePanelsScreen, 70});

} // namespace
