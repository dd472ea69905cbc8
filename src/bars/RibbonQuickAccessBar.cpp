#include "RibbonQuickAccessBar.h"

#include "RibbonButtonNormal.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonSimpleAction.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHash>
#include <QMenu>
#include <QPointer>
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

    // What the bar made for one command, dropped when the command leaves the bar.
    struct Command
    {
        QPointer<RibbonButtonNormal> button;
        QPointer<QAction> entry;
    };
    QHash<QAction *, Command> commands;
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

void RibbonQuickAccessBar::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    if (event->type() == QEvent::ActionRemoved) {
        // Looked up by address: an action being destroyed is no longer a
        // RibbonSimpleAction. A command that leaves the bar takes its button and its
        // menu entry along; a hidden name stays in the list for the next session.
        const Priv::Command made = d->commands.take(event->action());
        delete made.button.data();
        delete made.entry.data();
        return;
    }
    auto *command = qobject_cast<RibbonSimpleAction *>(event->action());
    if (!command)
        return;

    switch (event->type()) {
    case QEvent::ActionAdded: {
        const QString name = commandName(command);
        auto *button = new RibbonButtonNormal(this);
        button->setFixedSize(20, 20);
        button->addAction(command);
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

        Priv::Command &made = d->commands[command];
        // A command added again gets fresh ones; the old ones must not linger.
        delete made.button.data();
        delete made.entry.data();
        made.button = button;
        made.entry = entry;
        event->accept();
        break;
    }
    case QEvent::ActionChanged: {
        const Priv::Command made = d->commands.value(command);
        if (made.entry)
            made.entry->setText(command->text());
        break;
    }
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
        for (const Priv::Command &made : qAsConst(d->commands)) {
            if (made.entry == entry)
                button = made.button.data();
        }
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
