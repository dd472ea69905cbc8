#include "RibbonMenuBar.h"

#include "MenuHLayout.h"
#include "RibbonAccessible_p.h"
#include "RibbonActionWidgetMap_p.h"
#include "RibbonButtonMain.h"
#include "RibbonButtonNormal.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCommandShortcuts_p.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonContextMenu_p.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBarButton.h"
#include "RibbonSimpleAction.h"

#include <QActionEvent>
#include <QActionGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include <QPointer>
#include <QSpacerItem>

namespace zel {

namespace {

// Where a command widget of the tab row goes.
enum class Place {
    End,                 // appended to the tab row
    BeforeCollapseButton // between the spacer and the collapse button
};

struct CommandMaker
{
    RibbonWidgetMaker make;
    Place place;
};

QWidget *makeHelpButton(QAction *action, QWidget *parent)
{
    if (!action || action != static_cast<RibbonMenuBar *>(parent)->helpAction())
        return nullptr;
    auto *button = new RibbonButtonNormal(parent);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button->setFixedSize(20, 20);
    button->addAction(action);
    return button;
}

// The widgets of the commands at the right end of the tab row; tabs get their buttons
// when they enter the row of current tabs (addPanelAction).
const CommandMaker commandMakers[] = {
    {makeHelpButton, Place::End},
    {makeWidgetFor<RibbonCatComboAction, RibbonCatComboComboBox>, Place::BeforeCollapseButton},
    {makeWidgetFor<RibbonCatMenuAction, RibbonCatMenuButton>, Place::BeforeCollapseButton},
};

} // namespace

struct RibbonMenuBar::Priv
{
    explicit Priv(RibbonMainWindow &w)
        : window(w)
    {
    }

    RibbonMainWindow &window;
    QGridLayout *grid = nullptr;
    MenuHLayout *tabRow = nullptr;
    QHBoxLayout *tabStrip = nullptr;
    QSpacerItem *spacer = nullptr; // owned by the tab row
    QActionGroup *group = nullptr;
    RibbonCategoryPanelsProxy *panels = nullptr;
    RibbonButtonMain *mainButton = nullptr;
    // Actions the bar keeps are guarded as QAction and read through qobject_cast, as
    // everywhere (RibbonActionWidgetMap_p.h).
    QPointer<QAction> helpAction;
    QPointer<QAction> findComboAction;
    QPointer<QAction> findAction;
    RibbonSimpleAction *collapseAction = nullptr;
    RibbonButtonNormal *collapseButton = nullptr;
    RibbonContextCategoryPanel *contextPanels = nullptr;
    QPointer<RibbonCommandShortcuts> shortcuts; // beside the bar, not its child
    QPointer<QAction> displayedContext;
    // The displayed set's tabs, kept apart from the set: when the set is destroyed its
    // list is gone, yet tabs it did not own still stand in the row.
    QList<QPointer<QAction>> displayedTabs;
    QMetaObject::Connection displayedContextDestroyed;
    QPointer<QAction> lastClicked;

    // Tab buttons by tab, and the widgets of the help, find-combo and find actions (a
    // tab is never one of those).
    RibbonActionWidgetMap<> widgets{[this](QWidget *widget) {
        tabStrip->removeWidget(widget);
        tabRow->removeWidget(widget);
    }};
};

RibbonMenuBar::RibbonMenuBar(RibbonMainWindow &window)
    : QWidget(&window)
    , d(new Priv(window))
{
    setCursor(Qt::ArrowCursor);
    ribbonInstallAccessibility();

    d->grid = new QGridLayout(this);
    d->grid->setContentsMargins(0, 0, 0, 0);
    d->grid->setHorizontalSpacing(0);
    d->grid->setVerticalSpacing(0);

    d->tabRow = new MenuHLayout;
    d->tabRow->setContentsMargins(0, 0, 4, 0);
    d->tabRow->setSpacing(5);
    d->grid->addLayout(d->tabRow, 0, 0, 1, 3);

    d->tabStrip = new QHBoxLayout;
    d->tabStrip->setContentsMargins(0, 0, 0, 0);
    d->tabStrip->setSpacing(0);
    d->tabRow->addLayout(d->tabStrip);

    d->spacer = new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Ignored);
    d->tabRow->addItem(d->spacer);

    d->group = new QActionGroup(this);
    d->group->setExclusive(true);

    d->panels = new RibbonCategoryPanelsProxy(*this);
    d->grid->addWidget(d->panels, 1, 0, 1, 3);

