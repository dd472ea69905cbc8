#include "RibbonMenuAction.h"

#include "RibbonMembers_p.h"

namespace zel {

// Items and the menu itself are connected to this class's actionChanged() by address:
// connecting by the name "actionChanged()" would pick the slot of the same name that
// RibbonCatMenuAction adds, and the item rules would never run there.
#define ZEL_ITEM_CHANGED_SLOT qOverload<>(&RibbonMenuAction::actionChanged)

RibbonMenuAction::RibbonMenuAction(QObject *parent)
    : RibbonAction(parent)
{
    init();
}

RibbonMenuAction::RibbonMenuAction(const QString &text, QObject *parent)
    : RibbonAction(text, parent)
{
    init();
}

RibbonMenuAction::RibbonMenuAction(const QIcon &icon, const QString &text, QObject *parent)
    : RibbonAction(icon, text, parent)
{
    init();
}

RibbonMenuAction::RibbonMenuAction(QPointer<QAction> alias, QObject *parent)
    : RibbonAction(alias, parent)
{
    init();
    connectAliasMenu();
}

RibbonMenuAction::RibbonMenuAction(QPointer<QAction> alias, const QIcon &icon, const QString &text,
                                   QObject *parent)
    : RibbonAction(alias, icon, text, parent)
{
    init();
    connectAliasMenu();
}

RibbonMenuAction::~RibbonMenuAction() = default;

void RibbonMenuAction::init()
{
    connect(this, &QAction::changed, this, ZEL_ITEM_CHANGED_SLOT);
}

void RibbonMenuAction::connectAliasMenu()
{
    if (RibbonMenuAction *menu = qobject_cast<RibbonMenuAction *>(aliasAction()))
        connect(menu, SIGNAL(defaultActionChanged()), this, SLOT(onAliasDefaultActionChanged()));
}

void RibbonMenuAction::addAction(RibbonAction *action, bool isDefault)
{
    if (!action || m_menuActions.contains(action) || RibbonMembers::closesCycle(this, action))
        return;
    m_menuActions.append(action);
    if (isDefault)
        m_defaultAction = action;
    connect(action, &QAction::changed, this, ZEL_ITEM_CHANGED_SLOT);
    connect(action, &RibbonAction::ribbonActionActivated, this, &RibbonMenuAction::actionActivated);
    connect(action, SIGNAL(triggered()), this, SLOT(actionTriggered()));
    connect(action, &QObject::destroyed, this, &RibbonMenuAction::forgetItem, Qt::UniqueConnection);
    actionChanged(action);
}

void RibbonMenuAction::insertAction(int index, RibbonAction *action)
{
    if (!action || RibbonMembers::closesCycle(this, action))
        return;
    m_menuActions.removeAll(action);
    m_menuActions.insert(qBound(0, index, m_menuActions.size()), action);
    // Only the cleanup is connected: the item must not dangle when it is destroyed.
    connect(action, &QObject::destroyed, this, &RibbonMenuAction::forgetItem, Qt::UniqueConnection);
    sendActionChangedEvt();
    emitChanged();
}

void RibbonMenuAction::removeAction(RibbonAction *action)
{
    if (!action || !m_menuActions.contains(action))
        return;
    // Dropping the default is not a change of default the host asked for: no
    // defaultActionChanged().
    if (m_defaultAction == action)
        m_defaultAction = nullptr;
    if (m_checkedItem == action)
        m_checkedItem = nullptr;
    disconnectItem(action);
    m_menuActions.removeAll(action);
    sendActionChangedEvt();
    emitChanged();
}

const QList<RibbonAction *> &RibbonMenuAction::menuActions() const
{
    return m_menuActions;
}

void RibbonMenuAction::setDefaultAction(RibbonAction *action)
{
    if (m_defaultAction == action || RibbonMembers::closesCycle(this, action))
        return;
    m_defaultAction = action;
    if (action)
        connect(action, &QObject::destroyed, this, &RibbonMenuAction::forgetItem,
                Qt::UniqueConnection);
    setToolTip(action ? action->toolTip() : QString());
    emit defaultActionChanged();
}

RibbonAction *RibbonMenuAction::defaultAction()
{
    return m_defaultAction;
}

RibbonAction *RibbonMenuAction::defaultAction() const
{
    return m_defaultAction;
}

RibbonAction *RibbonMenuAction::checkedAction()
{
    return static_cast<const RibbonMenuAction *>(this)->checkedAction();
}

RibbonAction *RibbonMenuAction::checkedAction() const
{
    if (m_checkedItem)
        return m_checkedItem;
    if (m_toBeToggled) {
        for (RibbonAction *item : m_menuActions) {
            if (item->isChecked())
                return item;
        }
    }
    return nullptr;
}

void RibbonMenuAction::setExclusive(bool exclusive)
{
    m_exclusive = exclusive;
    if (!exclusive)
        m_checkedItem = nullptr;
    // Announced later: the dying member, or an owner in the middle of deleting its
    // children, may still be connected to this container's signals.
    QMetaObject::invokeMethod(this, [this] { emitChanged(); }, Qt::QueuedConnection);
}

bool RibbonMenuAction::isExclusive() const
{
    return m_exclusive;
}

void RibbonMenuAction::setToBeToggled(bool toBeToggled)
{
    m_toBeToggled = toBeToggled;
}

bool RibbonMenuAction::toBeToggled() const
{
    if (!m_showToggledIndicator)
        return false;
    if (m_toBeToggled) {
        for (RibbonAction *item : m_menuActions) {
            if (item->isChecked())
                return true;
        }
        return false;
    }
    return m_defaultAction && m_defaultAction->isCheckable() && m_defaultAction->isChecked();
}

void RibbonMenuAction::autoChangeEnableSubActions(bool autoChange)
{
    m_autoChangeEnable = autoChange;
}

void RibbonMenuAction::setShowToggledIndicator(bool show)
{
    m_showToggledIndicator = show;
}

void RibbonMenuAction::actionChanged(RibbonMenuAction *menu)
{
    // Only a change of the menu itself is pushed to its items. Its announcements of item
    // changes are not: they would push its state back onto the item that just changed,
    // which an alias, or another menu sharing the item, may have set otherwise. Nor is a
    // change that this very push causes while it runs: each push settles in one pass.
    if (!menu || !m_autoChangeEnable || menu->m_emittingChange || m_pushing.contains(menu))
        return;
    m_pushing.append(menu);
    QPointer<RibbonMenuAction> self(this), guardedMenu(menu);
    const bool enabled = menu->isEnabled();
    // Copy: an item's change handler may remove items from the menu, or destroy them.
    const QList<RibbonAction *> items = menu->menuActions();
    for (RibbonAction *item : items) {
        if (!self || !guardedMenu)
            break;
        if (guardedMenu->menuActions().contains(item))
            item->setEnabled(enabled);
    }
    if (self)
        m_pushing.removeOne(menu);
}

void RibbonMenuAction::actionChanged(RibbonAction *item)
{
    if (m_exclusive && item && item->isCheckable()) {
        // Only a change of checked state moves the checked item; any other change
        // of an unchecked item (its text, say) leaves the checked one alone.
        if (item->isChecked() && item != m_checkedItem) {
            RibbonAction *previous = m_checkedItem;
            m_checkedItem = item;
            if (previous && previous->isChecked())
                previous->setChecked(false);
        } else if (!item->isChecked() && item == m_checkedItem) {
            m_checkedItem = nullptr;
        }
    }
    RibbonMembers::relayOnce(this, [this] {
        sendActionChangedEvt();
        emitChanged();
    });
}

void RibbonMenuAction::actionChanged()
{
    QObject *source = sender();
    if (RibbonMenuAction *menu = qobject_cast<RibbonMenuAction *>(source))
        actionChanged(menu);
    else
        actionChanged(qobject_cast<RibbonAction *>(source));
}

void RibbonMenuAction::onAliasDefaultActionChanged()
{
    if (RibbonMenuAction *menu = qobject_cast<RibbonMenuAction *>(aliasAction()))
        setDefaultAction(menu->defaultAction());
}

void RibbonMenuAction::actionActivated()
{
    emit ribbonActionActivated();
}

void RibbonMenuAction::actionTriggered()
{
    emit triggered(qobject_cast<RibbonAction *>(sender()));
}

bool RibbonMenuAction::isEmittingChange() const
{
    return m_emittingChange;
}

void RibbonMenuAction::emitChanged()
{
    // Nested announcements leave the flag as the outer one needs it; a receiver may
    // destroy the menu.
    QPointer<RibbonMenuAction> self(this);
    const bool outer = m_emittingChange;
    m_emittingChange = true;
    emit changed();
    if (self)
        m_emittingChange = outer;
}

void RibbonMenuAction::disconnectItem(RibbonAction *action)
{
    disconnect(action, &QAction::changed, this, ZEL_ITEM_CHANGED_SLOT);
    disconnect(action, &RibbonAction::ribbonActionActivated, this, &RibbonMenuAction::actionActivated);
    disconnect(action, SIGNAL(triggered()), this, SLOT(actionTriggered()));
    disconnect(action, &QObject::destroyed, this, &RibbonMenuAction::forgetItem);
}

void RibbonMenuAction::forgetItem(QObject *action)
{
    RibbonMembers::forget(m_menuActions, action);
    RibbonMembers::forget(m_defaultAction, action);
    RibbonMembers::forget(m_checkedItem, action);
    RibbonMembers::announceLater(this, [this] { emitChanged(); });
}

} // namespace zel

#undef ZEL_ITEM_CHANGED_SLOT
