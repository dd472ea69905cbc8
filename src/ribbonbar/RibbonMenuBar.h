#pragma once

#include "zelribbon_export.h"

#include <QColor>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

class QAction;

namespace zel {

class RibbonAction;
class RibbonButtonMain;
class RibbonCategoriesPanelAction;
class RibbonCategoryPanelsProxy;
class RibbonContextCategoryPanel;
class RibbonContextCategoryPanelAction;
class RibbonMainWindow;
class RibbonMenuBarButton;

// The ribbon as it sits in the main window: a row of tab buttons (the File button in
// front, a few command buttons at the right end) above the panel of the current tab.
// Tabs are given as RibbonCategoriesPanelAction with QWidget::addAction; the bar keeps
// exactly one of them current while pinned, and owns the minimise/pin mechanism and
// the display of contextual tab sets.
class ZELRIBBON_EXPORT RibbonMenuBar : public QWidget
{
    Q_OBJECT
public:
    // The main window is also the parent widget.
    explicit RibbonMenuBar(RibbonMainWindow &window);
    ~RibbonMenuBar() override;

    RibbonMainWindow &ribbonMainWindow() const;
    bool isMWMaximized() const;

    // Minimised: the panel leaves the bar and opens as a popup when a tab is clicked.
    bool isRibbonMinimized() const;
    void setMinimizeRibbon(bool minimize);

    RibbonCategoryPanelsProxy *categoryPanels() const;
    RibbonButtonMain *mainMenuButton() const;
    // The tab button showing the tab, null when none.
    RibbonMenuBarButton *menuBarButton(RibbonCategoriesPanelAction *tab) const;
    // The action behind the collapse/pin button (shortcut Ctrl+F1).
    QAction *collapseRibbonAction() const;

    RibbonContextCategoryPanel &ribbonContextCategoryPanel() const;
    // The contextual tab set now displayed, null when none.
    RibbonContextCategoryPanelAction *displayedContextPanel() const;
    // Unites into rect the global rectangles of the displayed set's tab buttons; leaves
    // rect untouched when no set is displayed.
    void displayedContextPanelRect(QRect &rect) const;
    // The displayed set's band as a plain value for the title row above the bar to paint:
    // the global rectangle over the set's tab buttons, the set's colours and caption.
    // The rectangle is null when no set is displayed.
    struct ContextBand
    {
        QRect rect;
        QColor backgroundColor;
        QColor topColor;
        QColor textColor;
        QString text;
    };
    ContextBand contextBand() const;

    void setHelpAction(RibbonAction *action);
    RibbonAction *helpAction() const;
    // A RibbonCatComboAction shown as a combo box at the right end of the tab row.
    void setFindComboAction(RibbonAction *action);
    RibbonAction *findComboAction() const;
    // A RibbonCatMenuAction shown beside the find combo, only while one is set.
    void setFindAction(RibbonAction *action);
    RibbonAction *findAction() const;

    // The tab last made current by a click on its button.
    RibbonAction *lastClickedAction() const;
    void setLastClickedAction(RibbonAction *action);

signals:
    void contextRibbonChanged();

public slots:
    // Only registered sets are shown; showing one hides the one displayed before.
    void showContextPanelAction(RibbonContextCategoryPanelAction *set);
    void hideContextPanelAction(RibbonContextCategoryPanelAction *set);

    void ribbonActionChanged();
    void pinRibbon();
    void minimizeRibbon();
    // Closes the popup panel of a minimised ribbon.
    void collapse();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void actionEvent(QActionEvent *event) override;
    void addPanelAction(RibbonCategoriesPanelAction *tab);
    void removePanelAction(RibbonCategoriesPanelAction *tab);
    void ensureChecked();

private:
    void updateCollapseRibbonAction();
    void removeTab(QAction *tab);
    void insertBeforeCollapseButton(QWidget *widget);
    void replaceCommandAction(QAction *oldAction, RibbonAction *newAction);

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonMenuBar)
};

} // namespace zel