    d->mainButton = new RibbonButtonMain(*this);
    d->mainButton->setText(QCoreApplication::translate("RibbonMenuBar", "File").toUpper());
    d->mainButton->setAccessibleName(QCoreApplication::translate("RibbonMenuBar", "File"));
    d->tabStrip->addWidget(d->mainButton);
    d->mainButton->hide(); // until the first tab arrives

    d->collapseAction = new RibbonSimpleAction(this);
    d->collapseAction->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_F1));
    d->collapseButton = new RibbonButtonNormal(this);
    d->collapseButton->setFixedSize(16, 20);
    d->collapseButton->addAction(d->collapseAction);
    d->tabRow->addWidget(d->collapseButton);
    updateCollapseRibbonAction();

    d->contextPanels = new RibbonContextCategoryPanel(*this);
    d->shortcuts = new RibbonCommandShortcuts(this);
}

RibbonMenuBar::~RibbonMenuBar()
{
    delete d->shortcuts;
}

RibbonMainWindow &RibbonMenuBar::ribbonMainWindow() const
{
    return d->window;
}

bool RibbonMenuBar::isMWMaximized() const
{
    return d->window.isMaximized();
}

bool RibbonMenuBar::isRibbonMinimized() const
{
    return d->panels->isCollapsable();
}

void RibbonMenuBar::setMinimizeRibbon(bool minimize)
{
    d->panels->setCollapsable(minimize);
    updateCollapseRibbonAction();
}

RibbonCategoryPanelsProxy *RibbonMenuBar::categoryPanels() const
{
    return d->panels;
}

RibbonButtonMain *RibbonMenuBar::mainMenuButton() const
{
    return d->mainButton;
}

RibbonMenuBarButton *RibbonMenuBar::menuBarButton(RibbonCategoriesPanelAction *tab) const
{
    return d->widgets.widgetAs<RibbonMenuBarButton>(tab);
}

QAction *RibbonMenuBar::collapseRibbonAction() const
{
    return d->collapseAction;
}

RibbonContextCategoryPanel &RibbonMenuBar::ribbonContextCategoryPanel() const
{
    return *d->contextPanels;
}

RibbonContextCategoryPanelAction *RibbonMenuBar::displayedContextPanel() const
{
    return qobject_cast<RibbonContextCategoryPanelAction *>(d->displayedContext);
}

void RibbonMenuBar::displayedContextPanelRect(QRect &rect) const
{
    RibbonContextCategoryPanelAction *set = displayedContextPanel();
    if (!set)
        return;
    for (RibbonCategoriesPanelAction *tab : set->panelActions()) {
        if (RibbonMenuBarButton *button = menuBarButton(tab)) {
            const QRect local = button->rect();
            rect = rect.united(QRect(button->mapToGlobal(local.topLeft()),
                                     button->mapToGlobal(local.bottomRight())));
        }
    }
}

RibbonMenuBar::ContextBand RibbonMenuBar::contextBand() const
{
    ContextBand band;
    if (RibbonContextCategoryPanelAction *set = displayedContextPanel()) {
        displayedContextPanelRect(band.rect);
        band.backgroundColor = set->backgroundColor();
        band.topColor = set->topColor();
        band.textColor = set->textColor();
        band.text = set->text();
    }
    return band;
}

void RibbonMenuBar::showContextPanelAction(RibbonContextCategoryPanelAction *set)
{
    if (!set || !d->contextPanels->containsAction(set))
        return;
    RibbonContextCategoryPanelAction *shown = displayedContextPanel();
    if (shown && shown != set)
        hideContextPanelAction(shown);

    const QFontMetrics fm = fontMetrics();
    const QList<RibbonCategoriesPanelAction *> tabs = set->panelActions();
    int textSum = 0;
    for (RibbonCategoriesPanelAction *tab : tabs) {
        addAction(tab);
        textSum += fm.horizontalAdvance(tab->text());
        if (tab == d->lastClicked && !isRibbonMinimized())
            tab->setChecked(true);
    }

    // A set whose caption is wider than its tabs widens their buttons so that the
    // caption painted above them fits.
    const int captionWidth = fm.horizontalAdvance(set->text());
    const int n = tabs.size();
    if (n > 0 && captionWidth > textSum) {
        const int extra = int((captionWidth - textSum) / double(n) + 0.5) - 12 * n;
        for (RibbonCategoriesPanelAction *tab : tabs) {
            if (RibbonMenuBarButton *button = menuBarButton(tab)) {
                const int current = button->sizeHint().width();
                // Never narrower than its own caption.
                button->setFixedWidth(qMax(current, current + extra));
            }
        }
    }

    d->displayedContext = set;
    d->displayedTabs.clear();
    for (RibbonCategoriesPanelAction *tab : tabs)
        d->displayedTabs << tab;
    disconnect(d->displayedContextDestroyed);
    d->displayedContextDestroyed = connect(set, &QObject::destroyed, this, [this] {
        for (const QPointer<QAction> &tab : qAsConst(d->displayedTabs)) {
            if (tab)
                removeAction(tab);
        }
        d->displayedTabs.clear();
        emit contextRibbonChanged();
        update();
    });
    emit contextRibbonChanged();
    update();
}

