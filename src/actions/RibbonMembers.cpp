#include "RibbonMembers_p.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMenuAction.h"

#include <QPair>
#include <QPointer>
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

namespace {

struct Wave
{
    int depth = 0;
    bool secondRound = false;
    QSet<const QObject *> relayed;
    QSet<const QObject *> askedAgain;
    QList<QPair<QPointer<QObject>, std::function<void()>>> again;
};

Wave &wave()
{
    static Wave current;
    return current;
}

void runRelay(Wave &w, QObject *relayer, const std::function<void()> &relay)
{
    w.relayed.insert(relayer);
    ++w.depth;
    relay();
    --w.depth;
}

} // namespace

void relayOnce(QObject *relayer, const std::function<void()> &relay)
{
    Wave &w = wave();
    if (w.relayed.contains(relayer)) {
        if (!w.secondRound && !w.askedAgain.contains(relayer)) {
            w.askedAgain.insert(relayer);
            w.again.append(qMakePair(QPointer<QObject>(relayer), relay));
        }
        return;
    }
    runRelay(w, relayer, relay);
    if (w.depth > 0)
        return;

    // The wave has ended: the relayers asked again run once more, in the order asked.
    const auto again = std::move(w.again);
    w.again.clear();
    w.askedAgain.clear();
    w.relayed.clear();
    w.secondRound = true;
    for (const auto &pending : again) {
        if (pending.first && !w.relayed.contains(pending.first.data()))
            runRelay(w, pending.first.data(), pending.second);
    }
    w.secondRound = false;
    w.relayed.clear();
}

} // namespace RibbonMembers
} // namespace zel
