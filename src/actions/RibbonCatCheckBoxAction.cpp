#include "RibbonCatCheckBoxAction.h"

namespace zel {

RibbonCatCheckBoxAction::RibbonCatCheckBoxAction(QObject *parent)
    : RibbonAction(parent)
{
    init();
}

RibbonCatCheckBoxAction::RibbonCatCheckBoxAction(const QString &text, QObject *parent)
    : RibbonAction(text, parent)
    , m_textLabel(text)
{
    init();
}

RibbonCatCheckBoxAction::~RibbonCatCheckBoxAction() = default;

void RibbonCatCheckBoxAction::init()
{
    // The checked state lives in the action so that every box shown for it agrees.
    setCheckable(true);
    connect(this, SIGNAL(changed()), this, SLOT(onChanged()));
}

QString RibbonCatCheckBoxAction::textLabel() const
{
    return m_textLabel;
}

void RibbonCatCheckBoxAction::setTextLabel(const QString &text)
{
    if (text == m_textLabel)
        return;
    m_textLabel = text;
    emit changed();
}

void RibbonCatCheckBoxAction::onChanged()
{
    emit actionEnabled(isEnabled());
}

} // namespace zel
