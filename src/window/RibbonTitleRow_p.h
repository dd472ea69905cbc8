#pragma once

#include "RibbonMenuBar.h"

class QHBoxLayout;
class QPainter;
class QSpacerItem;

namespace zel {

class RibbonMainWindow;
class RibbonQuickAccessBar;
class RibbonSysButton;

// The main window's title row: the system-menu button, the quick-access toolbar, the
// space the title is drawn over, and the minimise, maximise and close buttons. Its
// widgets are children of the window; the row lays them out, shows the ones that
// apply, and paints the title (and the contextual band beside it) on the window.
class RibbonTitleRow
{
public:
    // Makes the widgets and their layout; the window puts the layout on top of its own.
    explicit RibbonTitleRow(RibbonMainWindow *window);
    ~RibbonTitleRow();

    QHBoxLayout *layout() const;
    RibbonQuickAccessBar &quickAccessBar() const;

    // The quick-access toolbar and the system-menu button show only over the main view.
    // Without the title bar none of the widgets show and the row collapses.
    void setShown(bool showTitleBar, bool mainView);
    // The window buttons draw the window's activation and state.
    void windowActivationChanged();
    void windowStateChanged();

    // Over the main view: the title, centred, or beside the contextual band when one is
    // displayed; and the band in the set's colours.
    void paintOverMainView(QPainter &painter, const RibbonMenuBar::ContextBand &context) const;
    // Over the backstage or welcome page: white behind the title, the navigation
    // column's colour carried up into the row. The page lies extraTop lower than the
    // main view; its panes are leftWidth and rightWidth wide.
    void paintOverPage(QPainter &painter, int leftWidth, int rightWidth, int extraTop) const;

private:
    QFont titleFont() const;
    int titleHeight() const;
    void preparePainter(QPainter &painter) const;
    QString titleText() const;

    RibbonMainWindow *m_window;
    QHBoxLayout *m_layout;
    RibbonSysButton *m_sysMenuButton;
    RibbonQuickAccessBar *m_quickAccessBar;
    QSpacerItem *m_spacer;
    RibbonSysButton *m_minimizeButton;
    RibbonSysButton *m_maximizeButton;
    RibbonSysButton *m_closeButton;
    bool m_showTitleBar = true;

    Q_DISABLE_COPY(RibbonTitleRow)
};

} // namespace zel
