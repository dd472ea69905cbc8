#pragma once

// How a container of the ribbon keeps the widgets it makes for its actions. Not
// installed.
//
// Every container (category, ribbon bar, tab pages, status bar, quick-access toolbar,
// button strip) makes a widget for each action it shows, finds it again, and lets go
// of it when the action leaves or is destroyed. This header is that bookkeeping, once:
//
// - A container keeps its own table of makers, tried in order (subclasses before
//   their bases), each returning null for an action it does not handle. A new kind
//   of widget is one more line in a table:
//
//       const RibbonWidgetMaker makers[] = {
//           makeWidgetFor<RibbonCatSimpleAction, RibbonCatSimpleButton>,
//           makeWidgetFor<RibbonCatActionGroup, RibbonCatActionGroupWidget>,
//       };
//       if (QWidget *widget = makeWidget(makers, action, this).widget)
//           map.insert(action, widget);
//
//   A table may pair each maker with what the container needs to place its widget
//   (a struct whose first member `make` is the maker); makeWidget() hands back the
//   row that made the widget.
//
// - RibbonActionWidgetMap records the widget made for each action, keyed by the
//   action's address. QAction's destructor removes the action from its widgets, so a
//   container meets its actions in the middle of their destruction, when they are no
//   longer of their ribbon class: the map never casts or reads the action. Widgets
//   deleted by someone else read as absent.
//
// - drop() is the one way to let go of a widget: forget it, let the container take it
//   out of its arrangement (the release function given to the map), delete it.
//
// The same rule holds for any object that keeps an action which may die first: guard
// it as QPointer<QAction> (a QPointer of the derived class would cast the dying
// action down to that class), use it as its class through qobject_cast (null from the
// moment the action stops being of that class), and compare it by address.

#include <QAction>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <cstddef>
#include <functional>

namespace zel {

// Makes the widget for an action it handles (with parent as its parent widget);
// returns null for any other action.
using RibbonWidgetMaker = QWidget *(*)(QAction *action, QWidget *parent);

// The maker for actions of class Action: a Widget built as Widget(Action &, parent).
template<class Action, class Widget>
QWidget *makeWidgetFor(QAction *action, QWidget *parent)
{
    auto *typed = qobject_cast<Action *>(action);
    return typed ? new Widget(*typed, parent) : nullptr;
}

inline RibbonWidgetMaker makerOf(RibbonWidgetMaker maker)
{
    return maker;
}

template<class Row>
RibbonWidgetMaker makerOf(const Row &row)
{
    return row.make;
}

template<class Row>
struct RibbonMadeWidget
{
    QWidget *widget = nullptr;
    const Row *row = nullptr; // the row of the table whose maker made the widget
};

// Tries the makers of a table in order; the widget of the first one that accepts the
// action, or a null widget when none does.
template<class Row, std::size_t N>
RibbonMadeWidget<Row> makeWidget(const Row (&table)[N], QAction *action, QWidget *parent)
{
    for (const Row &row : table) {
        if (QWidget *widget = makerOf(row)(action, parent))
            return {widget, &row};
    }
    return {};
}

// Widgets made for actions, one per action. W is what is made: QWidget, or another
// QObject a container makes per action (such as a menu entry). The widgets are not
// owned: they are children of their container and die with it; the map deletes one
// only in drop() and when insert() replaces it.
template<class W = QWidget>
class RibbonActionWidgetMap
{
public:
    // Takes a widget out of the container's arrangement (layout, stack, list) just
    // before drop() deletes it.
    using Release = std::function<void(W *widget)>;

    RibbonActionWidgetMap() = default;
    explicit RibbonActionWidgetMap(Release release)
        : m_release(std::move(release))
    {
    }

    // Records widget as made for action; another widget recorded before under the same
    // address is dropped first.
    void insert(QAction *action, W *widget)
    {
        if (!action || (widget && this->widget(action) == widget))
            return;
        drop(action);
        m_entries.insert(action, Entry{action, widget});
    }

    // The widget made for action; null when none, when it has been deleted, or when
    // its action was destroyed and the address now belongs to another object.
    W *widget(const QObject *action) const
    {
        const auto it = m_entries.constFind(action);
        return it != m_entries.constEnd() && it->action ? qobject_cast<W *>(it->widget.data()) : nullptr;
    }

    // The widget made for action if it is a T, else null.
    template<class T>
    T *widgetAs(const QObject *action) const
    {
        return qobject_cast<T *>(widget(action));
    }

    // Whether a widget made for action is still there.
    bool contains(const QObject *action) const { return widget(action) != nullptr; }

    // The action widget was made for, null when none (a reverse lookup: linear).
    QAction *action(const QObject *widget) const
    {
        if (!widget)
            return nullptr;
        for (const Entry &entry : m_entries) {
            if (entry.widget == widget)
                return entry.action;
        }
        return nullptr;
    }

    // Every widget still alive, in no particular order.
    QList<W *> widgets() const
    {
        QList<W *> result;
        for (const Entry &entry : m_entries) {
            if (W *widget = qobject_cast<W *>(entry.widget.data()))
                result.append(widget);
        }
        return result;
    }

    // The addresses under which widgets are recorded, including those of actions
    // destroyed since: a container that drops its widgets by a rule of its own (say,
    // membership in a group) walks these.
    QList<const QObject *> keys() const { return m_entries.keys(); }

    // Forgets the widget recorded under action, releases it and deletes it. Returns
    // whether anything was recorded there; an unknown action changes nothing. Safe
    // while the action is being destroyed, and when the widget is already gone.
    bool drop(const QObject *action)
    {
        const auto it = m_entries.find(action);
        if (it == m_entries.end())
            return false;
        // Taken out first: deleting the widget may reach this map again.
        W *widget = qobject_cast<W *>(it->widget.data());
        m_entries.erase(it);
        if (widget) {
            if (m_release)
                m_release(widget);
            delete widget;
        }
        return true;
    }

private:
    struct Entry
    {
        QPointer<QAction> action;
        QPointer<QObject> widget; // untyped for the same reason as the action
    };

    QHash<const QObject *, Entry> m_entries;
    Release m_release;
};

} // namespace zel
