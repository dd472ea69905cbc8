#include "RibbonCategoryPanels.h"

#include "RibbonActionWidgetMap_p.h"
#include "RibbonApplication.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonContextMenu_p.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonPaint_p.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace zel {

struct RibbonCategoryPanels::Priv
{
    Priv(RibbonMenuBar &b, QStackedWidget &stack)
        : bar(b)
        , pages([&stack](RibbonCategoryPanel *page) { stack.removeWidget(page); })
    {
    }

    RibbonMenuBar &bar;
    RibbonActionWidgetMap<RibbonCategoryPanel> pages;
    // The page whose updates are on. Every other page keeps its updates switched off
    // explicitly: switching pages makes QStackedLayout turn the stack's updates off and
    // on again, which walks every widget under it except those switched off on their
    // own, so the switch costs two pages instead of all of them.
    QPointer<QWidget> liveUpdates;
};

RibbonCategoryPanels::RibbonCategoryPanels(RibbonMenuBar &menuBar)
    : QStackedWidget(nullptr)
    , d(new Priv(menuBar, *this))
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setFixedHeight(scaled(92));
    setContentsMargins(4, 3, 4, 4);
    connect(this, &QStackedWidget::currentChanged, this, &RibbonCategoryPanels::giveUpdatesToCurrent);
    // A page the host takes out of the stack paints again wherever it goes next. Pages
    // being deleted are already absent from the map.
    connect(this, &QStackedWidget::widgetRemoved, this, [this] {
        for (RibbonCategoryPanel *page : d->pages.widgets()) {
            if (indexOf(page) < 0)
                page->setUpdatesEnabled(true);
        }
    });
}

RibbonCategoryPanels::~RibbonCategoryPanels() = default;

void RibbonCategoryPanels::giveUpdatesToCurrent()
{
    QWidget *current = currentWidget();
    if (current == d->liveUpdates)
        return;
    if (current)
        current->setUpdatesEnabled(true);
    // Only pages of tabs: a widget the host put in the stack keeps its own setting.
    if (d->liveUpdates && indexOf(d->liveUpdates) >= 0 && d->pages.action(d->liveUpdates))
        d->liveUpdates->setUpdatesEnabled(false);
    d->liveUpdates = current;
}

RibbonMenuBar &RibbonCategoryPanels::menuBar() const
{
    return d->bar;
}

RibbonCategoryPanel *RibbonCategoryPanels::panel(RibbonCategoriesPanelAction *tab) const
{
    return d->pages.widget(tab);
}

QPointer<RibbonCategoriesPanelAction> RibbonCategoryPanels::action(QWidget *page) const
{
    return qobject_cast<RibbonCategoriesPanelAction *>(d->pages.action(page));
}

RibbonMenuBarButton *RibbonCategoryPanels::panelMenuButton(QWidget *page) const
{
    const QPointer<RibbonCategoriesPanelAction> tab = action(page);
    return tab ? d->bar.menuBarButton(tab.data()) : nullptr;
}

void RibbonCategoryPanels::actionEvent(QActionEvent *event)
{
    QStackedWidget::actionEvent(event);
    QAction *tabAction = event->action();
    auto *tab = qobject_cast<RibbonCategoriesPanelAction *>(tabAction);
    switch (event->type()) {
    case QEvent::ActionAdded:
        if (tab && !d->pages.contains(tabAction)) {
            auto *page = new RibbonCategoryPanel(*this, *tab);
            d->pages.insert(tabAction, page);
            addWidget(page);
            if (page != currentWidget())
                page->setUpdatesEnabled(false);
            if (tab->isChecked())
                setCurrentWidget(page);
        }
        break;
    case QEvent::ActionRemoved:
        d->pages.drop(tabAction);
        break;
    case QEvent::ActionChanged:
        if (tab && tab->isChecked()) {
            if (RibbonCategoryPanel *page = d->pages.widget(tabAction)) {
                if (currentWidget() != page) {
                    // On before it is shown, so that it paints as it appears.
                    page->setUpdatesEnabled(true);
                    setCurrentWidget(page);
                }
                // While the ribbon is minimised this opens the popup.
                if (!isVisible())
                    show();
            }
        }
        break;
    default:
        break;
    }
    updateGeometry();
}

void RibbonCategoryPanels::showEvent(QShowEvent *event)
{
    QStackedWidget::showEvent(event);
    if (event->spontaneous())
        return;
    if (const QPointer<RibbonCategoriesPanelAction> tab = action(currentWidget()))
        tab->setChecked(true);
}

void RibbonCategoryPanels::hideEvent(QHideEvent *event)
{
    QStackedWidget::hideEvent(event);
    // A window being minimised by the system is no reason to lose the current tab.
    if (event->spontaneous())
        return;
    if (const QPointer<RibbonCategoriesPanelAction> tab = action(currentWidget()))
        tab->setChecked(false);
}

void RibbonCategoryPanels::mousePressEvent(QMouseEvent *event)
{
    if (windowType() == Qt::Popup) {
        // A press on the tab whose panel is open keeps the popup open.
        auto *button = qobject_cast<RibbonMenuBarButton *>(QApplication::widgetAt(event->globalPos()));
        if (button && button->isChecked())
            return;
    }
    QStackedWidget::mousePressEvent(event);
}

void RibbonCategoryPanels::mouseDoubleClickEvent(QMouseEvent *event)
{
    QStackedWidget::mouseDoubleClickEvent(event);
}

void RibbonCategoryPanels::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);

    RibbonPaint::drawThreeSlice(painter, QRect(0, 0, width(), scaled(92)), style.categories(),
                                QRect(0, 0, 80, 92), 5, 5);

    // Join the current tab to the panel: the bar and this widget share their x origin
    // while the ribbon is pinned.
    const QColor under = style.categoryColorUnderButton();
    RibbonMenuBarButton *button = panelMenuButton(currentWidget());
    if (button && under.isValid()) {
        const int x = button->mapTo(&d->bar, QPoint(0, 0)).x();
        painter.setPen(Qt::NoPen);
        painter.setBrush(under);
        painter.drawRect(QRect(x + 3, 0, button->width() - 6, 2));
    }
}

void RibbonCategoryPanels::contextMenuEvent(QContextMenuEvent *event)
{
    ribbonOpenContextMenu(*this, event);
}

} // namespace zel
