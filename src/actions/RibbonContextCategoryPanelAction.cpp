#include "RibbonContextCategoryPanelAction.h"

#include "RibbonCategoriesPanelAction.h"
#include "RibbonMembers_p.h"

namespace zel {

RibbonContextCategoryPanelAction::RibbonContextCategoryPanelAction(QColor backgroundColor,
                                                                   QColor topColor,
                                                                   QColor textColor,
                                                                   QObject *parent)
    : RibbonAction(parent)
    , m_backgroundColor(backgroundColor)
    , m_topColor(topColor)
    , m_textColor(textColor)
{
}

RibbonContextCategoryPanelAction::~RibbonContextCategoryPanelAction() = default;

QColor RibbonContextCategoryPanelAction::backgroundColor() const
{
    return m_backgroundColor;
}

QColor RibbonContextCategoryPanelAction::topColor() const
{
    return m_topColor;
}

QColor RibbonContextCategoryPanelAction::textColor() const
{
    return m_textColor;
}

void RibbonContextCategoryPanelAction::addPanelAction(RibbonCategoriesPanelAction *action)
{
    if (!action || m_panelActions.contains(action) || RibbonMembers::closesCycle(this, action))
        return;
    m_panelActions.append(action);
    connect(action, &QObject::destroyed, this,
            &RibbonContextCategoryPanelAction::forgetPanelAction);
    emit panelActionAdded(action);
}

void RibbonContextCategoryPanelAction::removePanelAction(RibbonCategoriesPanelAction *action)
{
    if (!action || !m_panelActions.contains(action))
        return;
    disconnect(action, &QObject::destroyed, this,
               &RibbonContextCategoryPanelAction::forgetPanelAction);
    m_panelActions.removeAll(action);
    emit panelActionRemoved(action);
}

const QList<RibbonCategoriesPanelAction *> &RibbonContextCategoryPanelAction::panelActions() const
{
    return m_panelActions;
}

RibbonCategoriesPanelAction *RibbonContextCategoryPanelAction::panelAction(const QString &text) const
{
    for (RibbonCategoriesPanelAction *action : m_panelActions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

void RibbonContextCategoryPanelAction::forgetPanelAction(QObject *action)
{
    // Dropped silently: panelActionRemoved() would hand receivers a pointer they can
    // no longer use.
    RibbonMembers::forget(m_panelActions, action);
}

} // namespace zel
