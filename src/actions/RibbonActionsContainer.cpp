#include "RibbonActionsContainer.h"

namespace zel {

RibbonActionsContainer::RibbonActionsContainer() = default;

RibbonActionsContainer::~RibbonActionsContainer() = default;

RibbonActionsContainer &RibbonActionsContainer::instance()
{
    static RibbonActionsContainer container;
    return container;
}

void RibbonActionsContainer::addAction(QString name, QPointer<QAction> action)
{
    // The first registration stays, even after its action has gone: a name must not
    // silently start to mean another command.
    if (m_actions.contains(name))
        return;
    m_actions.insert(name, action);
}

void RibbonActionsContainer::removeAction(QString name)
{
    m_actions.remove(name);
}

QPointer<QAction> RibbonActionsContainer::action(const QString &name) const
{
    return m_actions.value(name);
}

QPointer<QAction> RibbonActionsContainer::action(const QKeySequence &sequence) const
{
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it) {
        const QPointer<QAction> &candidate = it.value();
        if (candidate && candidate->shortcut() == sequence)
            return candidate;
    }
    return QPointer<QAction>();
}

} // namespace zel