void RibbonMenuBar::hideContextPanelAction(RibbonContextCategoryPanelAction *set)
{
    if (!set || !d->contextPanels->containsAction(set) || set != d->displayedContext)
        return;
    const QList<RibbonCategoriesPanelAction *> tabs = set->panelActions();
    for (RibbonCategoriesPanelAction *tab : tabs)
        removeAction(tab);
    disconnect(d->displayedContextDestroyed);
    d->displayedTabs.clear();
    d->displayedContext = nullptr;
    emit contextRibbonChanged();
    update();
}

void RibbonMenuBar::replaceCommandAction(QAction *oldAction, RibbonAction *newAction)
{
    if (oldAction && oldAction != newAction)
        removeAction(oldAction);
    if (newAction && !actions().contains(newAction))
        addAction(newAction);
}

void RibbonMenuBar::setHelpAction(RibbonAction *action)
{
    // The bar's own collapse command has its button already.
    if (action && action == d->collapseAction)
        return;
    QPointer<QAction> old = d->helpAction;
    d->helpAction = action;
    replaceCommandAction(old.data(), action);
}

RibbonAction *RibbonMenuBar::helpAction() const
{
    return qobject_cast<RibbonAction *>(d->helpAction);
}

void RibbonMenuBar::setFindComboAction(RibbonAction *action)
{
    if (action && action == d->collapseAction)
        return;
    QPointer<QAction> old = d->findComboAction;
    d->findComboAction = action;
    replaceCommandAction(old.data(), action);
    // The find button goes with the combo.
    if (RibbonAction *find = findAction()) {
        if (action)
            replaceCommandAction(nullptr, find);
        else
            removeAction(find);
    }
}

RibbonAction *RibbonMenuBar::findComboAction() const
{
    return qobject_cast<RibbonAction *>(d->findComboAction);
}

void RibbonMenuBar::setFindAction(RibbonAction *action)
{
    if (action && action == d->collapseAction)
        return;
    QPointer<QAction> old = d->findAction;
    d->findAction = action;
    if (old && old != action)
        removeAction(old);
    if (action && d->findComboAction && !actions().contains(action))
        addAction(action);
}

RibbonAction *RibbonMenuBar::findAction() const
{
    return qobject_cast<RibbonAction *>(d->findAction);
}

RibbonAction *RibbonMenuBar::lastClickedAction() const
{
    return qobject_cast<RibbonAction *>(d->lastClicked);
}

void RibbonMenuBar::setLastClickedAction(RibbonAction *action)
{
    d->lastClicked = action;
}

void RibbonMenuBar::insertBeforeCollapseButton(QWidget *widget)
{
    int index = -1;
    const QList<QWidget *> associated = d->collapseAction->associatedWidgets();
    for (QWidget *candidate : associated) {
        const int at = d->tabRow->indexOf(candidate);
        if (at >= 0) {
            index = at;
            break;
        }
    }
    d->tabRow->insertWidget(index, widget);
    widget->show();
}

void RibbonMenuBar::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *action = event->action();

    if (event->type() == QEvent::ActionAdded) {
        auto *ribbonAction = qobject_cast<RibbonAction *>(action);
        if (!ribbonAction)
            return;
        auto *tab = qobject_cast<RibbonCategoriesPanelAction *>(ribbonAction);
        if (tab && ribbonAction != d->helpAction) {
            d->mainButton->show();
            connect(tab, SIGNAL(changed()), this, SLOT(ribbonActionChanged()));
            if (tab->isEnabled())
                addPanelAction(tab);
            return;
        }
        const auto made = makeWidget(commandMakers, action, this);
        if (!made.widget)
            return;
        d->widgets.insert(action, made.widget);
        if (made.row->place == Place::End) {
            d->tabRow->addWidget(made.widget);
            made.widget->show();
        } else {
            insertBeforeCollapseButton(made.widget);
        }
        updateGeometry();
        update();
    } else if (event->type() == QEvent::ActionRemoved) {
        // A tab being destroyed has lost its class by now; it is still in the group.
        if (d->group->actions().contains(action)) {
            disconnect(action, SIGNAL(changed()), this, SLOT(ribbonActionChanged()));
            removeTab(action);
        } else if (d->widgets.drop(action)) {
            updateGeometry();
            update();
        } else {
            // A tab out of the row (disabled), or an action that got nothing.
            disconnect(action, SIGNAL(changed()), this, SLOT(ribbonActionChanged()));
        }
    }
}

