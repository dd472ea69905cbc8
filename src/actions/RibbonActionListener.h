#pragma once

#include "zelribbon_export.h"

#include <QObject>
#include <QString>

namespace zel {

class RibbonAction;

// Process-wide report of triggered ribbon actions. Every RibbonAction reports its
// triggers here; a forbidden action reports only through forbiddenActionTriggered().
class ZELRIBBON_EXPORT RibbonActionListener : public QObject
{
    Q_OBJECT
public:
    static RibbonActionListener &instance();

    // Text of the last action reported through actionTriggered().
    QString lastActionTriggered() const;

signals:
    void actionTriggered(RibbonAction* action);
    void forbiddenActionTriggered(RibbonAction* action);

public slots:
    void onForbiddenActionTriggered();

private slots:
    void onActionTriggered();

private:
    RibbonActionListener();
    ~RibbonActionListener() override;
    Q_DISABLE_COPY(RibbonActionListener)

    QString m_lastActionTriggered;
};

} // namespace zel
