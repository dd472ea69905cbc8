#include "RibbonCategoryPanel.h"

#include "RibbonActionWidgetMap_p.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanelLayout.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryWrapper.h"

#include <QActionEvent>

namespace zel {

struct RibbonCategoryPanel::Priv
{
    Priv(RibbonCategoryPanels &p, RibbonCategoriesPanelAction &t)
        : panels(p)
        , tab(t)
    {
    }

    RibbonCategoryPanels &panels;
    RibbonCategoriesPanelAction &tab;
    RibbonCategoryPanelLayout *layout = nullptr;
    // The wrappers stand in the layout's own list, not as items of the box layout.
    RibbonActionWidgetMap<RibbonCategoryWrapper> wrappers{
        [this](RibbonCategoryWrapper *wrapper) { layout->removeCategory(wrapper); }};
};

RibbonCategoryPanel::RibbonCategoryPanel(RibbonCategoryPanels &panels, RibbonCategoriesPanelAction &tab)
    : QWidget(&panels)
    , d(new Priv(panels, tab))
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    d->layout = new RibbonCategoryPanelLayout(*this);

    for (RibbonCategoryAction *category : tab.categories())
        addCategory(category);
    connect(&tab, &RibbonCategoriesPanelAction::categoryAdded, this, &RibbonCategoryPanel::addCategory);
    connect(&tab, &RibbonCategoriesPanelAction::categoryRemoved, this, &RibbonCategoryPanel::removeCategory);
}

RibbonCategoryPanel::~RibbonCategoryPanel() = default;

RibbonCategoryPanels &RibbonCategoryPanel::categoryPanels() const
{
    return d->panels;
}

RibbonCategoriesPanelAction &RibbonCategoryPanel::panelAction() const
{
    return d->tab;
}

RibbonCategoryPanelLayout *RibbonCategoryPanel::panelLayout() const
{
    return d->layout;
}

RibbonCategoryWrapper *RibbonCategoryPanel::wrapper(RibbonCategoryAction *category) const
{
    return d->wrappers.widget(category);
}

void RibbonCategoryPanel::addCategory(RibbonCategoryAction *category)
{
    if (category)
        addAction(category);
}

void RibbonCategoryPanel::removeCategory(RibbonCategoryAction *category)
{
    if (category)
        removeAction(category);
}

void RibbonCategoryPanel::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *action = event->action();
    switch (event->type()) {
    case QEvent::ActionAdded:
        if (auto *category = qobject_cast<RibbonCategoryAction *>(action)) {
            if (d->wrappers.contains(action))
                break;
            auto *wrapper = new RibbonCategoryWrapper(*this, *category);
            d->wrappers.insert(action, wrapper);
            d->layout->addCategory(wrapper);
            wrapper->show();
            updateGeometry();
        }
        break;
    case QEvent::ActionRemoved:
        if (d->wrappers.drop(action))
            updateGeometry();
        break;
    default:
        break;
    }
}

void RibbonCategoryPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateGeometry();
}

} // namespace zel
