#include "RibbonCatActionGroup.h"

#include "RibbonCatColorMenuAction.h"
#include "RibbonMembers_p.h"

namespace zel {

RibbonCatActionGroup::RibbonCatActionGroup(QObject *parent)
    : RibbonAction(parent)
{
}

RibbonCatActionGroup::RibbonCatActionGroup(const QString &text, QObject *parent)
    : RibbonAction(text, parent)
{
}

RibbonCatActionGroup::~RibbonCatActionGroup() = default;

void RibbonCatActionGroup::addAction(RibbonAction *action, bool wide)
{
    if (!action || m_actions.contains(action) || RibbonMembers::closesCycle(this, action))
        return;
    m_actions.append(action);
    if (m_exclusive && action->isCheckable() && action->isChecked()) {
        if (m_checkedAction)
            m_checkedAction->setChecked(false);
        m_checkedAction = action;
    }
    connect(action, SIGNAL(changed()), this, SLOT(actionChanged()));
    connect(action, SIGNAL(ribbonActionActivated()), this, SLOT(actionActivated()));
    connect(action, &QObject::destroyed, this, &RibbonCatActionGroup::forgetAction);
    sendActionChangedEvt();
    m_wide = wide;
    emit changed();
}

void RibbonCatActionGroup::removeAction(RibbonAction *action)
{
    if (!action || !m_actions.contains(action))
        return;
    // The removed member keeps its checked state.
    if (action == m_checkedAction)
        m_checkedAction = nullptr;
    disconnect(action, SIGNAL(changed()), this, SLOT(actionChanged()));
    disconnect(action, SIGNAL(ribbonActionActivated()), this, SLOT(actionActivated()));
    disconnect(action, &QObject::destroyed, this, &RibbonCatActionGroup::forgetAction);
    m_actions.removeAll(action);
    sendActionChangedEvt();
    emit changed();
}

void RibbonCatActionGroup::setExclusive(bool exclusive)
{
    m_exclusive = exclusive;
    if (!exclusive)
        m_checkedAction = nullptr;
    emit changed();
}

bool RibbonCatActionGroup::isExclusive() const
{
    return m_exclusive;
}

bool RibbonCatActionGroup::isWide() const
{
    return m_wide;
}

RibbonAction *RibbonCatActionGroup::checkedAction()
{
    return m_checkedAction;
}

const QList<RibbonAction *> &RibbonCatActionGroup::actions() const
{
    return m_actions;
}

void RibbonCatActionGroup::actionChanged()
{
    RibbonAction *member = qobject_cast<RibbonAction *>(sender());
    if (member && member->isCheckable() && member->isChecked() && m_exclusive
        && member != m_checkedAction) {
        // Unchecking the previous member re-enters here through its changed(); by then
        // it is not checked and nothing else happens.
        RibbonAction *previous = m_checkedAction;
        m_checkedAction = member;
        if (previous && previous->isChecked())
            previous->setChecked(false);
    }
    RibbonMembers::relayOnce(this, [this] {
        sendActionChangedEvt();
        emit changed();
    });
}

void RibbonCatActionGroup::actionActivated()
{
    // A colour menu in a strip is activated while its picker stays open; it must not
    // close the surrounding popup.
    if (qobject_cast<RibbonCatColorMenuAction *>(sender()))
        return;
    emit ribbonActionActivated();
}

void RibbonCatActionGroup::forgetAction(QObject *action)
{
    RibbonMembers::forget(m_actions, action);
    RibbonMembers::forget(m_checkedAction, action);
    RibbonMembers::announceLater(this, [this] {
        sendActionChangedEvt();
        emit changed();
    });
}

} // namespace zel
