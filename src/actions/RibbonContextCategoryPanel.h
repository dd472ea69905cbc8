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
    // For owners other than the ribbon bar itself: any object with a slot
    // hideContextPanelAction(RibbonContextCategoryPanelAction*) can play its part.
    explicit RibbonContextCategoryPanel(QObject *menuBar);

private:
    void forgetAction(QObject *action);

    QList<RibbonContextCategoryPanelAction*> m_actions;
    QPointer<QObject> m_menuBar;
};

} // namespace zel
