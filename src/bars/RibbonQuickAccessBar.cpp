#include "RibbonQuickAccessBar.h"

#include "RibbonActionWidgetMap_p.h"
#include "RibbonButtonNormal.h"
#include "RibbonContextMenu_p.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonSimpleAction.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QSpacerItem>

namespace zel {

namespace {

// Shared by every bar, translated once.
const QString &minimizeRibbonLabel()
{
    static const QString label = QCoreApplication::translate("RibbonQuickAccessBar", "Minimize the Ribbon");
    return label;
}

QString commandName(const QAction *action)
{
    return action->data().toString();
}

QWidget *makeCommandButton(QAction *action, QWidget *parent)
{
    auto *command = qobject_cast<RibbonSimpleAction *>(action);
    if (!command)
        return nullptr;
    auto *button = new RibbonButtonNormal(parent);
    button->setFixedSize(20, 20);
    button->addAction(command);
    return button;
}

// The button of a command; a command that gets one also gets a menu entry.
const RibbonWidgetMaker buttonMakers[] = {
    makeCommandButton,
};

} // namespace

struct RibbonQuickAccessBar::Priv
{
    RibbonSimpleAction *customizeAction = nullptr;
    RibbonButtonNormal *customizeButton = nullptr;
    QMenu *menu = nullptr;
    QHBoxLayout *mainLayout = nullptr;
    QHBoxLayout *buttonsLayout = nullptr;
    QStringList disabledItems;
    QAction *minimizeEntry = nullptr;
    // Commands the user brought in through the ribbon's context menu; removing them
    // takes them out of the bar again rather than hiding them.
    QList<QPointer<QAction>> addedByUser;

    // What the bar made for each command: its button and its menu entry, dropped when
    // the command leaves the bar (both leave their layout and menu by themselves).
    RibbonActionWidgetMap<> buttons;
    RibbonActionWidgetMap<QAction> entries;
};

RibbonQuickAccessBar::RibbonQuickAccessBar(RibbonMainWindow *mainWindow)
    : QWidget(mainWindow)
    , d(new Priv)
{
    d->menu = new QMenu(this);

    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setFixedHeight(26);

    d->mainLayout = new QHBoxLayout(this);
    d->mainLayout->setContentsMargins(0, 3, 3, 3);
    d->mainLayout->setSpacing(0);
    d->buttonsLayout = new QHBoxLayout;
    d->buttonsLayout->setContentsMargins(0, 0, 0, 0);
    d->buttonsLayout->setSpacing(3);
    d->mainLayout->addLayout(d->buttonsLayout);
    d->mainLayout->addItem(new QSpacerItem(3, 20, QSizePolicy::Fixed, QSizePolicy::Ignored));

    d->customizeAction = new RibbonSimpleAction(QIcon(QStringLiteral(":/zel/common/Resources/QuickAccessToolbar.ico")),
                                                tr("Customize Quick Access Toolbar"), this);
    d->customizeButton = new RibbonButtonNormal(this);
    d->customizeButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    d->customizeButton->setFixedWidth(10);
    d->customizeButton->addAction(d->customizeAction);
    d->mainLayout->addWidget(d->customizeButton);

    connect(d->customizeAction, SIGNAL(triggered()), this, SLOT(onMenuTriggered()));

    d->menu->addSeparator();
    d->minimizeEntry = d->menu->addAction(minimizeRibbonLabel());
    d->minimizeEntry->setCheckable(true);
    connect(d->menu, SIGNAL(triggered(QAction*)), this, SLOT(onMenuActionTriggered(QAction*)));
}

RibbonQuickAccessBar::~RibbonQuickAccessBar() = default;

RibbonMainWindow *RibbonQuickAccessBar::mainWindow() const
{
    return qobject_cast<RibbonMainWindow *>(parentWidget());
}

QStringList RibbonQuickAccessBar::disabledQuickAccessBarItems() const
{
    return d->disabledItems;
}

void RibbonQuickAccessBar::setQuickAccessBarItems(const QStringList &names)
{
    d->disabledItems = names;
}

void RibbonQuickAccessBar::hideQuickAccessBarItem(const QString &name)
{
    d->disabledItems.append(name);
}

void RibbonQuickAccessBar::showQuickAccessBarItem(const QString &name)
{
    d->disabledItems.removeAll(name);
}

bool RibbonQuickAccessBar::isQuickAccessCommand(const QAction *command) const
{
    const QWidget *button = d->buttons.widget(command);
    return button && !button->isHidden();
}

void RibbonQuickAccessBar::addQuickAccessCommand(RibbonSimpleAction *command)
{
    if (!command || isQuickAccessCommand(command))
        return;
    if (QAction *entry = d->entries.widget(command)) {
        entry->setChecked(true);
        onMenuActionTriggered(entry);
        return;
    }
    // A name hidden in an earlier session would hide the button the user asks for.
    showQuickAccessBarItem(commandName(command));
    d->addedByUser.append(command);
    addAction(command);
}

void RibbonQuickAccessBar::removeQuickAccessCommand(QAction *command)
{
    if (!command || !isQuickAccessCommand(command))
        return;
    if (d->addedByUser.removeAll(command) > 0) {
        removeAction(command);
        return;
    }
    if (QAction *entry = d->entries.widget(command)) {
        entry->setChecked(false);
        onMenuActionTriggered(entry);
    }
}

void RibbonQuickAccessBar::contextMenuEvent(QContextMenuEvent *event)
{
    ribbonOpenContextMenu(*this, event);
}

void RibbonQuickAccessBar::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *command = event->action();
    switch (event->type()) {
    case QEvent::ActionRemoved:
        d->addedByUser.removeAll(command);
        // A hidden name stays in the list for the next session.
        d->buttons.drop(command);
        d->entries.drop(command);
        break;
    case QEvent::ActionAdded: {
        // The customise command has its own button at the end, and no menu entry.
        if (command == d->customizeAction)
            return;
        QWidget *button = makeWidget(buttonMakers, command, this).widget;
        if (!button)
            return;
        const QString name = commandName(command);
        d->buttonsLayout->addWidget(button);
        // A nameless command cannot be listed, so it always starts visible.
        const bool visible = name.isEmpty() || !d->disabledItems.contains(name);
        button->setVisible(visible);

        auto *entry = new QAction(command->text(), d->menu);
        entry->setCheckable(true);
        entry->setChecked(visible);
        entry->setData(name);
        // Commands keep the order they were added in, above the separator and the
        // minimise entry.
        const QList<QAction *> entries = d->menu->actions();
        d->menu->insertAction(entries.at(entries.size() - 2), entry);

        // A command added again gets fresh ones; the old ones must not linger.
        d->buttons.insert(command, button);
        d->entries.insert(command, entry);
        event->accept();
        break;
    }
    case QEvent::ActionChanged:
        if (QAction *entry = d->entries.widget(command))
            entry->setText(command->text());
        break;
    default:
        break;
    }
}

