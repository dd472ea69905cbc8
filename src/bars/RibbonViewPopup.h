#pragma once

#include "zelribbon_export.h"

#include <QList>
#include <QMenu>

#include <memory>

class QActionGroup;
class QGridLayout;
class QVBoxLayout;

namespace zel {

class RibbonSimpleAction;
class RibbonViewButton;

// The drop-down of a view menu: a list of commands at the top, a grid of large icon
// tiles for the enabled actions of an action group in the middle, and a second list of
// commands at the bottom, separated by sunken lines. Every entry is a RibbonViewButton;
// clicking one triggers its action and closes the popup.
//
// A top-level popup; when its parent object is not a widget, it is deleted together
// with that object.
class ZELRIBBON_EXPORT RibbonViewPopup : public QMenu
{
    Q_OBJECT
public:
    // Four tiles per grid row, icons in both lists, left-aligned row texts.
    RibbonViewPopup(QList<RibbonSimpleAction*> top, QList<RibbonSimpleAction*> bottom,
                    QActionGroup* group, QObject* parent);
    // topIcons: icons (and the icon gutter) in the top list and the tiles; bottomIcons:
    // the same for the bottom list; centredText: row texts centred. A columns count
    // below 1 counts as 1.
    RibbonViewPopup(QList<RibbonSimpleAction*> top, QList<RibbonSimpleAction*> bottom,
                    QActionGroup* group, int columns, bool topIcons, bool bottomIcons,
                    bool centredText, QObject* parent);
    ~RibbonViewPopup() override;

    QSize sizeHint() const override;
    // Width and height of the arranged entries.
    int getWidgetWidth();
    int getWidgetHeight();

    // Every entry, top list, tiles and bottom list in that order.
    QList<RibbonViewButton*> buttons() const;
    // The entry last found under the mouse; null when none.
    RibbonViewButton *hoveredButton() const;

public slots:
    void onMouseMoved();

protected:
    bool init();
    void buildWidgets();
    void addLine(QVBoxLayout* layout);
    void removeWidgets();
    void paintEvent(QPaintEvent* event) override;

private:
    void attachTo(QObject *parent);
    void addRows(const QList<RibbonSimpleAction*> &actions, QVBoxLayout *layout, bool icons,
                 Qt::Alignment alignment);
    void addButton(RibbonViewButton *button);
    void updateLines();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonViewPopup)
};

} // namespace zel
