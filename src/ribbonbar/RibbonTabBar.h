#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonAction;
class RibbonMenuAction;

// A thin strip of tabs a host can place anywhere, for example above its documents. The
// tabs are the entries of one menu action, the current tab is the entry the menu holds
// checked, and choosing a tab triggers its entry (so an exclusive menu of checkable
// entries keeps exactly one tab current). Tabs keep their width: when they do not fit,
// four navigation buttons at the left scroll them. The current tab can be dragged to a
// new place among the others.
class ZELRIBBON_EXPORT RibbonTabBar : public QWidget
{
    Q_OBJECT
public:
    // The menu is also added to the bar, whose tabs follow its changes from then on.
    RibbonTabBar(RibbonMenuAction &action, QWidget *parent = nullptr);
    ~RibbonTabBar() override;

    QSize sizeHint() const override;

    // The width computed for the last tab.
    int tabWidth() const;

public slots:
    void navFirst();
    void navLast();
    void navNext();
    void navPrev();
    // Chooses the tab where the last drag entered.
    void toggleTab();
    // true: scrolls back to the first tab; false: one tab further, as navNext().
    void ensureVisible(bool isLast);

protected:
    void updateTabSizes();
    // The visible tab under a point: its rectangle (empty when none) and its entry
    // (null when none). Tabs scrolled out at either side are never hit.
    QRect tabRect(const QPoint &pos) const;
    RibbonAction *actionByPoint(const QPoint &pos) const;

    bool event(QEvent *event) override;
    void actionEvent(QActionEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;

private:
    void activateTab(const QPoint &pos);
    void moveTab();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonTabBar)
};

} // namespace zel
