#include "RibbonCategoryPanel.h"

#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanelLayout.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryWrapper.h"

#include <QActionEvent>
#include <QMap>

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
    // Keyed by plain QAction: a group being destroyed is no longer a RibbonCategoryAction
    // when its removal arrives, but its wrapper must still go.
    QMap<QAction *, RibbonCategoryWrapper *> wrappers;
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
    return d->wrappers.value(category);
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
        if (RibbonCategoryWrapper *wrapper = d->wrappers.take(action)) {
            d->layout->removeCategory(wrapper);
            delete wrapper;
            updateGeometry();
        }
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