void RibbonQuickAccessBar::onMenuTriggered()
{
    RibbonMainWindow *window = mainWindow();
    d->minimizeEntry->setChecked(window && window->ribbonMenuBar().isRibbonMinimized());
    const QPoint at = d->customizeButton->mapToGlobal(d->customizeButton->rect().bottomLeft()) + QPoint(0, 3);
    d->menu->exec(at);
}

void RibbonQuickAccessBar::onMenuActionTriggered(QAction *entry)
{
    if (!entry)
        return;
    if (entry == d->minimizeEntry) {
        if (RibbonMainWindow *window = mainWindow())
            window->ribbonMenuBar().setMinimizeRibbon(entry->isChecked());
        return;
    }

    // Commands are known only by their names: the first button of that name follows
    // the entry. A nameless command is found through its own entry instead, and being
    // impossible to list it is hidden for this session only.
    const QString name = entry->data().toString();
    RibbonButtonNormal *button = nullptr;
    if (name.isEmpty()) {
        button = d->buttons.widgetAs<RibbonButtonNormal>(d->entries.action(entry));
        if (button)
            button->setVisible(entry->isChecked());
        return;
    }
    for (int i = 0; i < d->buttonsLayout->count() && !button; ++i) {
        QWidget *widget = d->buttonsLayout->itemAt(i)->widget();
        if (!widget || widget->actions().isEmpty())
            continue;
        if (commandName(widget->actions().first()) == name)
            button = qobject_cast<RibbonButtonNormal *>(widget);
    }
    if (!button)
        return;
    button->setVisible(entry->isChecked());
    if (entry->isChecked())
        d->disabledItems.removeAll(name);
    else
        d->disabledItems.append(name);
}

} // namespace zel
