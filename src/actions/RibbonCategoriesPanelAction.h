#pragma once

#include "RibbonAction.h"

#include <QList>

namespace zel {

class RibbonCategoryAction;

// A tab of the ribbon bar: a checkable action whose text is kept in capitals and
// which holds the tab's categories in display order (left to right). The categories
// are not owned.
class ZELRIBBON_EXPORT RibbonCategoriesPanelAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonCategoriesPanelAction(QObject *parent);
    RibbonCategoriesPanelAction(const QString &text, QObject *parent);
    RibbonCategoriesPanelAction(const QIcon &icon, const QString &text, QObject *parent);
    ~RibbonCategoriesPanelAction() override;

    // Ignores null, duplicate and empty categories.
    void addCategory(RibbonCategoryAction *category);
    void removeCategory(RibbonCategoryAction *category);
    const QList<RibbonCategoryAction*> &categories() const;
    RibbonCategoryAction *category(const QString &text) const;

signals:
    void categoryAdded(RibbonCategoryAction* category);
    void categoryRemoved(RibbonCategoryAction* category);

private slots:
    void categoryChanged();

private:
    void forgetCategory(QObject *category);

    QList<RibbonCategoryAction*> m_categories;
};

} // namespace zel
