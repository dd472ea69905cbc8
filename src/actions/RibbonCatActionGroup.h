#pragma once

#include "RibbonAction.h"

#include <QList>

namespace zel {

// A button group inside a category, shown as one segmented strip of small buttons.
// When exclusive, checking one checkable member unchecks the previously checked one.
// Members are not owned.
class ZELRIBBON_EXPORT RibbonCatActionGroup : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonCatActionGroup(QObject *parent);
    RibbonCatActionGroup(const QString &text, QObject *parent);
    ~RibbonCatActionGroup() override;

    // Ignores null and duplicate actions. The group's wide flag takes the value
    // passed with the latest addition.
    void addAction(RibbonAction *action, bool wide);
    void removeAction(RibbonAction *action);
    void setExclusive(bool exclusive);

    bool isExclusive() const;
    bool isWide() const;
    RibbonAction *checkedAction();
    const QList<RibbonAction*> &actions() const;

private slots:
    void actionChanged();
    void actionActivated();

private:
    void forgetAction(QObject *action);

    QList<RibbonAction*> m_actions;
    RibbonAction *m_checkedAction = nullptr;
    bool m_exclusive = false;
    bool m_wide = false;
};

} // namespace zel
