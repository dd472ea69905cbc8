#include "RibbonContextCategoryPanel.h"

#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMenuBar.h"

#include <QMetaMethod>

namespace zel {

RibbonContextCategoryPanel::RibbonContextCategoryPanel(RibbonMenuBar &menuBar)
    : RibbonContextCategoryPanel(static_cast<QObject *>(&menuBar))
{
}

RibbonContextCategoryPanel::RibbonContextCategoryPanel(QObject *menuBar)
    : QObject(menuBar)
    , m_menuBar(menuBar)
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

    QPointer<RibbonContextCategoryPanelAction> guard(action);
    // Hide the set first, while it is still registered. The owner's slot is called through
    // the meta-object, so an owner other than the ribbon bar can take its place.
    if (QObject *bar = m_menuBar.data()) {
        const QMetaObject *meta = bar->metaObject();
        for (int i = meta->methodCount() - 1; i >= 0; --i) {
            const QMetaMethod method = meta->method(i);
            if (method.name() == "hideContextPanelAction" && method.parameterCount() == 1) {
                method.invoke(bar, Qt::DirectConnection,
                              QGenericArgument(method.parameterTypes().constFirst().constData(),
                                               &action));
                break;
            }
        }
    }

    if (!guard)
        return; // destroyed while being hidden: already forgotten
    disconnect(action, &QObject::destroyed, this, &RibbonContextCategoryPanel::forgetAction);
    m_actions.removeAll(action);
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
    for (int i = m_actions.size() - 1; i >= 0; --i) {
        if (static_cast<QObject *>(m_actions.at(i)) == action)
            m_actions.removeAt(i);
    }
}

} // namespace zel
