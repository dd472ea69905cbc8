#include "RibbonCommandShortcuts_p.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonMenuAction.h"

#include <QEvent>
#include <QSet>

namespace zel {

namespace {

// Adds action unless it is being destroyed: a container lists a dying member until
// its destroyed() arrives, and a widget given an action in the middle of the action's
// destruction would keep it after it is gone.
void insertLive(QSet<QAction *> &commands, RibbonAction *action)
{
    if (qobject_cast<RibbonAction *>(static_cast<QObject *>(action)))
        commands.insert(action);
}

// The commands a category shows, button-strip members and the default command of a
// split button included.
void collectCommands(const RibbonCategoryAction &category, QSet<QAction *> &commands,
                     QSet<QObject *> &containers)
{
    for (RibbonAction *action : category.actions()) {
        if (auto *group = qobject_cast<RibbonCatActionGroup *>(static_cast<QObject *>(action))) {
            containers.insert(group);
            for (RibbonAction *member : group->actions())
                insertLive(commands, member);
            continue;
        }
        insertLive(commands, action);
        if (auto *menu = qobject_cast<RibbonMenuAction *>(static_cast<QObject *>(action))) {
            containers.insert(menu);
            if (RibbonAction *defaultAction = menu->defaultAction())
                insertLive(commands, defaultAction);
        }
    }
}

} // namespace

RibbonCommandShortcuts::RibbonCommandShortcuts(QWidget *bar)
    : QWidget(bar->parentWidget())
    , m_bar(bar)
{
    setObjectName(QStringLiteral("commandShortcuts"));
    // Never seen, never in the way of the mouse; it only has to count as shown.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
    // Beside the bar rather than in it: the bar's children are its tab row. It follows
    // the bar into the page that shows it, and hides with that page.
    bar->installEventFilter(this);
}

RibbonCommandShortcuts::~RibbonCommandShortcuts() = default;

bool RibbonCommandShortcuts::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_bar && event->type() == QEvent::ParentChange && m_bar->parentWidget() != parentWidget()) {
        setParent(m_bar->parentWidget());
        show();
    }
    return QWidget::eventFilter(watched, event);
}

void RibbonCommandShortcuts::addTab(RibbonCategoriesPanelAction *tab)
{
    if (!tab || m_tabs.contains(tab))
        return;
    m_tabs.append(tab);
    // Only the new tab: going over every tab at each addition would make building a
    // ribbon quadratic in its tabs. Nothing else changed, so there is nothing to drop.
    QSet<QObject *> containers;
    takeInTab(tab, containers);
    for (QObject *container : qAsConst(containers))
        watch(container);
}

void RibbonCommandShortcuts::removeTab(QAction *tab)
{
    for (int i = m_tabs.size() - 1; i >= 0; --i) {
        if (!m_tabs.at(i) || m_tabs.at(i) == tab)
            m_tabs.removeAt(i);
    }
    sync();
}

void RibbonCommandShortcuts::onMemberAdded()
{
    // Hosts build tabs command by command: take them in once, when they are done.
    if (m_syncPending)
        return;
    m_syncPending = true;
    QMetaObject::invokeMethod(this, &RibbonCommandShortcuts::sync, Qt::QueuedConnection);
}

void RibbonCommandShortcuts::onMemberRemoved()
{
    // A removed command must not fire even once more.
    sync();
}

void RibbonCommandShortcuts::sync()
{
    m_syncPending = false;
    QSet<QObject *> containers;
    QSet<const QObject *> tabs;
    for (const QPointer<QAction> &guarded : qAsConst(m_tabs)) {
        auto *tab = qobject_cast<RibbonCategoriesPanelAction *>(guarded);
        if (!tab)
            continue;
        tabs.insert(tab);
        takeInTab(tab, containers);
    }
    for (auto it = m_carriers.begin(); it != m_carriers.end();) {
        if (!tabs.contains(it.key())) {
            delete it.value(); // and with it the shortcuts it carried
            it = m_carriers.erase(it);
        } else {
            ++it;
        }
    }

    for (auto it = m_watched.begin(); it != m_watched.end();) {
        if (!it.value() || !containers.contains(it.value())) {
            if (it.value())
                disconnect(it.value(), nullptr, this, nullptr);
            it = m_watched.erase(it);
        } else {
            ++it;
        }
    }
    for (QObject *container : qAsConst(containers))
        watch(container);
}

void RibbonCommandShortcuts::takeInTab(RibbonCategoriesPanelAction *tab, QSet<QObject *> &containers)
{
    containers.insert(tab);
    QSet<QAction *> wanted;
    for (RibbonCategoryAction *category : tab->categories()) {
        if (!qobject_cast<RibbonCategoryAction *>(static_cast<QObject *>(category)))
            continue; // being destroyed
        containers.insert(category);
        collectCommands(*category, wanted, containers);
    }
    carry(tab, wanted);
}

void RibbonCommandShortcuts::carry(const QObject *tab, QSet<QAction *> &commands)
{
    QPointer<QWidget> &carrier = m_carriers[tab];
    if (!carrier) {
        carrier = new QWidget(this);
        carrier->setGeometry(0, 0, 0, 0);
        carrier->show();
    }
    const QList<QAction *> carried = carrier->actions();
    for (QAction *action : carried) {
        if (!commands.remove(action))
            carrier->removeAction(action);
    }
    for (QAction *action : qAsConst(commands))
        carrier->addAction(action);
}

void RibbonCommandShortcuts::watch(QObject *container)
{
    if (m_watched.contains(container))
        return;
    m_watched.insert(container, container);
    if (qobject_cast<RibbonCategoriesPanelAction *>(container)) {
        connect(container, SIGNAL(categoryAdded(RibbonCategoryAction*)), this, SLOT(onMemberAdded()));
        connect(container, SIGNAL(categoryRemoved(RibbonCategoryAction*)), this, SLOT(onMemberRemoved()));
    } else if (qobject_cast<RibbonCategoryAction *>(container)) {
        connect(container, SIGNAL(actionAdded(RibbonAction*)), this, SLOT(onMemberAdded()));
        connect(container, SIGNAL(actionRemoved(RibbonAction*)), this, SLOT(onMemberRemoved()));
    } else if (qobject_cast<RibbonCatActionGroup *>(container)) {
        // A strip announces joining and leaving members only as a change.
        connect(container, SIGNAL(changed()), this, SLOT(onMemberAdded()));
    } else if (qobject_cast<RibbonMenuAction *>(container)) {
        connect(container, SIGNAL(defaultActionChanged()), this, SLOT(onMemberAdded()));
    }
}

} // namespace zel
