#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QWidget>

class QLabel;

namespace zel {

class RibbonCatComboAction;
class RibbonCatComboComboBox;

// A RibbonCatComboComboBox with the action's label beside it, or above it when the
// action is vertically aligned. This is the combo control of a ribbon group.
class ZELRIBBON_EXPORT RibbonCatComboWidget : public QWidget
{
    Q_OBJECT
public:
    RibbonCatComboWidget(RibbonCatComboAction &action, QWidget *parent);
    ~RibbonCatComboWidget() override;

    RibbonCatComboComboBox *comboBox() const;
    QLabel *label() const;

    QSize sizeHint() const override;

private:
    QPointer<QAction> m_action;
    RibbonCatComboComboBox *m_comboBox;
    QLabel *m_label;
};

} // namespace zel
