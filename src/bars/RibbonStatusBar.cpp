#include "RibbonStatusBar.h"

#include "RibbonApplication.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonMainWindow.h"
#include "RibbonPaint_p.h"
#include "RibbonPercAction.h"
#include "RibbonPercWidget.h"
#include "RibbonProgressAction.h"
#include "RibbonProgressWidget.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBarWidget.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QSpacerItem>

namespace zel {

namespace {

const RibbonStyle &ribbonStyle()
{
    return RibbonApplication::theApp().ribbonStyle();
}

} // namespace

RibbonStatusBar::RibbonStatusBar(RibbonMainWindow &mainWindow)
    : QWidget(&mainWindow)
    , m_mainWindow(&mainWindow)
    , mainLayout(new QHBoxLayout(this))
    , extensionsLayout(new QHBoxLayout)
    , popupLayout(new QHBoxLayout)
    , loginLayout(new QHBoxLayout)
{
    mainLayout->setContentsMargins(0, 0, 0, 0);
    extensionsLayout->setContentsMargins(5, 3, 5, 0);
    extensionsLayout->setSpacing(0);
    popupLayout->setContentsMargins(5, 0, 5, 3);
    loginLayout->setContentsMargins(0, 2, 0, 0);

    mainLayout->addLayout(loginLayout);
    mainLayout->addLayout(popupLayout);
    mainLayout->addItem(new QSpacerItem(0, 20, QSizePolicy::Expanding, QSizePolicy::Fixed));
    mainLayout->addLayout(extensionsLayout);

    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    setFixedHeight(ribbonStyle().statusBar().height());
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, [this] {
        setFixedHeight(ribbonStyle().statusBar().height());
        update();
    });
}

RibbonStatusBar::~RibbonStatusBar() = default;

RibbonMainWindow *RibbonStatusBar::mainWindow() const
{
    return m_mainWindow.data();
}

void RibbonStatusBar::addLoginStatusIcon(QWidget *icon)
{
    if (!icon || loginLayout->indexOf(icon) >= 0)
        return;
    loginLayout->addWidget(icon);
}

void RibbonStatusBar::removeLoginStatusIcon(QWidget *icon)
{
    if (!icon || loginLayout->indexOf(icon) < 0)
        return;
    loginLayout->removeWidget(icon);
    delete icon;
}

int RibbonStatusBar::loginLayoutWidth() const
{
    return loginLayout->geometry().width();
}

int RibbonStatusBar::popupLayoutWidth() const
{
    return loginLayout->geometry().width() + popupLayout->geometry().width() + 5;
}

int RibbonStatusBar::extensionsWidth() const
{
    return extensionsLayout->geometry().width();
}

QWidget *RibbonStatusBar::widgetForAction(QAction *action) const
{
    return widgets.value(action).data();
}

void RibbonStatusBar::addActionWidget(QAction *action)
{
    QWidget *widget = nullptr;
    if (auto *simple = qobject_cast<RibbonSimpleAction *>(action)) {
        widget = new RibbonStatusBarWidget(*simple, this);
        extensionsLayout->insertWidget(0, widget, 0, Qt::AlignVCenter);
    } else if (auto *progress = qobject_cast<RibbonProgressAction *>(action)) {
        widget = new RibbonProgressWidget(*progress, this);
        extensionsLayout->insertWidget(0, widget, 0, Qt::AlignVCenter);
    } else if (auto *percentage = qobject_cast<RibbonPercAction *>(action)) {
        widget = new RibbonPercWidget(*percentage, this);
        extensionsLayout->addWidget(widget, 0, Qt::AlignRight | Qt::AlignVCenter);
    } else if (auto *menu = qobject_cast<RibbonCatMenuAction *>(action)) {
        auto *button = new RibbonCatMenuButton(*menu, this);
        button->drawBorder(true);
        popupLayout->insertWidget(0, button, 0, Qt::AlignRight | Qt::AlignVCenter);
        widget = button;
    }
    if (!widget)
        return;
    // Shown now rather than by the layout's queued call, so that it takes its place
    // in the layout below.
    widget->show();
    widgets.insert(action, widget);
    layoutNow();
    emit statusBarChanged();
}

bool RibbonStatusBar::removeActionWidget(QAction *action)
{
    const auto it = widgets.find(action);
    if (it == widgets.end())
        return false;
    QWidget *widget = it.value().data();
    widgets.erase(it);
    // The widget goes with its layout item; one deleted elsewhere has nothing left.
    delete widget;
    layoutNow();
    emit statusBarChanged();
    return true;
}

void RibbonStatusBar::layoutNow()
{
    // Lay out at once rather than at the next layout request, so that the widths the
    // bar reports are current when statusBarChanged() goes out.
    mainLayout->activate();
}

void RibbonStatusBar::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *action = event->action();
    switch (event->type()) {
    case QEvent::ActionAdded:
        // Re-adding an action replaces its widget.
        removeActionWidget(action);
        addActionWidget(action);
        break;
    case QEvent::ActionRemoved:
        removeActionWidget(action);
        break;
    default:
        break;
    }
    update();
}

void RibbonStatusBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange)
        update();
}

void RibbonStatusBar::paintEvent(QPaintEvent *)
{
    const QPixmap &image = ribbonStyle().statusBar();
    // Two halves of 34 columns: the active window's, then the inactive one's.
    const int k = isActiveWindow() ? 0 : 34;
    QPainter painter(this);
    RibbonPaint::drawThreeSlice(painter, rect(), image, QRect(k, 0, 34, image.height()), 10, 10);
}

} // namespace zel
