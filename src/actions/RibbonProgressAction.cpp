#include "RibbonProgressAction.h"

namespace zel {

RibbonProgressAction::RibbonProgressAction(const QString &text, QObject *parent)
    : RibbonProgressAction(0, 1, 0, text, parent)
{
}

RibbonProgressAction::RibbonProgressAction(int minimum, int maximum, int value, const QString &text,
                                           QObject *parent)
    : RibbonAction(parent)
    , m_progressText(text)
    , m_value(value)
    , m_minimum(minimum)
    , m_maximum(maximum)
{
}

RibbonProgressAction::~RibbonProgressAction() = default;

QString RibbonProgressAction::progressText() const
{
    return m_progressText;
}

int RibbonProgressAction::value() const
{
    return m_value;
}

int RibbonProgressAction::minimum() const
{
    return m_minimum;
}

int RibbonProgressAction::maximum() const
{
    return m_maximum;
}

void RibbonProgressAction::enableGrab(bool enable)
{
    m_grabEnabled = enable;
}

bool RibbonProgressAction::isGrabEnabled() const
{
    return m_grabEnabled;
}

void RibbonProgressAction::setProgressValue(int value)
{
    if (value == m_value)
        return;
    m_value = value;
    emit progressValueChanged(value);
}

void RibbonProgressAction::setProgressText(const QString &text)
{
    if (text == m_progressText)
        return;
    m_progressText = text;
    emit progressTextChanged(text);
}

void RibbonProgressAction::setRange(int minimum, int maximum)
{
    if (minimum == m_minimum && maximum == m_maximum)
        return;
    m_minimum = minimum;
    m_maximum = maximum;
    emit progressRangeChanged();
}

void RibbonProgressAction::setProgress(int done, int total)
{
    setRange(0, total);
    setProgressValue(done);
}

} // namespace zel
