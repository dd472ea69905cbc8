#pragma once

#include "RibbonAction.h"

namespace zel {

// A command that announces its activation to its container when triggered.
class ZELRIBBON_EXPORT RibbonSimpleAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonSimpleAction(QObject *parent = nullptr);
    RibbonSimpleAction(const QString &text, QObject *parent);
    RibbonSimpleAction(const QIcon &icon, const QString &text, QObject *parent);
    RibbonSimpleAction(QPointer<QAction> alias, QObject *parent);
    RibbonSimpleAction(QPointer<QAction> alias, const QIcon &icon, const QString &text, QObject *parent);
    RibbonSimpleAction(QPointer<RibbonAction> alias, QObject *parent);
    RibbonSimpleAction(QPointer<RibbonAction> alias, const QString &text, QObject *parent);
    ~RibbonSimpleAction() override;

private:
    void relayActivation();
};

} // namespace zel
