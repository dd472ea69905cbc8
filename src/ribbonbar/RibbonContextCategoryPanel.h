#pragma once

#include "zelribbon_export.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

namespace zel {

class RibbonContextCategoryPanelAction;
class RibbonMenuBar;

// The ribbon bar's registry of the contextual tab sets it knows. Only registered
// sets can be shown; unregistering a set asks the bar to hide it first.
class ZELRIBBON_EXPORT RibbonContextCategoryPanel : public QObject
{
    Q_OBJECT
public:
    explicit RibbonContextCategoryPanel(RibbonMenuBar &menuBar);
    ~RibbonContextCategoryPanel() override;

    void addContextPanelAction(RibbonContextCategoryPanelAction *action);
    void removeContextPanelAction(RibbonContextCategoryPanelAction *action);
    bool containsAction(RibbonContextCategoryPanelAction *action);
    // The set's text when it is registered, else an empty string.
    QString name(RibbonContextCategoryPanelAction *action);

protected:
    // For an owner other than the ribbon bar: there is no bar to ask, and a subclass
    // hides sets itself by overriding hideContextPanel().
    explicit RibbonContextCategoryPanel(QObject *owner);

    // Hides a set that is about to be unregistered: asks the ribbon bar that owns the
    // registry (RibbonMenuBar::hideContextPanelAction); nothing for another owner.
    virtual void hideContextPanel(RibbonContextCategoryPanelAction *action);

private:
    void forgetAction(QObject *action);

    QList<RibbonContextCategoryPanelAction*> m_actions;
};

} // namespace zel
