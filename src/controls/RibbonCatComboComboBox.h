#pragma once

#include "zelribbon_export.h"

#include <QComboBox>
#include <QPointer>

namespace zel {

class RibbonCatComboAction;

// The combo box of a RibbonCatComboAction: shows the action's items and selection and
// hands the user's choice and key presses to the action. The box holds exactly the
// action's items: a text the user enters becomes an item of the action (and so of every
// box showing it) rather than of this box alone.
class ZELRIBBON_EXPORT RibbonCatComboComboBox : public QComboBox
{
    Q_OBJECT
public:
    RibbonCatComboComboBox(RibbonCatComboAction &action, QWidget *parent);
    ~RibbonCatComboComboBox() override;

public slots:
    void onItemAdded(const QIcon &icon, const QString &item);
    void onEditableChanged();
    // Shows the given text as the selection.
    void updateActionSelection(const QString &item);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void actionEvent(QActionEvent *event) override;

private slots:
    void relaySelection(int index);
    void onReturnPressed();

private:
    QPointer<QAction> m_action;
    // Set while the box shows the action's selection, which it must not hand back.
    bool m_showingSelection = false;
};

} // namespace zel
