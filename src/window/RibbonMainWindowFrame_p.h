#pragma once

#include "RibbonMainWindow.h"

#include <QObject>
#include <QPointer>
#include <QRect>

#include <memory>

class QAction;
class QMenu;
class QMouseEvent;
class QPainter;
class QWindowStateChangeEvent;

namespace zel {

class RibbonWindowBorder;
class RibbonWindowDrag;

// Everything of the main window that is about the window rather than its contents: the
// invisible frame around the visible window with the mask that leaves one line of it,
// the shadow border outside, the hit areas that drag the window, caption drags, the
// system menu with its Move and Size, the geometry a maximised window restores to, and
// an auto-hidden task bar. The window hands it the events these depend on.
class RibbonMainWindowFrame : public QObject
{
public:
    explicit RibbonMainWindowFrame(RibbonMainWindow *window);
    ~RibbonMainWindowFrame() override;

    // The widget whose empty parts drag the window like the caption (the ribbon bar).
    void setCaptionWidget(QWidget *widget);

    // Width of the invisible frame now.
    int margin() const;
    // Recomputes the frame and the mask after a change of view, size, place or state.
    // The contents start extraTop lower than the frame.
    void updateMargins(int extraTop);
    // Which area the global point lies in (caption: the top row outside its widgets and
    // the empty parts of the caption widget).
    RibbonMainWindow::HitArea hitTest(const QPoint &globalPos) const;

    void setRestoreGeometry(const QRect &geometry);
    QRect restoreGeometry() const;

    // The window's state changed: a window leaving its maximised state returns to the
    // restore geometry once; a normal window that has one is maximised.
    void windowStateChanged(const QWindowStateChangeEvent &event);
    // The window moved: dragging the caption of a maximised window restores it.
    void windowMoved();

    // A press on the caption starts dragging the window; true when the press was taken.
    bool mousePressed(QMouseEvent *event);
    // Watches the cursor near an auto-hidden task bar of a maximised window.
    void mouseMoved(const QMouseEvent &event);
    void mouseReleased();
    // A double click on the caption maximises or restores; true when taken.
    bool mouseDoubleClicked(const QMouseEvent &event);

    void showSystemMenu(const QPoint &globalPos);
    // Reveals an auto-hidden task bar while the cursor touches its edge.
    void showTaskBar();

    // The one-pixel frame line just outside the contents.
    void paintFrameLine(QPainter &painter, int extraTop) const;

private:
    void buildSystemMenu();
    void updateSystemMenu();

    RibbonMainWindow *m_window;
    RibbonWindowBorder *m_border;
    QPointer<QWidget> m_captionWidget;
    int m_margin = 0;
    QRect m_restoreGeometry;
    RibbonMainWindow::HitArea m_lastHitTest = RibbonMainWindow::HitClient;
    bool m_taskBarHot = false;
    std::unique_ptr<RibbonWindowDrag> m_drag;

    QMenu *m_systemMenu = nullptr;
    QAction *m_restoreAction = nullptr;
    QAction *m_moveAction = nullptr;
    QAction *m_sizeAction = nullptr;
    QAction *m_minimizeAction = nullptr;
    QAction *m_maximizeAction = nullptr;
    QAction *m_closeAction = nullptr;

    Q_DISABLE_COPY(RibbonMainWindowFrame)
};

} // namespace zel
