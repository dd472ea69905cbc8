#pragma once

#include "RibbonAction.h"

#include <QList>

namespace zel {

// A command with a menu of items: it keeps the items in menu order, the default item
// (the caption part of a split button) and, when exclusive, the checked item. The
// items are not owned.
class ZELRIBBON_EXPORT RibbonMenuAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonMenuAction(QObject *parent = nullptr);
    RibbonMenuAction(const QString &text, QObject *parent);
    RibbonMenuAction(const QIcon &icon, const QString &text, QObject *parent);
    RibbonMenuAction(QPointer<QAction> alias, QObject *parent);
    RibbonMenuAction(QPointer<QAction> alias, const QIcon &icon, const QString &text, QObject *parent);
    ~RibbonMenuAction() override;

    // Appends an item (null and duplicates ignored). Making it the default here
    // emits no defaultActionChanged().
    void addAction(RibbonAction *action, bool isDefault);
    // Moves or inserts an item at index; no item connections are made.
    void insertAction(int index, RibbonAction *action);
    void removeAction(RibbonAction *action);
    const QList<RibbonAction*> &menuActions() const;

    void setDefaultAction(RibbonAction *action);
    RibbonAction *defaultAction();
    RibbonAction *defaultAction() const;

    RibbonAction *checkedAction();
    RibbonAction *checkedAction() const;

    void setExclusive(bool exclusive);
    bool isExclusive() const;

    // The button shows as toggled when any item is checked (instead of only when the
    // default action is).
    void setToBeToggled(bool toBeToggled);
    bool toBeToggled() const;
    // Pushes the menu's enabled state to its items.
    void autoChangeEnableSubActions(bool autoChange);
    void setShowToggledIndicator(bool show);

signals:
    void triggered(RibbonAction* action);
    void defaultActionChanged();

protected:
    // RibbonCatMenuAction's own actionChanged() slot hides these two by name; that is
    // intended, so compilers that warn about hidden overloads are told so.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
    virtual void actionChanged(RibbonMenuAction *menu);
    virtual void actionChanged(RibbonAction *item);
#pragma GCC diagnostic pop

    // Emits changed() as a change of the menu's own look: its enabled state is not
    // pushed to the items for it.
    void emitChanged();
    // Whether the changed() now being emitted comes from emitChanged().
    bool isEmittingChange() const;

private slots:
    void actionChanged();
    void onAliasDefaultActionChanged();
    void actionActivated();
    void actionTriggered();

private:
    void init();
    void connectAliasMenu();
    void disconnectItem(RibbonAction *action);
    void forgetItem(QObject *action);

    RibbonAction *m_defaultAction = nullptr;
    QList<RibbonAction*> m_menuActions;
    RibbonAction *m_checkedItem = nullptr;
    bool m_exclusive = false;
    bool m_toBeToggled = false;
    bool m_emittingChange = false;
    bool m_autoChangeEnable = false;
    bool m_showToggledIndicator = true;
    // Menus whose enabled state this menu is pushing to their items right now.
    QList<const RibbonMenuAction *> m_pushing;
};

} // namespace zel
