#pragma once

#include "zelribbon_export.h"

#include <QIcon>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidgetAction>

namespace zel {

// Base of every ribbon command. Adds to QWidgetAction an optional alias (an existing
// QAction of the host that this action mirrors and drives), registration by name in
// RibbonActionsContainer, the process-wide trigger report of RibbonActionListener and
// the forbidden-action mechanism.
class ZELRIBBON_EXPORT RibbonAction : public QWidgetAction
{
    Q_OBJECT
public:
    explicit RibbonAction(QObject *parent = nullptr);
    RibbonAction(const QString &text, QObject *parent);
    RibbonAction(const QIcon &icon, const QString &text, QObject *parent);
    RibbonAction(QPointer<QAction> alias, QObject *parent);
    RibbonAction(QPointer<QAction> alias, const QIcon &icon, const QString &text, QObject *parent);
    RibbonAction(QPointer<RibbonAction> alias, QObject *parent);
    RibbonAction(QPointer<RibbonAction> alias, const QString &text, QObject *parent);
    ~RibbonAction() override;

    // Replaces the alias. Nothing is copied now: text, icon and enabled state follow
    // at the alias's next change.
    void setAliasAction(QPointer<QAction> alias);
    // The aliased action, null when there is none or it has been destroyed.
    QAction *aliasAction() const;

    // Enables or disables the action; with an alias, the alias's enabled state wins.
    void enableAction(bool enable);

    // Smallest width in pixels of the action's ribbon button; -1 means none.
    int minimalWidth() const;
    void setMinimalWidth(int width);

    // Names (texts or data() strings) of actions that must not run. Set it before
    // the actions are built: existing connections are not re-examined.
    static void SetForbiddenActions(const QStringList &names);

signals:
    void ribbonActionActivated();

protected slots:
    void aliasChanged();
    void onToogled(bool isToogled);
    void onAliasToogled(bool isToogled);

private slots:
    void announceChangeOnAlias();

protected:
    // Sends an ActionChanged event synchronously to every associated widget and then
    // to the action itself, for state QAction does not know about.
    void sendActionChangedEvt();
    void connectNotify(const QMetaMethod &signal) override;

    static QStringList ForbiddenActions;

private:
    void reserveConnections();
    void adoptAlias();
    void connectWithAlieas();
    void disconnectFromAlias(QAction *alias);
    void connectToListener();
    bool isForbidden() const;
    // Whether alias is this action or stands for it, directly or through other aliases.
    bool aliasLeadsBack(const QAction *alias) const;

    QPointer<QAction> m_alias;
    bool m_syncing = false;
    bool m_requestedEnabled = false;
    bool m_keepOwnText = false;
    bool m_keepOwnIcon = false;
    bool m_inConnectNotify = false;
    int m_minimalWidth = -1;
};

} // namespace zel
