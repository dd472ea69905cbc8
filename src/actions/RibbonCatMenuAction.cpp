#include "RibbonCatMenuAction.h"

#include "RibbonMembers_p.h"
#include "RibbonSimpleAction.h"
#include "RibbonViewPopup.h"

#include <QMenu>

namespace zel {

RibbonCatMenuAction::RibbonCatMenuAction(eMenuType type, eMenuSize size, ePopupType popup,
                                         QObject *parent)
    : RibbonMenuAction(parent)
{
    init(type, size, popup);
}

RibbonCatMenuAction::RibbonCatMenuAction(const QString &text, eMenuType type, eMenuSize size,
                                         ePopupType popup, QObject *parent)
    : RibbonMenuAction(text, parent)
{
    init(type, size, popup);
}

RibbonCatMenuAction::RibbonCatMenuAction(const QIcon &icon, const QString &text, eMenuType type,
                                         eMenuSize size, ePopupType popup, QObject *parent)
    : RibbonMenuAction(icon, text, parent)
{
    init(type, size, popup);
}

RibbonCatMenuAction::RibbonCatMenuAction(QPointer<QAction> alias, eMenuType type, eMenuSize size,
                                         ePopupType popup, QObject *parent)
    : RibbonMenuAction(alias, parent)
{
    init(type, size, popup);
}

RibbonCatMenuAction::RibbonCatMenuAction(QPointer<QAction> alias, const QIcon &icon,
                                         const QString &text, eMenuType type, eMenuSize size,
                                         ePopupType popup, QObject *parent)
    : RibbonMenuAction(alias, icon, text, parent)
{
    init(type, size, popup);
}

RibbonCatMenuAction::~RibbonCatMenuAction() = default;

void RibbonCatMenuAction::init(eMenuType type, eMenuSize size, ePopupType popup)
{
    m_menuType = type;
    m_menuSize = size;
    m_popupType = popup;
    m_iconActionGroup = new QActionGroup(this);
    // Resolves to this class's slot; the base class's item slot stays connected too.
    connect(this, SIGNAL(changed()), this, SLOT(actionChanged()));
}

RibbonCatMenuAction::eMenuType RibbonCatMenuAction::menuType() const
{
    return m_menuType;
}

RibbonCatMenuAction::eMenuSize RibbonCatMenuAction::menuSize() const
{
    return m_menuSize;
}

RibbonCatMenuAction::ePopupType RibbonCatMenuAction::popupType() const
{
    return m_popupType;
}

QActionGroup *RibbonCatMenuAction::iconActionGroup() const
{
    return m_iconActionGroup.data();
}

void RibbonCatMenuAction::addIconActionGroup(QActionGroup *group)
{
    m_iconActionGroup = group;
}

int RibbonCatMenuAction::menuMarkerOffset() const
{
    return m_menuMarkerOffset;
}

void RibbonCatMenuAction::setMenuMarkerOffset(int offset)
{
    if (offset == m_menuMarkerOffset)
        return;
    m_menuMarkerOffset = offset;
    announceLookChanged();
}

int RibbonCatMenuAction::listPreviewVisibleIconsCount() const
{
    return m_listPreviewVisibleIconsCount;
}

void RibbonCatMenuAction::setListPreviewVisibleIconsCount(int count)
{
    m_listPreviewVisibleIconsCount = count;
}

bool RibbonCatMenuAction::drawCheckedMarker() const
{
    return m_drawCheckedMarker;
}

void RibbonCatMenuAction::setDrawCheckedMarker(bool draw)
{
    if (draw == m_drawCheckedMarker)
        return;
    m_drawCheckedMarker = draw;
    announceLookChanged();
}

void RibbonCatMenuAction::announceLookChanged()
{
    // The widgets measure and paint again on the action-changed event.
    sendActionChangedEvt();
    emitChanged();
}

void RibbonCatMenuAction::addTopAction(RibbonSimpleAction *action)
{
    if (!action || m_topActions.contains(action))
        return;
    m_topActions.append(action);
    connect(action, &QObject::destroyed, this, &RibbonCatMenuAction::forgetListed,
            Qt::UniqueConnection);
}

void RibbonCatMenuAction::addBottomAction(RibbonSimpleAction *action)
{
    if (!action || m_bottomActions.contains(action))
        return;
    m_bottomActions.append(action);
    connect(action, &QObject::destroyed, this, &RibbonCatMenuAction::forgetListed,
            Qt::UniqueConnection);
}

QList<RibbonSimpleAction *> RibbonCatMenuAction::topActions() const
{
    return m_topActions;
}

QList<RibbonSimpleAction *> RibbonCatMenuAction::bottomActions() const
{
    return m_bottomActions;
}

void RibbonCatMenuAction::fillMenu(QMenu &menu)
{
    fillItems(menu, menuActions());
}

void RibbonCatMenuAction::fillMenu(QMenu &menu, QPointer<RibbonMenuAction> sub)
{
    fillSubMenu(menu, sub.data());
}

RibbonViewPopup *RibbonCatMenuAction::fillMenu()
{
    return new RibbonViewPopup(topActions(), bottomActions(), iconActionGroup(), this);
}

// Menus never hold themselves, not even further down (they refuse such an item), so
// the submenus end.
void RibbonCatMenuAction::fillItems(QMenu &menu, const QList<RibbonAction *> &items)
{
    for (RibbonAction *item : items) {
        if (RibbonSimpleAction *simple = qobject_cast<RibbonSimpleAction *>(item))
            menu.addAction(simple);
        else if (RibbonMenuAction *sub = qobject_cast<RibbonMenuAction *>(item))
            fillSubMenu(menu, sub);
    }
}

void RibbonCatMenuAction::fillSubMenu(QMenu &menu, RibbonMenuAction *sub)
{
    if (!sub)
        return;
    QMenu *subMenu = menu.addMenu(sub->icon(), sub->text());
    fillItems(*subMenu, sub->menuActions());
}

void RibbonCatMenuAction::actionChanged()
{
    // As for the items: the menu's announcements of item changes push nothing (a popup
    // command that is also an item, has an alias or belongs to another menu would have
    // its state pushed back), and neither does a change caused by the push itself.
    if (isEmittingChange() || m_pushingEnabled)
        return;
    QPointer<RibbonCatMenuAction> self(this);
    m_pushingEnabled = true;

    // Guarded copies: a receiver of an action's changed() may destroy another one.
    QList<QPointer<QAction>> top, bottom;
    for (RibbonSimpleAction *action : qAsConst(m_topActions))
        top.append(action);
    for (RibbonSimpleAction *action : qAsConst(m_bottomActions))
        bottom.append(action);

    const bool enabled = isEnabled();
    for (const QPointer<QAction> &action : qAsConst(top)) {
        if (action && self)
            action->setEnabled(enabled);
    }
    if (self && m_iconActionGroup)
        m_iconActionGroup->setEnabled(enabled);
    for (const QPointer<QAction> &action : qAsConst(bottom)) {
        if (action && self)
            action->setEnabled(enabled);
    }
    if (self)
        m_pushingEnabled = false;
}

void RibbonCatMenuAction::forgetListed(QObject *action)
{
    RibbonMembers::forget(m_topActions, action);
    RibbonMembers::forget(m_bottomActions, action);
}

} // namespace zel
