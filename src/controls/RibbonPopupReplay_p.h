#pragma once

// Shared by the buttons that open a popup. Not installed.

#include <QAccessible>
#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

namespace zel {

// For an event filter on an open popup: a press outside the popup that lands on the
// button that opened it closes the popup, and Qt would then hand the same press to the
// button, which would open the popup again. Such a press is marked not to be replayed.
inline void keepOpenerPressFromReopening(QWidget *popup, const QWidget &opener, QEvent *event)
{
    if (!popup || event->type() != QEvent::MouseButtonPress)
        return;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (!popup->rect().contains(mouse->pos()) && opener.rect().contains(opener.mapFromGlobal(mouse->globalPos())))
        popup->setAttribute(Qt::WA_NoMouseReplay);
}

// Tells a screen reader that the popup of opener has opened (open) or closed: the
// opener turns expanded or collapsed, and the popup starts or ends as a dialog (a QMenu
// announces itself as a menu).
inline void ribbonAnnouncePopup(QWidget *opener, QWidget *popup, bool open)
{
    if (opener) {
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent stateChange(opener, changed);
        QAccessible::updateAccessibility(&stateChange);
    }
    if (popup && !popup->inherits("QMenu")) {
        QAccessibleEvent event(popup, open ? QAccessible::DialogStart : QAccessible::DialogEnd);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace zel
