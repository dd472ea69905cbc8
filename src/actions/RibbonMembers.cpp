#include "RibbonMembers_p.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMenuAction.h"

#include <QSet>

namespace zel {
namespace RibbonMembers {

namespace {

template<class T>
void append(QList<const QObject *> &members, const QList<T *> &list)
{
    for (T *member : list)
        members.append(member);
}

} // namespace

QList<const QObject *> membersOf(const QObject *container)
{
    QList<const QObject *> members;
    if (auto *menu = qobject_cast<const RibbonMenuAction *>(container)) {
        append(members, menu->menuActions());
        if (const RibbonAction *defaultAction = menu->defaultAction())
            members.append(defaultAction);
    } else if (auto *category = qobject_cast<const RibbonCategoryAction *>(container)) {
        append(members, category->actions());
    } else if (auto *group = qobject_cast<const RibbonCatActionGroup *>(container)) {
        append(members, group->actions());
    } else if (auto *tab = qobject_cast<const RibbonCategoriesPanelAction *>(container)) {
        append(members, tab->categories());
    } else if (auto *set = qobject_cast<const RibbonContextCategoryPanelAction *>(container)) {
        append(members, set->panelActions());
    }
    return members;
}

bool closesCycle(const QObject *container, const QObject *member)
{
    if (!container || !member)
        return false;
    // Members may be shared by several containers: each is walked once.
    QSet<const QObject *> seen{member};
    QList<const QObject *> pending{member};
    while (!pending.isEmpty()) {
        const QObject *next = pending.takeLast();
        if (next == container)
            return true;
        for (const QObject *inner : membersOf(next)) {
            if (!seen.contains(inner)) {
                seen.insert(inner);
                pending.append(inner);
            }
        }
    }
    return false;
}

} // namespace RibbonMembers
} // namespace zel
