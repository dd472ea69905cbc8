#include "RibbonContextCategoryPanel.h"

#include "RibbonContextCategoryPanelAction.h"

#include <QMetaMethod>

#if __has_include("RibbonMenuBar.h")
#include "RibbonMenuBar.h"
#define ZEL_HAVE_RIBBON_MENU_BAR 1
#endif

namespace zel {

namespace {

QObject *menuBarObject(RibbonMenuBar &menuBar)
{
#ifdef ZEL_HAVE_RIBBON_MENU_BAR
    return static_cast<QObject *>(&menuBar);
#else
    // RibbonMenuBar derives from QWidget alone, so its address is its QObject's.
    return reinterpret_cast<QObject *>(&menuBar);
#endif
}

} // namespace

RibbonContextCategoryPanel::RibbonContextCategoryPanel(RibbonMenuBar &menuBar)
    : RibbonContextCategoryPanel(menuBarObject(menuBar))
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
    // Hide the set first, while it is still registered. The bar's slot is found by name
    // and its own parameter type, so either spelling of the type in its declaration works.
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
