#include "RibbonAction.h"

#include "RibbonActionListener.h"
#include "RibbonActionsContainer.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMembers_p.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QMetaMethod>
#include <QWidget>

namespace zel {

QStringList RibbonAction::ForbiddenActions;

namespace {

// Signals of the action classes name their pointer types without the namespace, as
// declared inside it; the short names are registered too so that queued connections
// and signal spies can carry them.
void registerActionMetaTypes()
{
    static const bool registered = [] {
        qRegisterMetaType<RibbonAction *>("RibbonAction*");
        qRegisterMetaType<RibbonCategoryAction *>("RibbonCategoryAction*");
        qRegisterMetaType<RibbonCategoriesPanelAction *>("RibbonCategoriesPanelAction*");
        qRegisterMetaType<RibbonContextCategoryPanelAction *>("RibbonContextCategoryPanelAction*");
        return true;
    }();
    Q_UNUSED(registered)
}

} // namespace

RibbonAction::RibbonAction(QObject *parent)
    : QWidgetAction(parent)
{
    reserveConnections();
    connectToListener();
}

RibbonAction::RibbonAction(const QString &text, QObject *parent)
    : QWidgetAction(parent)
{
    reserveConnections();
    setText(text);
    connectToListener();
    RibbonActionsContainer::instance().addAction(text, QPointer<QAction>(this));
}

RibbonAction::RibbonAction(const QIcon &icon, const QString &text, QObject *parent)
    : QWidgetAction(parent)
{
    reserveConnections();
    setText(text);
    setIcon(icon);
    connectToListener();
    RibbonActionsContainer::instance().addAction(text, QPointer<QAction>(this));
}

RibbonAction::RibbonAction(QPointer<QAction> alias, QObject *parent)
    : QWidgetAction(parent)
    , m_alias(alias)
{
    reserveConnections();
    if (m_alias) {
        setText(m_alias->text());
        setIcon(m_alias->icon());
    }
    adoptAlias();
    connectToListener();
}

RibbonAction::RibbonAction(QPointer<QAction> alias, const QIcon &icon, const QString &text,
                           QObject *parent)
    : QWidgetAction(parent)
    , m_alias(alias)
    , m_keepOwnText(true)
    , m_keepOwnIcon(true)
{
    reserveConnections();
    setText(text);
    setIcon(icon);
    adoptAlias();
    connectToListener();
    RibbonActionsContainer::instance().addAction(text, QPointer<QAction>(this));
}

RibbonAction::RibbonAction(QPointer<RibbonAction> alias, QObject *parent)
    : QWidgetAction(parent)
    , m_alias(alias.data())
{
    reserveConnections();
    // Text and icon follow at the alias's next change.
    adoptAlias();
    connectToListener();
}

RibbonAction::RibbonAction(QPointer<RibbonAction> alias, const QString &text, QObject *parent)
    : QWidgetAction(parent)
    , m_alias(alias.data())
    , m_keepOwnText(true)
{
    reserveConnections();
    setText(text);
    adoptAlias();
    connectToListener();
    RibbonActionsContainer::instance().addAction(text, QPointer<QAction>(this));
}

RibbonAction::~RibbonAction() = default;

void RibbonAction::adoptAlias()
{
    if (!m_alias)
        return;
    setToolTip(m_alias->toolTip());
    setShortcut(m_alias->shortcut());
    setSeparator(m_alias->isSeparator());
    setEnabled(m_alias->isEnabled());
    setCheckable(m_alias->isCheckable());
    connectWithAlieas();
}

void RibbonAction::reserveConnections()
{
    // Qt keeps an object's connections in a table indexed by signal, grown in steps of
    // eight signals, and keeps an outgrown table until a disconnection or the object's
    // destruction. The first connections (to the listener, to the alias) are on
    // QAction's own signals, which fit the first step; the containers' connection to
    // ribbonActionActivated() then outgrows it, and every command would carry both
    // tables. Connecting that signal first sizes the table for it at once; the
    // temporary connection goes at once, the table stays.
    const QMetaObject::Connection sizing = connect(this, &RibbonAction::ribbonActionActivated, this, [] {});
    disconnect(sizing);
}

void RibbonAction::connectToListener()
{
    registerActionMetaTypes();
    // Unique: setAliasAction() makes this connection again, and a trigger must reach
    // the listener (and so the host's report) exactly once.
    connect(this, SIGNAL(triggered()), &RibbonActionListener::instance(),
            SLOT(onActionTriggered()), Qt::UniqueConnection);
}

void RibbonAction::connectWithAlieas()
{
    QAction *alias = m_alias.data();
    if (!alias)
        return;
    // Unique: setting the same alias again must not make one trigger run the host's
    // handlers twice. A change reaches the alias through announceChangeOnAlias(), a
    // toggle through onToogled(), which announces it on the alias when the alias cannot
    // follow it; both read the alias when they run.
    connect(this, SIGNAL(changed()), this, SLOT(announceChangeOnAlias()), Qt::UniqueConnection);
    connect(this, SIGNAL(hovered()), alias, SIGNAL(hovered()), Qt::UniqueConnection);
    connect(this, SIGNAL(triggered()), alias, SIGNAL(triggered()), Qt::UniqueConnection);
    connect(this, SIGNAL(toggled(bool)), this, SLOT(onToogled(bool)), Qt::UniqueConnection);
    connect(alias, SIGNAL(toggled(bool)), this, SLOT(onAliasToogled(bool)), Qt::UniqueConnection);
    connect(alias, SIGNAL(changed()), this, SLOT(aliasChanged()), Qt::UniqueConnection);
}

void RibbonAction::disconnectFromAlias(QAction *alias)
{
    if (!alias)
        return;
    // Only the alias connections: the alias may also be a container of this action, or a
    // member of it, with connections of its own between the two.
    disconnect(this, SIGNAL(hovered()), alias, SIGNAL(hovered()));
    disconnect(this, SIGNAL(triggered()), alias, SIGNAL(triggered()));
    disconnect(alias, SIGNAL(toggled(bool)), this, SLOT(onAliasToogled(bool)));
    disconnect(alias, SIGNAL(changed()), this, SLOT(aliasChanged()));
}

bool RibbonAction::aliasLeadsBack(const QAction *alias) const
{
    // Aliases never form a circle (this refuses the one that would close it), so the
    // chain ends; the count only bounds the walk.
    const QAction *next = alias;
    for (int steps = 0; next && steps < 10000; ++steps) {
        if (next == this)
            return true;
        const auto *ribbonAlias = qobject_cast<const RibbonAction *>(next);
        next = ribbonAlias ? ribbonAlias->m_alias.data() : nullptr;
    }
    return next != nullptr;
}

void RibbonAction::setAliasAction(QPointer<QAction> alias)
{
    // An action standing for itself, directly or through other ribbon actions, would
    // pass every change and trigger round the circle without end.
    if (aliasLeadsBack(alias.data()))
        return;
    if (m_alias != alias) {
        // A replaced alias must stop receiving this action's triggers and changes.
        disconnectFromAlias(m_alias.data());
        m_alias = alias;
    }
    connectWithAlieas();
    connectToListener();
}

QAction *RibbonAction::aliasAction() const
{
    return m_alias.data();
}

void RibbonAction::enableAction(bool enable)
{
    m_syncing = true;
    m_requestedEnabled = enable;
    setEnabled(enable);
    m_syncing = false;
}

int RibbonAction::minimalWidth() const
{
    return m_minimalWidth;
}

void RibbonAction::setMinimalWidth(int width)
{
    m_minimalWidth = width;
}

void RibbonAction::SetForbiddenActions(const QStringList &names)
{
    if (ForbiddenActions.isSharedWith(names))
        return;
    ForbiddenActions = names;
}

void RibbonAction::aliasChanged()
{
    QAction *alias = m_alias.data();
    if (!alias)
        return;
    if (!m_syncing) {
        m_syncing = true;
        if (!m_keepOwnIcon)
            setIcon(alias->icon());
        if (!m_keepOwnText)
            setText(alias->text());
        setEnabled(alias->isEnabled());
        m_syncing = false;
        return;
    }
    // The change came back from this action (its changed() makes the alias announce
    // one): the alias's enabled state still wins over the one requested here.
    if (alias->isEnabled() != m_requestedEnabled)
        setEnabled(alias->isEnabled());
}

void RibbonAction::announceChangeOnAlias()
{
    QAction *alias = m_alias.data();
    // Once per change: the alias may hold this action, or relay to something that does
    // (a button group standing for a command of a group it holds), and then the change
    // comes back round to this action while the alias announces it; several actions
    // may also stand for one alias.
    if (!alias)
        return;
    RibbonMembers::relayOnce(alias, [alias] { emit alias->changed(); });
}

void RibbonAction::onToogled(bool isToogled)
{
    QAction *alias = m_alias.data();
    // A toggle announced after the state has moved on (a receiver of the change set it
    // back, as the minimised ribbon does with a tab it keeps closed) is stale: passed
    // on, it would set the alias, and through the alias this action, to a state both
    // have left.
    if (!alias || isToogled != isChecked())
        return;
    if (alias->isCheckable())
        alias->setChecked(isToogled); // the alias announces its own toggle
    else
        emit alias->toggled(isToogled);
}

void RibbonAction::onAliasToogled(bool isToogled)
{
    QAction *alias = m_alias.data();
    // Only a current toggle of the alias's own state is followed: not a stale one, and
    // not the announcement the alias makes for this action. setChecked() with the
    // current state emits nothing, so the pair of slots stops after one round.
    if (!isCheckable() || !alias || !alias->isCheckable() || alias->isChecked() != isToogled)
        return;
    setChecked(isToogled);
}

void RibbonAction::sendActionChangedEvt()
{
    QList<QPointer<QWidget>> widgets;
    const QList<QWidget *> associated = associatedWidgets();
    for (QWidget *widget : associated)
        widgets.append(widget);

    // A widget may delete another widget, or this action, while it handles the event.
    QPointer<RibbonAction> self(this);
    for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
        if (!self)
            return;
        if (widget) {
            QActionEvent event(QEvent::ActionChanged, this);
            QCoreApplication::sendEvent(widget.data(), &event);
        }
    }
    if (self) {
        QActionEvent event(QEvent::ActionChanged, this);
        QCoreApplication::sendEvent(this, &event);
    }
}

