#pragma once

#include "RibbonMenuAction.h"

#include <QActionGroup>
#include <QList>
#include <QPointer>

class QMenu;

namespace zel {

class RibbonSimpleAction;
class RibbonViewPopup;

// A menu command of a category: its presentation, size class and the kind of
// drop-down it opens, plus the extra commands and icon group of a view popup.
class ZELRIBBON_EXPORT RibbonCatMenuAction : public RibbonMenuAction
{
    Q_OBJECT
public:
    enum eMenuType {
        MenuTypeButton = 0
    };
    Q_ENUM(eMenuType)

    enum eMenuSize {
        MenuSizeLarge = 0,  // tall button, caption part above an arrow part
        MenuSizeMedium = 1, // one row: icon, caption and arrow
        MenuSizeSmall = 2   // one row: icon and arrow
    };
    Q_ENUM(eMenuSize)

    enum ePopupType {
        PopupMenu = 0,       // a QMenu filled by fillMenu(QMenu &)
        PopupPalette = 1,    // a grid popup of the items
        PopupView = 2,       // the RibbonViewPopup made by fillMenu()
        PopupListPreview = 3 // no button: an in-ribbon gallery of the items
    };
    Q_ENUM(ePopupType)

    explicit RibbonCatMenuAction(eMenuType type = MenuTypeButton, eMenuSize size = MenuSizeLarge,
                                 ePopupType popup = PopupMenu, QObject *parent = nullptr);
    RibbonCatMenuAction(const QString &text, eMenuType type, eMenuSize size, ePopupType popup,
                        QObject *parent);
    RibbonCatMenuAction(const QIcon &icon, const QString &text, eMenuType type, eMenuSize size,
                        ePopupType popup, QObject *parent);
    RibbonCatMenuAction(QPointer<QAction> alias, eMenuType type, eMenuSize size, ePopupType popup,
                        QObject *parent);
    RibbonCatMenuAction(QPointer<QAction> alias, const QIcon &icon, const QString &text,
                        eMenuType type, eMenuSize size, ePopupType popup, QObject *parent);
    ~RibbonCatMenuAction() override;

    eMenuType menuType() const;
    eMenuSize menuSize() const;
    ePopupType popupType() const;

    QActionGroup *iconActionGroup() const;
    // Replaces the group whose actions become the tiles of the view popup.
    void addIconActionGroup(QActionGroup *group);

    // Extra width, in pixels, of a medium button; its widgets follow.
    int menuMarkerOffset() const;
    void setMenuMarkerOffset(int offset);
    int listPreviewVisibleIconsCount() const;
    void setListPreviewVisibleIconsCount(int count);
    // Whether the button shows the toggled state; its widgets follow.
    bool drawCheckedMarker() const;
    void setDrawCheckedMarker(bool draw);

    // Commands shown above and below the items of a view popup (null and duplicates
    // ignored).
    void addTopAction(RibbonSimpleAction *action);
    void addBottomAction(RibbonSimpleAction *action);
    QList<RibbonSimpleAction*> topActions() const;
    QList<RibbonSimpleAction*> bottomActions() const;

    // Adds the simple items to menu and sub-menu items as submenus, to any depth;
    // other items are left out.
    void fillMenu(QMenu &menu);
    void fillMenu(QMenu &menu, QPointer<RibbonMenuAction> sub);
    // A new view popup; the caller shows it and deletes it when it closes.
    RibbonViewPopup *fillMenu();

private slots:
    // Connected beside the base class's slot of the same name; it hides the base class's
    // virtual actionChanged overloads by name only, they stay in force.
    void actionChanged();

private:
    void init(eMenuType type, eMenuSize size, ePopupType popup);
    void announceLookChanged();
    void fillItems(QMenu &menu, const QList<RibbonAction*> &items);
    void fillSubMenu(QMenu &menu, RibbonMenuAction *sub);
    void forgetListed(QObject *action);

    eMenuType m_menuType = MenuTypeButton;
    eMenuSize m_menuSize = MenuSizeLarge;
    ePopupType m_popupType = PopupMenu;
    QList<RibbonSimpleAction*> m_topActions;
    QList<RibbonSimpleAction*> m_bottomActions;
    QPointer<QActionGroup> m_iconActionGroup;
    int m_menuMarkerOffset = 0;
    int m_listPreviewVisibleIconsCount = 4;
    bool m_drawCheckedMarker = true;
    // Set while the menu's enabled state goes to its popup commands.
    bool m_pushingEnabled = false;
};

} // namespace zel