void RibbonMenuBar::ribbonActionChanged()
{
    auto *tab = qobject_cast<RibbonCategoriesPanelAction *>(sender());
    if (!tab)
        return;
    if (tab->isEnabled())
        addPanelAction(tab);
    else
        removePanelAction(tab);
}

void RibbonMenuBar::addPanelAction(RibbonCategoriesPanelAction *tab)
{
    if (!tab || d->group->actions().contains(tab))
        return;
    d->group->addAction(tab);

    tab->setChecked(tab->isChecked() && !isRibbonMinimized());
    const bool checked = tab->isChecked();
    tab->setChecked(false);

    d->window.addAction(tab); // for its shortcut
    if (d->shortcuts)
        d->shortcuts->addTab(tab); // and those of its commands
    d->panels->addAction(tab);

    auto *button = new RibbonMenuBarButton(*this);
    button->addAction(tab);
    d->tabStrip->addWidget(button);
    button->show();
    d->widgets.insert(tab, button);

    if (checked) {
        // QActionGroup takes a checked newcomer as its current action without
        // unchecking the previous one; do that here so that one tab stays current.
        for (QAction *other : d->group->actions()) {
            if (other != tab && other->isChecked())
                other->setChecked(false);
        }
        tab->setChecked(true);
    }
    ensureChecked();
}

void RibbonMenuBar::removePanelAction(RibbonCategoriesPanelAction *tab)
{
    if (tab)
        removeTab(tab);
}

void RibbonMenuBar::removeTab(QAction *tab)
{
    if (!d->group->actions().contains(tab))
        return;
    const int index = d->group->actions().indexOf(tab);
    const bool wasChecked = tab->isChecked();

    d->group->removeAction(tab);
    // A tab in its destructor has lost its class; it must not announce anything more.
    if (qobject_cast<RibbonCategoriesPanelAction *>(tab))
        tab->setChecked(false);
    d->window.removeAction(tab);
    if (d->shortcuts)
        d->shortcuts->removeTab(tab);
    d->panels->removeAction(tab);

    if (auto *button = d->widgets.widgetAs<RibbonMenuBarButton>(tab))
        button->removeAction(tab);
    d->widgets.drop(tab);

    const QList<QAction *> remaining = d->group->actions();
    if (wasChecked && !remaining.isEmpty())
        remaining.value(index, remaining.last())->setChecked(true);
    ensureChecked();
}

void RibbonMenuBar::ensureChecked()
{
    if (isRibbonMinimized())
        return;
    const QList<QAction *> tabs = d->group->actions();
    for (QAction *tab : tabs) {
        if (tab->isChecked())
            return;
    }
    if (!tabs.isEmpty())
        tabs.first()->setChecked(true);
}

void RibbonMenuBar::pinRibbon()
{
    d->panels->setCollapsable(false);
    updateCollapseRibbonAction();
}

void RibbonMenuBar::minimizeRibbon()
{
    d->panels->setCollapsable(true);
    updateCollapseRibbonAction();
}

void RibbonMenuBar::collapse()
{
    if (isRibbonMinimized())
        d->panels->collapse();
}

void RibbonMenuBar::updateCollapseRibbonAction()
{
    if (!d->collapseAction)
        return;
    if (!isRibbonMinimized()) {
        disconnect(d->collapseAction, SIGNAL(triggered()), this, SLOT(pinRibbon()));
        connect(d->collapseAction, SIGNAL(triggered()), this, SLOT(minimizeRibbon()), Qt::UniqueConnection);
        d->collapseAction->setIcon(QIcon(QStringLiteral(":/zel/common/Resources/MinimizeRibbon.ico")));
        d->collapseAction->setToolTip(tr("Collapse the Ribbon"));
    } else {
        connect(d->collapseAction, SIGNAL(triggered()), this, SLOT(pinRibbon()), Qt::UniqueConnection);
        disconnect(d->collapseAction, SIGNAL(triggered()), this, SLOT(minimizeRibbon()));
        d->collapseAction->setIcon(QIcon(QStringLiteral(":/zel/common/Resources/PinRibbon.ico")));
        d->collapseAction->setToolTip(tr("Pin the Ribbon"));
    }
}

void RibbonMenuBar::contextMenuEvent(QContextMenuEvent *event)
{
    ribbonOpenContextMenu(*this, event);
}

} // namespace zel
