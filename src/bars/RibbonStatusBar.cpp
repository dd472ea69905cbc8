#include "RibbonStatusBar.h"

#include "RibbonActionWidgetMap_p.h"
#include "RibbonApplication.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonImageRows_p.h"
#include "RibbonMainWindow.h"
#include "RibbonPaint_p.h"
#include "RibbonPercAction.h"
#include "RibbonPercWidget.h"
#include "RibbonProgressAction.h"
#include "RibbonProgressWidget.h"
#include "RibbonScale_p.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBarWidget.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPointer>
#include <QSpacerItem>

namespace zel {

namespace {

const RibbonStyle &ribbonStyle()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QWidget *makeBorderedMenuButton(QAction *action, QWidget *parent)
{
    auto *menu = qobject_cast<RibbonCatMenuAction *>(action);
    if (!menu)
        return nullptr;
    auto *button = new RibbonCatMenuButton(*menu, parent);
    button->drawBorder(true);
    return button;
}

// Where a widget goes: the area at the right (extensions) or the menu area at the
// left (popups), at the front of it or at its end, with its alignment there.
enum class Area { Extensions, Popups };

struct WidgetMaker
{
    RibbonWidgetMaker make;
    Area area;
    bool atFront;
    Qt::Alignment alignment;
};

const WidgetMaker widgetMakers[] = {
    {makeWidgetFor<RibbonSimpleAction, RibbonStatusBarWidget>, Area::Extensions, true, Qt::AlignVCenter},
    {makeWidgetFor<RibbonProgressAction, RibbonProgressWidget>, Area::Extensions, true, Qt::AlignVCenter},
    {makeWidgetFor<RibbonPercAction, RibbonPercWidget>, Area::Extensions, false,
     Qt::AlignRight | Qt::AlignVCenter},
    {makeBorderedMenuButton, Area::Popups, true, Qt::AlignRight | Qt::AlignVCenter},
};

} // namespace

struct RibbonStatusBar::Priv
{
    explicit Priv(RibbonMainWindow &window)
        : mainWindow(&window)
    {
    }

    QPointer<RibbonMainWindow> mainWindow;
    QHBoxLayout *mainLayout = nullptr;
    QHBoxLayout *extensionsLayout = nullptr;
    QHBoxLayout *popupLayout = nullptr;
    QHBoxLayout *loginLayout = nullptr;
    // A widget leaves its layout by itself when it is deleted.
    RibbonActionWidgetMap<> widgets;
};

RibbonStatusBar::RibbonStatusBar(RibbonMainWindow &mainWindow)
    : QWidget(&mainWindow)
    , d(new Priv(mainWindow))
{
    d->mainLayout = new QHBoxLayout(this);
    d->extensionsLayout = new QHBoxLayout;
    d->popupLayout = new QHBoxLayout;
    d->loginLayout = new QHBoxLayout;
    d->mainLayout->setContentsMargins(0, 0, 0, 0);
    d->extensionsLayout->setContentsMargins(5, 3, 5, 0);
    d->extensionsLayout->setSpacing(0);
    d->popupLayout->setContentsMargins(5, 0, 5, 3);
    d->loginLayout->setContentsMargins(0, 2, 0, 0);

    d->mainLayout->addLayout(d->loginLayout);
    d->mainLayout->addLayout(d->popupLayout);
    d->mainLayout->addItem(new QSpacerItem(0, 20, QSizePolicy::Expanding, QSizePolicy::Fixed));
    d->mainLayout->addLayout(d->extensionsLayout);

    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    updateHeight();
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, [this] {
        updateHeight();
        update();
    });
}

RibbonStatusBar::~RibbonStatusBar() = default;

RibbonMainWindow *RibbonStatusBar::mainWindow() const
{
    return d->mainWindow.data();
}

void RibbonStatusBar::addLoginStatusIcon(QWidget *icon)
{
    if (!icon || d->loginLayout->indexOf(icon) >= 0)
        return;
    d->loginLayout->addWidget(icon);
}

void RibbonStatusBar::removeLoginStatusIcon(QWidget *icon)
{
    if (!icon || d->loginLayout->indexOf(icon) < 0)
        return;
    d->loginLayout->removeWidget(icon);
    delete icon;
}

int RibbonStatusBar::loginLayoutWidth() const
{
    return d->loginLayout->geometry().width();
}

int RibbonStatusBar::popupLayoutWidth() const
{
    return d->loginLayout->geometry().width() + d->popupLayout->geometry().width() + 5;
}

int RibbonStatusBar::extensionsWidth() const
{
    return d->extensionsLayout->geometry().width();
}

QWidget *RibbonStatusBar::widgetForAction(QAction *action) const
{
    return d->widgets.widget(action);
}

void RibbonStatusBar::addActionWidget(QAction *action)
{
    const auto made = makeWidget(widgetMakers, action, this);
    if (!made.widget)
        return;
    const WidgetMaker &row = *made.row;
    QHBoxLayout *area = row.area == Area::Extensions ? d->extensionsLayout : d->popupLayout;
    area->insertWidget(row.atFront ? 0 : -1, made.widget, 0, row.alignment);
    // Shown now rather than by the layout's queued call, so that it takes its place
    // in the layout below.
    made.widget->show();
    d->widgets.insert(action, made.widget);
    layoutNow();
    emit statusBarChanged();
}

bool RibbonStatusBar::removeActionWidget(QAction *action)
{
    if (!d->widgets.drop(action))
        return false;
    layoutNow();
    emit statusBarChanged();
    return true;
}

void RibbonStatusBar::layoutNow()
{
    // Lay out at once rather than at the next layout request, so that the widths the
    // bar reports are current when statusBarChanged() goes out.
    d->mainLayout->activate();
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

void RibbonStatusBar::updateHeight()
{
    // The background image's height, grown with the resolution or, for a large font, to
    // hold the zoom slider's row (its label's text) below the extensions' top margin.
    const int imageHeight = RibbonPaint::logicalSize(ribbonStyle().statusBar()).height();
    setFixedHeight(std::max(scaled(imageHeight), textFitHeight(20, fontMetrics(), 1) + 3));
}

void RibbonStatusBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateHeight();
    if (event->type() == QEvent::ActivationChange)
        update();
}

void RibbonStatusBar::paintEvent(QPaintEvent *)
{
    const QPixmap &image = ribbonStyle().statusBar();
    namespace StatusBarHalf = RibbonImageRows::StatusBarHalf;
    const int k = 34 * (isActiveWindow() ? StatusBarHalf::Active : StatusBarHalf::Inactive);
    QPainter painter(this);
    RibbonPaint::drawThreeSlice(painter, rect(), image, QRect(k, 0, 34, RibbonPaint::logicalSize(image).height()), 10, 10);
}

} // namespace zel
