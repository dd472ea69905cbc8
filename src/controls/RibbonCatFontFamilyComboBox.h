#pragma once

#include "zelribbon_export.h"

#include <QFontComboBox>
#include <QPointer>

namespace zel {

class RibbonCatFontFamilyAction;

// The font-family picker of a RibbonCatFontFamilyAction. It shows the action's font;
// only the user's choice is sent back to the action.
class ZELRIBBON_EXPORT RibbonCatFontFamilyComboBox : public QFontComboBox
{
    Q_OBJECT
public:
    RibbonCatFontFamilyComboBox(RibbonCatFontFamilyAction &action, QWidget *parent);
    ~RibbonCatFontFamilyComboBox() override;

protected:
    void actionEvent(QActionEvent *event) override;

private slots:
    void onIndexChanged(int index);
    void unblockSignals();

private:
    QPointer<QAction> m_action;
};

} // namespace zel
