#include "RibbonContextCategoryPanel.h"

#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMembers_p.h"
// The registry belongs to the ribbon bar and asks it to hide a set before forgetting it.
#include "RibbonMenuBar.h"

namespace zel {

RibbonContextCategoryPanel::RibbonContextCategoryPanel(RibbonMenuBar &menuBar)
    : QObject(&menuBar)
{
}

RibbonContextCategoryPanel::RibbonContextCategoryPanel(QObject *owner)
    : QObject(owner)
{
}

RibbonContextCategoryPanel::~RibbonContextCategoryPanel() = default;

void RibbonContextCategoryPanel::addContextPanelAction(RibbonContextCategoryPanelAction *action)
{
    if (!action || m_actions.contains(action))
        return;
    m_actions.append(action);
    connect(action, &QObject::destroyed, this, &RibbonContextCategoryPanel::forgetAction);
}

void RibbonContextCategoryPanel::removeContextPanelAction(RibbonContextCategoryPanelAction *action)
{
    if (!action || !m_actions.contains(action))
        return;

    // Hidden first, while it is still registered.
    QPointer<QAction> guard(action);
    hideContextPanel(action);
    if (!guard)
        return; // destroyed while being hidden: already forgotten
    disconnect(action, &QObject::destroyed, this, &RibbonContextCategoryPanel::forgetAction);
    m_actions.removeAll(action);
}

void RibbonContextCategoryPanel::hideContextPanel(RibbonContextCategoryPanelAction *action)
{
    // Checked, not assumed: the registry may be reached while the bar is being destroyed.
    if (auto *bar = qobject_cast<RibbonMenuBar *>(parent()))
        bar->hideContextPanelAction(action);
}

bool RibbonContextCategoryPanel::containsAction(RibbonContextCategoryPanelAction *action)
{
    return action && m_actions.contains(action);
}

QString RibbonContextCategoryPanel::name(RibbonContextCategoryPanelAction *action)
{
    if (!containsAction(action))
        return QString();
    return action->text();
}

void RibbonContextCategoryPanel::forgetAction(QObject *action)
{
    RibbonMembers::forget(m_actions, action);
}

} // namespace zel