bool RibbonAction::isForbidden() const
{
    if (ForbiddenActions.isEmpty())
        return false;
    // An empty name never matches: it would forbid every action without a text.
    const QString ownText = text();
    if (!ownText.isEmpty() && ForbiddenActions.contains(ownText))
        return true;
    const QString dataName = data().toString();
    return !dataName.isEmpty() && ForbiddenActions.contains(dataName);
}

void RibbonAction::connectNotify(const QMetaMethod &signal)
{
    QWidgetAction::connectNotify(signal);
    // Every connection to an action passes here; the forbidden check comes first as it
    // is free while no action is forbidden, unlike building the signal's signature.
    if (m_inConnectNotify || !isForbidden())
        return;
    // Connections through SIGNAL(triggered()) arrive here as the original
    // triggered(bool); both spellings are checked by their normalised signature.
    const QByteArray signature = signal.methodSignature();
    if (signature != "triggered()" && signature != "triggered(bool)")
        return;

    // Cut every receiver, including the one just connected, so the only effect of a
    // trigger is the listener's forbidden report.
    m_inConnectNotify = true;
    disconnect(this, SIGNAL(triggered()), nullptr, nullptr);
    disconnect(this, SIGNAL(triggered(bool)), nullptr, nullptr);
    if (isCheckable())
        setCheckable(false);
    connect(this, SIGNAL(triggered()), &RibbonActionListener::instance(),
            SLOT(onForbiddenActionTriggered()));
    m_inConnectNotify = false;
}

} // namespace zel
