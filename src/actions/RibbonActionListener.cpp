#include "RibbonActionListener.h"

#include "RibbonAction.h"

namespace zel {

RibbonActionListener::RibbonActionListener() = default;

RibbonActionListener::~RibbonActionListener() = default;

RibbonActionListener &RibbonActionListener::instance()
{
    static RibbonActionListener listener;
    return listener;
}

QString RibbonActionListener::lastActionTriggered() const
{
    return m_lastActionTriggered;
}

void RibbonActionListener::onForbiddenActionTriggered()
{
    emit forbiddenActionTriggered(qobject_cast<RibbonAction *>(sender()));
}

void RibbonActionListener::onActionTriggered()
{
    RibbonAction *action = qobject_cast<RibbonAction *>(sender());
    if (action)
        m_lastActionTriggered = action->text();
    emit actionTriggered(action);
}

} // namespace zel
