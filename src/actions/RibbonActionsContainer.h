#pragma once

#include "zelribbon_export.h"

#include <QAction>
#include <QKeySequence>
#include <QMap>
#include <QPointer>
#include <QString>

namespace zel {

// Process-wide directory of actions by name. Every RibbonAction built with a text
// enters itself here under that text; the first registration under a name wins and
// stays (reading null once its action is destroyed) until the host removes it.
class ZELRIBBON_EXPORT RibbonActionsContainer
{
public:
    static RibbonActionsContainer &instance();

    // Inserts the pair unless name is already a key.
    void addAction(QString name, QPointer<QAction> action);
    void removeAction(QString name);

    // Exact, case-sensitive match; null when unknown or destroyed.
    QPointer<QAction> action(const QString &name) const;
    // The first live action, in name order, whose primary shortcut equals sequence.
    QPointer<QAction> action(const QKeySequence &sequence) const;

private:
    RibbonActionsContainer();
    virtual ~RibbonActionsContainer();
    Q_DISABLE_COPY(RibbonActionsContainer)

    QMap<QString, QPointer<QAction>> m_actions;
};

} // namespace zel
