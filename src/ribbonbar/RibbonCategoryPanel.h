#pragma once

#include "zelribbon_export.h"

#include <QList>
#include <QWidget>

#include <memory>

namespace zel {

class RibbonCategoriesPanelAction;
class RibbonCategoryAction;
class RibbonCategoryPanelLayout;
class RibbonCategoryPanels;
class RibbonCategoryWrapper;

// One page of the panel area: the groups of one tab side by side, each inside a
// RibbonCategoryWrapper that folds it when the page runs short of width.
class ZELRIBBON_EXPORT RibbonCategoryPanel : public QWidget
{
    Q_OBJECT
public:
    RibbonCategoryPanel(RibbonCategoryPanels &panels, RibbonCategoriesPanelAction &tab);
    ~RibbonCategoryPanel() override;

    RibbonCategoryPanels &categoryPanels() const;
    RibbonCategoriesPanelAction &panelAction() const;
    RibbonCategoryPanelLayout *panelLayout() const;
    // The wrapper of a group, null when the group is not on this page.
    RibbonCategoryWrapper *wrapper(RibbonCategoryAction *category) const;

public slots:
    void addCategory(RibbonCategoryAction *category);
    void removeCategory(RibbonCategoryAction *category);

protected:
    void actionEvent(QActionEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCategoryPanel)
};

} // namespace zel
