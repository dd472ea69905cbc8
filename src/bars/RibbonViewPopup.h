#pragma once

#include "zelribbon_export.h"

#include <QActionGroup>
#include <QList>
#include <QMenu>
#include <QPointer>

namespace zel {

class RibbonSimpleAction;

// The drop-down of a view menu: commands at the top, the actions of an icon group in
// the middle and commands at the bottom, separated by lines. A top-level popup; when
// its parent object is not a widget, it is deleted together with that object.
class ZELRIBBON_EXPORT RibbonViewPopup : public QMenu
{
    Q_OBJECT
public:
    RibbonViewPopup(QList<RibbonSimpleAction*> top, QList<RibbonSimpleAction*> bottom,
                    QActionGroup* group, QObject* parent);
    RibbonViewPopup(QList<RibbonSimpleAction*> top, QList<RibbonSimpleAction*> bottom,
                    QActionGroup* group, int columns, bool topIcons, bool bottomIcons,
                    bool centredText, QObject* parent);
    ~RibbonViewPopup() override;

protected:
    bool init();
    void buildWidgets();

private:
    void attachTo(QObject *parent);

    int m_columns = 4;
    bool m_topIcons = true;
    bool m_bottomIcons = true;
    bool m_centredText = false;
    QPointer<QActionGroup> m_group;
    QList<RibbonSimpleAction*> m_topActions;
    QList<RibbonSimpleAction*> m_bottomActions;
};

} // namespace zel
