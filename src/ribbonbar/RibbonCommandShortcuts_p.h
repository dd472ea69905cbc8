#pragma once

// Keeps the shortcuts of every command of the shown tabs alive. Not installed.
//
// Qt matches a QAction's shortcut (Qt::WindowShortcut) only while the action sits on a
// visible, enabled widget of the active window. The buttons of the tabs that are not
// current, of folded categories and the cells of button strips are hidden or are no
// widgets at all, so their commands would fire only while shown. This invisible widget
// beside the ribbon bar carries every command of the tabs the bar shows (in one
// invisible child per tab): the shortcut then works from anywhere in the main view,
// exactly once (Qt keeps one shortcut per action, however many widgets carry it), only
// while the command is enabled, and stops as soon as the command, its category or its
// tab leaves the ribbon (a contextual tab leaves it when its set is hidden).

#include <QHash>
#include <QList>
#include <QPointer>
#include <QSet>
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
    // Makes tab's carrier carry the tab's commands; adds the tab and the containers
    // within it to containers.
    void takeInTab(RibbonCategoriesPanelAction *tab, QSet<QObject *> &containers);
    // Makes the carrier of tab's commands carry exactly commands (which it empties).
    void carry(const QObject *tab, QSet<QAction *> &commands);
    void watch(QObject *container);

    QWidget *m_bar;
    QList<QPointer<QAction>> m_tabs;
    // One invisible carrier per tab: a widget finds its actions by a linear search, so
    // thousands of commands on one widget would cost quadratic time to add.
    QHash<const QObject *, QPointer<QWidget>> m_carriers;
    // The containers whose membership signals reach this object.
    QHash<const QObject *, QPointer<QObject>> m_watched;
    bool m_syncPending = false;
    Q_DISABLE_COPY(RibbonCommandShortcuts)
};

} // namespace zel
