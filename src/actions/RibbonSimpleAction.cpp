#include "RibbonSimpleAction.h"

namespace zel {

RibbonSimpleAction::RibbonSimpleAction(QObject *parent)
    : RibbonAction(parent)
{
    relayActivation();
}

RibbonSimpleAction::RibbonSimpleAction(const QString &text, QObject *parent)
    : RibbonAction(text, parent)
{
    relayActivation();
}

RibbonSimpleAction::RibbonSimpleAction(const QIcon &icon, const QString &text, QObject *parent)
    : RibbonAction(icon, text, parent)
{
    relayActivation();
}

RibbonSimpleAction::RibbonSimpleAction(QPointer<QAction> alias, QObject *parent)
    : RibbonAction(alias, parent)
{
    relayActivation();
}

RibbonSimpleAction::RibbonSimpleAction(QPointer<QAction> alias, const QIcon &icon,
                                       const QString &text, QObject *parent)
    : RibbonAction(alias, icon, text, parent)
{
    relayActivation();
}

RibbonSimpleAction::RibbonSimpleAction(QPointer<RibbonAction> alias, QObject *parent)
    : RibbonAction(alias, parent)
{
    relayActivation();
}

RibbonSimpleAction::RibbonSimpleAction(QPointer<RibbonAction> alias, const QString &text,
                                       QObject *parent)
    : RibbonAction(alias, text, parent)
{
    relayActivation();
}

RibbonSimpleAction::~RibbonSimpleAction() = default;

void RibbonSimpleAction::relayActivation()
{
    // Unique: subclasses repeat this connection, and one trigger must announce one
    // activation (a second one would, for instance, close a reopened popup).
    connect(this, SIGNAL(triggered()), this, SIGNAL(ribbonActionActivated()),
            Qt::UniqueConnection);
}

} // namespace zel
