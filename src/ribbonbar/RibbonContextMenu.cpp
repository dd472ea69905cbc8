#include "RibbonContextMenu_p.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCategory.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QPointer>

namespace zel {

namespace {

// The ribbon bar that widget belongs to, across the popups of folded categories and of
// the minimised ribbon; null for none.
RibbonMenuBar *barOf(QWidget *widget)
{
    for (QWidget *w = widget; w; w = w->parentWidget()) {
        if (auto *bar = qobject_cast<RibbonMenuBar *>(w))
            return bar;
        if (auto *panels = qobject_cast<RibbonCategoryPanels *>(w))
            return &panels->menuBar();
        if (auto *popup = qobject_cast<RibbonCategoryWrapperPopup *>(w)) {
            RibbonCategoryWrapper *wrapper = popup->wrapper();
            return wrapper ? &wrapper->categoryPanel().categoryPanels().menuBar() : nullptr;
        }
        if (auto *quickAccess = qobject_cast<RibbonQuickAccessBar *>(w))
            return quickAccess->mainWindow() ? &quickAccess->mainWindow()->ribbonMenuBar() : nullptr;
    }
    return nullptr;
}

// The command whose control is at globalPos, starting from the deepest widget there;
// null over anything else (a caption, the free part of a panel, a tab).
QAction *commandAt(QWidget *clicked, const QPoint &globalPos)
{
    for (QWidget *w = clicked; w && !w->isWindow(); w = w->parentWidget()) {
        if (auto *strip = qobject_cast<RibbonCatActionGroupWidget *>(w)) {
            const int cell = strip->cellAt(strip->mapFromGlobal(globalPos));
            return strip->group() && cell >= 0 ? strip->group()->actions().value(cell) : nullptr;
        }
        QWidget *parent = w->parentWidget();
        if (auto *category = qobject_cast<RibbonCategory *>(parent))
            return category->action(w);
        // The bar's own commands; its customise button shows none of them.
        if (auto *quickAccess = qobject_cast<RibbonQuickAccessBar *>(parent)) {
            QAction *command = w->actions().value(0);
            return quickAccess->actions().contains(command) ? command : nullptr;
        }
    }
    return nullptr;
}

} // namespace

QMenu *ribbonOpenContextMenu(QWidget &receiver, QContextMenuEvent *event)
{
    RibbonMenuBar *bar = barOf(&receiver);
    if (!bar)
        return nullptr;
    event->accept();
    QWidget *clicked = receiver.childAt(event->pos());
    QAction *command = commandAt(clicked ? clicked : &receiver, event->globalPos());
    QPointer<RibbonQuickAccessBar> quickAccess(&bar->ribbonMainWindow().quickAccessBar());

    auto *menu = new QMenu(&receiver);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Only simple commands get a button in the quick-access bar.
    auto *simple = qobject_cast<RibbonSimpleAction *>(command);
    if (simple && !qobject_cast<RibbonSeparatorAction *>(simple)) {
        QPointer<RibbonSimpleAction> guard(simple);
        if (quickAccess->isQuickAccessCommand(simple)) {
            menu->addAction(QCoreApplication::translate("zel::RibbonQuickAccessBar", "Remove from Quick Access Toolbar"),
                            [quickAccess, guard] {
                                if (quickAccess && guard)
                                    quickAccess->removeQuickAccessCommand(guard);
                            });
        } else {
            menu->addAction(QCoreApplication::translate("zel::RibbonQuickAccessBar", "Add to Quick Access Toolbar"),
                            [quickAccess, guard] {
                                if (quickAccess && guard)
                                    quickAccess->addQuickAccessCommand(guard);
                            });
        }
        menu->addSeparator();
    }
    // The collapse button's own command, which says what it does in its tool tip.
    QAction *collapse = bar->collapseRibbonAction();
    QAction *entry = menu->addAction(collapse->toolTip(), collapse, &QAction::trigger);
    entry->setShortcut(collapse->shortcut());
    menu->popup(event->globalPos());
    return menu;
}

} // namespace zel
