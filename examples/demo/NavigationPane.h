#pragma once

#include <QObject>
#include <QPointer>

class QListWidget;
class QTextEdit;
class QTimer;
class QWidget;

namespace zel {
class RibbonChildWindow;
class RibbonWindow;
} // namespace zel

// The editor's "Navigation" side panel: the headings of the current document, in a
// child window docked at the left of the documents. Clicking a heading puts the cursor
// there. The panel's close button hides it; its undock button moves the list into a
// frameless window of its own, and closing that window docks the list back.
class NavigationPane : public QObject
{
    Q_OBJECT
public:
    // The docked panel is made as a child of dockParent, which places it.
    explicit NavigationPane(QWidget *dockParent);
    ~NavigationPane() override;

    zel::RibbonChildWindow *dockedWindow() const;
    // The window the list floats in; null until the first undocking.
    zel::RibbonWindow *floatingWindow() const;
    QListWidget *headings() const;

    // Follows the headings of edit (null: none).
    void setEditor(QTextEdit *edit);

    // Reads the headings again now; after edits they follow a moment later by themselves.
    void refresh();

    bool isShown() const;
    void setShown(bool shown);
    bool isFloating() const;
    void undock();
    void dock();

signals:
    void shownChanged(bool shown);

private:
    void followCursor();
    void moveListTo(QWidget *holder);

    zel::RibbonChildWindow *m_docked = nullptr;
    QPointer<zel::RibbonWindow> m_floating; // a window of the main window, which deletes it
    QListWidget *m_list = nullptr;
    QTimer *m_refresh = nullptr;
    QPointer<QTextEdit> m_edit;
    QList<QMetaObject::Connection> m_editConnections;
    bool m_shown = true;
};
