#pragma once

#include "RibbonAction.h"

#include <QList>
#include <QVector>

namespace zel {

// A category (group) of a tab: the captioned box of commands. Every member carries
// the row number the host gave it. Members are not owned.
class ZELRIBBON_EXPORT RibbonCategoryAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonCategoryAction(QObject *parent);
    RibbonCategoryAction(const QString &text, QObject *parent);
    RibbonCategoryAction(const QIcon &icon, const QString &text, QObject *parent);
    ~RibbonCategoryAction() override;

    // Ignores null and duplicate actions (a duplicate keeps its first row).
    void addAction(RibbonAction *action, int row);
    void removeAction(RibbonAction *action);
    const QList<RibbonAction*> &actions() const;
    // -1 when the category is empty; else the member's row, 0 for a non-member.
    int actionRow(RibbonAction *action) const;

signals:
    void actionAdded(RibbonAction* action);
    void actionRemoved(RibbonAction* action);

private slots:
    void actionChanged();
    void actionActivated();

private:
    void forgetAction(QObject *action);

    QList<RibbonAction*> m_actions;
    // The row of each member, at the member's index in m_actions: a category holds a
    // handful of members, and a map node per member would cost more than the search.
    QVector<int> m_rows;
};

} // namespace zel
