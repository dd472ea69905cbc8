#include "RibbonViewPopup.h"

#include "RibbonSimpleAction.h"

namespace zel {

RibbonViewPopup::RibbonViewPopup(QList<RibbonSimpleAction *> top,
                                 QList<RibbonSimpleAction *> bottom, QActionGroup *group,
                                 QObject *parent)
    : RibbonViewPopup(top, bottom, group, 4, true, true, false, parent)
{
}

RibbonViewPopup::RibbonViewPopup(QList<RibbonSimpleAction *> top,
                                 QList<RibbonSimpleAction *> bottom, QActionGroup *group,
                                 int columns, bool topIcons, bool bottomIcons, bool centredText,
                                 QObject *parent)
    : QMenu(nullptr)
    , m_columns(columns)
    , m_topIcons(topIcons)
    , m_bottomIcons(bottomIcons)
    , m_centredText(centredText)
    , m_group(group)
    , m_topActions(top)
    , m_bottomActions(bottom)
{
    attachTo(parent);
    init();
}

RibbonViewPopup::~RibbonViewPopup() = default;

void RibbonViewPopup::attachTo(QObject *parent)
{
    if (!parent)
        return;
    if (QWidget *widget = qobject_cast<QWidget *>(parent)) {
        // Keep the popup window flags: with a widget parent it stays a top-level popup.
        setParent(widget, windowFlags());
        return;
    }
    // A QMenu can only have a widget parent; tie its life to any other owner instead.
    connect(parent, &QObject::destroyed, this, [this] {
        if (isVisible()) {
            hide();
            deleteLater();
        } else {
            delete this;
        }
    });
}

bool RibbonViewPopup::init()
{
    buildWidgets();
    return true;
}

void RibbonViewPopup::buildWidgets()
{
    bool sectionBefore = false;
    auto addSection = [this, &sectionBefore](const QList<QAction *> &actions) {
        if (actions.isEmpty())
            return;
        if (sectionBefore)
            addSeparator();
        addActions(actions);
        sectionBefore = true;
    };

    QList<QAction *> top;
    for (RibbonSimpleAction *action : qAsConst(m_topActions)) {
        if (action)
            top.append(action);
    }
    addSection(top);

    // The tiles: the group's actions that can be chosen now.
    QList<QAction *> tiles;
    if (m_group) {
        const QList<QAction *> actions = m_group->actions();
        for (QAction *action : actions) {
            if (action && action->isEnabled())
                tiles.append(action);
        }
    }
    addSection(tiles);

    QList<QAction *> bottom;
    for (RibbonSimpleAction *action : qAsConst(m_bottomActions)) {
        if (action)
            bottom.append(action);
    }
    addSection(bottom);
}

} // namespace zel
