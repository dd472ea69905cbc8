#pragma once

// Keeps the shortcuts of every command of the shown tabs alive. Not installed.
//
// Qt matches a QAction's shortcut (Qt::WindowShortcut) only while the action sits on a
// visible, enabled widget of the active window. The buttons of the tabs that are not
// current, of folded categories and the cells of button strips are hidden or are no
// widgets at all, so their commands would fire only while shown. This invisible widget
// beside the ribbon bar carries every command of the tabs the bar shows: the shortcut then
// works from anywhere in the main view, exactly once (Qt keeps one shortcut per action,
// however many widgets carry it), only while the command is enabled, and stops as soon
// as the command, its category or its tab leaves the ribbon (a contextual tab leaves it
// when its set is hidden).

#include <QHash>
#include <QList>
#include <QPointer>
#include <QWidget>

class QAction;

namespace zel {

class RibbonCategoriesPanelAction;

class RibbonCommandShortcuts : public QWidget
{
    Q_OBJECT
public:
    // The bar deletes it.
    explicit RibbonCommandShortcuts(QWidget *bar);
    ~RibbonCommandShortcuts() override;

    void addTab(RibbonCategoriesPanelAction *tab);
    // Safe while tab is being destroyed.
    void removeTab(QAction *tab);

    // Brings the carried commands in line with the tabs now (otherwise additions are
    // taken in once control returns to the event loop).
    void sync();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void onMemberAdded();
    void onMemberRemoved();

private:
    void watch(QObject *container);

    QWidget *m_bar;
    QList<QPointer<QAction>> m_tabs;
    // The containers whose membership signals reach this object.
    QHash<const QObject *, QPointer<QObject>> m_watched;
    bool m_syncPending = false;
    Q_DISABLE_COPY(RibbonCommandShortcuts)
};

} // namespace zel
