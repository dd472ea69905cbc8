#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>

class QWidget;

namespace zel {

// Moves or resizes a top-level window with the mouse: the one implementation behind the
// caption and border drags of the library's windows and the system menu's Move and Size.
//
// The window system is asked first, since it snaps, animates and knows the screens; when
// it declines (some platforms always do), the window follows the mouse by hand. A drag
// begun by a press asks only once the mouse has travelled the platform's drag distance
// with the button held: a window system handed a move on a mere click waits for a
// release that has already happened, and carries the window along until the next click.
//
// While it lasts the drag watches the application's mouse and key events. It ends on the
// release of the button (or on a move without it, should the release go astray); Escape
// puts the window back where it was. Its owner deletes it to end it early.
class RibbonWindowDrag : public QObject
{
public:
    enum Trigger {
        // Begun by a press of the left button on the window, followed until its release.
        // The events go on to their receivers, so the widget that took the press sees
        // the release.
        PressOnWindow,
        // The same for a press on another window that drags this one (a border strip).
        // The window system is not asked: it would start from where it last saw the
        // pointer over the window, not from the press.
        PressBesideWindow,
        // Begun from a menu or a key: starts at once, takes the mouse and the keyboard
        // and ends at the next click or Return.
        NoButton
    };

    // What becomes of a step that would take the window out of its size limits.
    enum LimitRule {
        // The dragged edges stop at the limit and the opposite edges stay where they are.
        ClampToLimits,
        // The step is dropped whole: the window keeps the last step that fitted.
        DropStep
    };

    // edges is empty for a move and names the dragged edges for a resize.
    RibbonWindowDrag(QWidget *window, Qt::Edges edges, const QPoint &globalPos, Trigger trigger);
    ~RibbonWindowDrag() override;

    // A floor under the window's own minimum size.
    void setMinimumSize(const QSize &size);
    void setLimitRule(LimitRule rule);

    // False once the drag has ended.
    bool isActive() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum State {
        Waiting, // pressed, the mouse has not travelled far enough yet
        BySystem,
        ByHand,
        Ended
    };

    void takeOff(const QPoint &globalPos);
    void restoreFromMaximized();
    void follow(const QPoint &globalPos);
    void end();

    QPointer<QWidget> m_window;
    Qt::Edges m_edges;
    QPoint m_anchor;
    QRect m_start;
    Trigger m_trigger;
    LimitRule m_rule = ClampToLimits;
    QSize m_minimum;
    bool m_restoreFirst;
    bool m_grabbed = false;
    State m_state = Waiting;

    Q_DISABLE_COPY(RibbonWindowDrag)
};

} // namespace zel
