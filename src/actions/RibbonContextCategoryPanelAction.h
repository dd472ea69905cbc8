#pragma once

#include "RibbonAction.h"

#include <QColor>
#include <QList>

namespace zel {

class RibbonCategoriesPanelAction;

// A set of contextual tabs, painted by the ribbon bar in its own colours. The tabs
// are not owned.
class ZELRIBBON_EXPORT RibbonContextCategoryPanelAction : public RibbonAction
{
    Q_OBJECT
public:
    RibbonContextCategoryPanelAction(QColor backgroundColor, QColor topColor, QColor textColor,
                                     QObject *parent);
    ~RibbonContextCategoryPanelAction() override;

    QColor backgroundColor() const;
    QColor topColor() const;
    QColor textColor() const;

    // Ignores null and duplicate tabs.
    void addPanelAction(RibbonCategoriesPanelAction *action);
    void removePanelAction(RibbonCategoriesPanelAction *action);
    const QList<RibbonCategoriesPanelAction*> &panelActions() const;
    // The first tab whose text equals text exactly (tab texts are in capitals).
    RibbonCategoriesPanelAction *panelAction(const QString &text) const;

signals:
    void panelActionAdded(RibbonCategoriesPanelAction* action);
    void panelActionRemoved(RibbonCategoriesPanelAction* action);

private:
    void forgetPanelAction(QObject *action);

    QList<RibbonCategoriesPanelAction*> m_panelActions;
    QColor m_backgroundColor;
    QColor m_topColor;
    QColor m_textColor;
};

} // namespace zel
