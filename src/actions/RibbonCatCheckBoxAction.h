#pragma once

#include "RibbonAction.h"

namespace zel {

// A check box in a ribbon group. The action holds the checked state; every
// RibbonCatCheckBox made for it mirrors that state and its enabled state.
class ZELRIBBON_EXPORT RibbonCatCheckBoxAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonCatCheckBoxAction(QObject *parent = nullptr);
    RibbonCatCheckBoxAction(const QString &text, QObject *parent);
    ~RibbonCatCheckBoxAction() override;

    QString textLabel() const;
    // Changes the label of the action and of its check boxes.
    void setTextLabel(const QString &text);

signals:
    // Re-sent at every change of the action, so that the check boxes follow it.
    void actionEnabled(bool enabled);

private slots:
    void onChanged();

private:
    void init();

    QString m_textLabel;
};

} // namespace zel
