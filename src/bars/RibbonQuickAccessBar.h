#pragma once

#include "zelribbon_export.h"

#include <QStringList>
#include <QWidget>

#include <memory>

class QAction;

namespace zel {

class RibbonMainWindow;
class RibbonSimpleAction;

// The row of small command buttons in the title row of the main window. The host adds
// simple actions; a narrow button at the right end opens a menu in which the user
// hides or shows single commands and minimises the ribbon. A command is known by its
// name, its action's data() as a string; the names of the hidden commands form the
// list the host stores and restores.
class ZELRIBBON_EXPORT RibbonQuickAccessBar : public QWidget
{
    Q_OBJECT
public:
    // The main window is also the parent widget.
    explicit RibbonQuickAccessBar(RibbonMainWindow *mainWindow);
    ~RibbonQuickAccessBar() override;

    RibbonMainWindow *mainWindow() const;

    // The names of the hidden commands, in the order they were hidden.
    QStringList disabledQuickAccessBarItems() const;
    // The next three change only the list: buttons already made keep their
    // visibility, so a host restores the list before it adds the commands. Names of
    // commands the bar never sees are kept and do nothing.
    void setQuickAccessBarItems(const QStringList &names);
    void hideQuickAccessBarItem(const QString &name);
    // Removes every occurrence of name.
    void showQuickAccessBarItem(const QString &name);

    // Whether command has a button in the bar that the user has not hidden.
    bool isQuickAccessCommand(const QAction *command) const;
    // What the ribbon's context menu does with a command. Adding a command of the bar
    // shows it again and removing one hides it, as its entry in the customise menu
    // does (so the list of hidden names records it); a command from elsewhere joins
    // the bar, checked in the customise menu, until it is removed again.
    void addQuickAccessCommand(RibbonSimpleAction *command);
    void removeQuickAccessCommand(QAction *command);

private slots:
    void onMenuTriggered();
    void onMenuActionTriggered(QAction *entry);

protected:
    void actionEvent(QActionEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonQuickAccessBar)
};

} // namespace zel
