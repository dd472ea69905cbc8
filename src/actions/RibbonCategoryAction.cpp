#include "RibbonCategoryAction.h"

#include "RibbonMembers_p.h"

namespace zel {

RibbonCategoryAction::RibbonCategoryAction(QObject *parent)
    : RibbonAction(parent)
{
}

RibbonCategoryAction::RibbonCategoryAction(const QString &text, QObject *parent)
    : RibbonAction(text, parent)
{
}

RibbonCategoryAction::RibbonCategoryAction(const QIcon &icon, const QString &text, QObject *parent)
    : RibbonAction(icon, text, parent)
{
}

RibbonCategoryAction::~RibbonCategoryAction() = default;

void RibbonCategoryAction::addAction(RibbonAction *action, int row)
{
    if (!action || m_actions.contains(action) || RibbonMembers::closesCycle(this, action))
        return;
    m_actions.append(action);
    m_rows.append(row);
    connect(action, SIGNAL(changed()), this, SLOT(actionChanged()));
    connect(action, SIGNAL(ribbonActionActivated()), this, SLOT(actionActivated()));
    connect(action, &QObject::destroyed, this, &RibbonCategoryAction::forgetAction);
    emit actionAdded(action);
    emit changed();
}

void RibbonCategoryAction::removeAction(RibbonAction *action)
{
    if (!action || !m_actions.contains(action))
        return;
    disconnect(action, SIGNAL(changed()), this, SLOT(actionChanged()));
    disconnect(action, SIGNAL(ribbonActionActivated()), this, SLOT(actionActivated()));
    disconnect(action, &QObject::destroyed, this, &RibbonCategoryAction::forgetAction);
    const int index = m_actions.indexOf(action);
    m_actions.removeAt(index);
    m_rows.remove(index);
    emit actionRemoved(action);
    emit changed();
}

const QList<RibbonAction *> &RibbonCategoryAction::actions() const
{
    return m_actions;
}

int RibbonCategoryAction::actionRow(RibbonAction *action) const
{
    if (m_actions.isEmpty())
        return -1;
    const int index = m_actions.indexOf(action);
    return index < 0 ? 0 : m_rows.at(index);
}

void RibbonCategoryAction::actionChanged()
{
    RibbonMembers::relayOnce(this, [this] { emit changed(); });
}

void RibbonCategoryAction::actionActivated()
{
    emit ribbonActionActivated();
}

void RibbonCategoryAction::forgetAction(QObject *action)
{
    // Its widgets have already dropped it, when QAction's destructor removed it.
    for (int i = m_actions.size() - 1; i >= 0; --i) {
        if (static_cast<const QObject *>(m_actions.at(i)) == action) {
            m_actions.removeAt(i);
            m_rows.remove(i);
        }
    }
    RibbonMembers::announceLater(this, [this] { emit changed(); });
}

} // namespace zel
