#include "RibbonPercAction.h"

#include <QPointer>
#include <QtGlobal>

namespace zel {

RibbonPercAction::RibbonPercAction(int minimum, int maximum, int percentage, QObject *parent)
    : RibbonAction(parent)
    , m_minimum(minimum)
    , m_maximum(maximum)
    , m_percentage(percentage)
{
}

RibbonPercAction::~RibbonPercAction() = default;

int RibbonPercAction::minimum() const
{
    return m_minimum;
}

int RibbonPercAction::maximum() const
{
    return m_maximum;
}

int RibbonPercAction::percentage() const
{
    return m_percentage;
}

void RibbonPercAction::setPercentage(int p)
{
    const int old = m_percentage;
    // qBound asserts on an inverted range; a host's odd range must not abort.
    const int stored = qMax(m_minimum, qMin(p, m_maximum));
    m_percentage = stored;
    if (stored != old)
        sendActionChangedEvt();
    if (p != old) {
        // A receiver may delete the action.
        QPointer<RibbonPercAction> self(this);
        emit percentageChanged(stored);
        if (self)
            emit changed();
    }
}

} // namespace zel
