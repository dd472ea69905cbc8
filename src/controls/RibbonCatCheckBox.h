#pragma once

#include "zelribbon_export.h"

#include <QCheckBox>
#include <QPointer>

namespace zel {

class RibbonCatCheckBoxAction;

// The check box of a RibbonCatCheckBoxAction in a ribbon group: a click triggers the
// action with the new state, and the box follows the action's checked and enabled state.
class ZELRIBBON_EXPORT RibbonCatCheckBox : public QCheckBox
{
    Q_OBJECT
public:
    RibbonCatCheckBox(RibbonCatCheckBoxAction &action, QWidget *parent);
    ~RibbonCatCheckBox() override;

    QSize sizeHint() const override;

private slots:
    void onActionChanged();

private:
    QPointer<QAction> m_action;
};

} // namespace zel
