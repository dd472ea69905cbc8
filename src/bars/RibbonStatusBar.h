#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

class QAction;

namespace zel {

class RibbonMainWindow;

// The bar along the bottom of the main window. Actions added to it become widgets by
// their class: a toggle button for a simple action, a text-and-progress display for a
// progress action and a zoom slider for a percentage action (at the right), a
// drop-down button for a menu action (at the left). The login area at the far left
// holds status icons of the host.
class ZELRIBBON_EXPORT RibbonStatusBar : public QWidget
{
    Q_OBJECT
public:
    // The main window is also the parent widget.
    explicit RibbonStatusBar(RibbonMainWindow &mainWindow);
    ~RibbonStatusBar() override;

    // The window the bar belongs to; null once it has been destroyed.
    RibbonMainWindow *mainWindow() const;

    // Appends a host widget to the login area (null and duplicates ignored).
    void addLoginStatusIcon(QWidget *icon);
    // Takes a widget of the login area out and deletes it; any other widget is left
    // alone.
    void removeLoginStatusIcon(QWidget *icon);

    int loginLayoutWidth() const;
    // Width of the login and menu areas together, with a gap of 5.
    int popupLayoutWidth() const;
    int extensionsWidth() const;

    // The widget made for action, null when there is none.
    QWidget *widgetForAction(QAction *action) const;

signals:
    // A widget for an action was added or removed.
    void statusBarChanged();

protected:
    void actionEvent(QActionEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void addActionWidget(QAction *action);
    bool removeActionWidget(QAction *action);
    void layoutNow();
    void updateHeight();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonStatusBar)
};

} // namespace zel
