#pragma once

// How the container actions (tab, category, button group, menu, contextual set and its
// registry) keep their members: which members they refuse, and how they let go of a
// member that is destroyed while it still belongs to them. Not installed.
//
// A container never holds itself, directly or through other containers: its relays of
// changes and activations would run in a circle, and its own destroyed() would reach
// its forget slot while it is half destroyed. Every container asks closesCycle()
// before it takes a member.
//
// A container holds plain pointers to members it does not own and listens to their
// QObject::destroyed(). By then a member is no longer of its class: it is compared by
// address only and never read, and no signal carries the dead pointer.

#include <QList>
#include <QMetaObject>
#include <QObject>

#include <functional>
#include <utility>

namespace zel {
namespace RibbonMembers {

// The members a container action holds: the items and the default of a menu, the
// commands of a category or a button group, the categories of a tab, the tabs of a
// contextual set. Empty for anything else.
QList<const QObject *> membersOf(const QObject *container);

// Whether taking member would make container hold itself: member is container, or
// holds it directly or further down.
bool closesCycle(const QObject *container, const QObject *member);

// Removes the member at address gone from list. Returns the pointer as it was stored
// (to remove it from other tables by key; never to be read), null when it was not
// there.
template<class T>
T *forget(QList<T *> &list, const QObject *gone)
{
    T *forgotten = nullptr;
    for (int i = list.size() - 1; i >= 0; --i) {
        if (static_cast<const QObject *>(list.at(i)) == gone)
            forgotten = list.takeAt(i);
    }
    return forgotten;
}

// Clears member when it points at address gone; returns whether it did.
template<class T>
bool forget(T *&member, const QObject *gone)
{
    if (!member || static_cast<const QObject *>(member) != gone)
        return false;
    member = nullptr;
    return true;
}

// Runs relay, which announces that something below relayer changed (a container's
// changed() for a changed member, an action's announcement on its alias), at most once
// per relayer and wave. A wave is everything one change sets off through the relays;
// a member shared by several containers, or containers nested in several others,
// would otherwise reach the ones above by every path, which multiplies with each
// level. A relayer asked again later in the same wave (a relay in between may have
// changed a state it reports) runs once more when the wave has ended, its duplicates
// in that second round dropped. Relays are GUI-thread only.
void relayOnce(QObject *relayer, const std::function<void()> &relay);

// Runs announce (which emits the container's change signals) from the event loop: the
// dying member, or an owner in the middle of deleting its children, may still be
// connected to the container's signals.
template<class Announce>
void announceLater(QObject *container, Announce &&announce)
{
    QMetaObject::invokeMethod(container, std::forward<Announce>(announce), Qt::QueuedConnection);
}

} // namespace RibbonMembers
} // namespace zel
