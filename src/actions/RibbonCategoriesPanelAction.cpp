#include "RibbonCategoriesPanelAction.h"

#include "RibbonCategoryAction.h"
#include "RibbonMembers_p.h"

namespace zel {

RibbonCategoriesPanelAction::RibbonCategoriesPanelAction(QObject *parent)
    : RibbonAction(parent)
{
    setCheckable(true);
}

RibbonCategoriesPanelAction::RibbonCategoriesPanelAction(const QString &text, QObject *parent)
    : RibbonAction(text.toUpper(), parent)
{
    setCheckable(true);
}

RibbonCategoriesPanelAction::RibbonCategoriesPanelAction(const QIcon &icon, const QString &text,
                                                         QObject *parent)
    : RibbonAction(icon, text.toUpper(), parent)
{
    setCheckable(true);
}

RibbonCategoriesPanelAction::~RibbonCategoriesPanelAction() = default;

void RibbonCategoriesPanelAction::addCategory(RibbonCategoryAction *category)
{
    // An empty category would make an empty box in the tab; the host adds its
    // commands first.
    if (!category || m_categories.contains(category) || category->actions().isEmpty()
        || RibbonMembers::closesCycle(this, category))
        return;
    m_categories.append(category);
    connect(category, SIGNAL(changed()), this, SLOT(categoryChanged()));
    connect(category, &QObject::destroyed, this, &RibbonCategoriesPanelAction::forgetCategory);
    emit changed();
    emit categoryAdded(category);
}

void RibbonCategoriesPanelAction::removeCategory(RibbonCategoryAction *category)
{
    if (!category || !m_categories.contains(category))
        return;
    disconnect(category, SIGNAL(changed()), this, SLOT(categoryChanged()));
    disconnect(category, &QObject::destroyed, this, &RibbonCategoriesPanelAction::forgetCategory);
    m_categories.removeAll(category);
    emit changed();
    emit categoryRemoved(category);
}

const QList<RibbonCategoryAction *> &RibbonCategoriesPanelAction::categories() const
{
    return m_categories;
}

RibbonCategoryAction *RibbonCategoriesPanelAction::category(const QString &text) const
{
    for (RibbonCategoryAction *category : m_categories) {
        if (category->text() == text)
            return category;
    }
    return nullptr;
}

void RibbonCategoriesPanelAction::categoryChanged()
{
    RibbonMembers::relayOnce(this, [this] { emit changed(); });
}

void RibbonCategoriesPanelAction::forgetCategory(QObject *category)
{
    RibbonMembers::forget(m_categories, category);
    RibbonMembers::announceLater(this, [this] { emit changed(); });
}

} // namespace zel
