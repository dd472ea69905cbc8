#pragma once

#include "RibbonAutotestExport_p.h"

#include <QRect>
#include <QString>

#include <functional>

class QStyle;
class QWidget;

namespace zel {

// The library's one door to the window system. Every question that a native desktop
// answers (screen resolution, frame metrics, system generation, window management) is
// asked here, so no other part of the library calls a native API. This implementation
// answers with portable Qt.
class ZELRIBBON_AUTOTEST_EXPORT RibbonPlatform
{
public:
    // Logical resolution of the primary screen in dots per inch. Returns false (and
    // writes 96) when there is no screen yet.
    static bool screenDpi(int *dpiX, int *dpiY);

    // Thickness of a resizable window's sizing frame and height of a system caption,
    // in device-independent pixels at the current screen resolution.
    static int sizingFrameThickness();
    static int captionHeight();

    // The part of the default screen not taken by task bars and docks, in global
    // coordinates; a null rectangle when there is no screen.
    static QRect availableGeometry();

    // Whether the desktop belongs to the generation that introduced translucent frames.
    // Decides the base look and how a maximised frameless window overhangs the work area.
    static bool isVistaOrLater();
    // True only for the generations whose native look the library's default style follows.
    static bool usesVistaLook();

    // Creates the named Qt base style; a name this machine does not offer falls back to
    // "Fusion" so that every machine draws the same.
    static QStyle *createBaseStyle(const QString &name);

    // The part of the widget's screen not taken by task bars and docks; the default
    // screen's for a null widget.
    static QRect availableGeometry(const QWidget *widget);

    // The whole desktop (every screen side by side) in global coordinates; a null
    // rectangle when there is no screen.
    static QRect desktopGeometry();

    // Cells of the three-by-three grid a frameless window is divided into when the
    // system asks what lies under the cursor.
    enum FrameRow { FrameTop, FrameMiddle, FrameBottom };
    enum FrameColumn { FrameLeft, FrameCentre, FrameRight };
    // Locates a global point in a window's frame rectangle. The top row is the sizing
    // frame plus a caption high, except over the system-menu button at its left end;
    // the sizing frame along the sides beside the caption counts as middle row.
    static void frameCell(const QRect &frame, const QPoint &globalPos, FrameRow *row, FrameColumn *column);

    // Hand the window to the window system for a move or resize that follows the mouse
    // until the button is released. False when the window system declines; the caller
    // then moves or resizes by itself.
    static bool startSystemMove(QWidget *window);
    static bool startSystemResize(QWidget *window, Qt::Edges edges);
    // Answers the two requests above in place of the window system (edges are empty for
    // a move), so that tests can play a window system that accepts. An empty function
    // hands the requests back to the window system.
    using SystemDragHandler = std::function<bool(QWidget *window, Qt::Edges edges)>;
    static void setSystemDragHandler(const SystemDragHandler &handler);

    // Where the mouse cursor is, in global coordinates, for painting a hover look.
    // Where asking costs a round trip to a display server, the answer is kept while the
    // application only paints, so that one pass over many widgets asks once; any other
    // event (a mouse event among them) drops it. Elsewhere this is QCursor::pos().
    static QPoint cursorPos();
    // Makes cursorPos() keep its answer as it does under X11 (true) or always ask (false),
    // whatever the platform, so that tests can watch the kept answer; the platform
    // decides again after resetCursorPosCaching().
    static void setCursorPosCaching(bool keep);
    static void resetCursorPosCaching();

    // Raises the window above the others and gives it the input focus.
    static void bringToFront(QWidget *window);

    // Whether the desktop's task bar hides itself until the cursor touches its edge,
    // and on which edge of the screen it lies.
    static bool autoHideTaskBar(Qt::Edge *edge);
    // Makes an auto-hidden task bar slide in over a maximised window.
    static void revealTaskBar();

private:
    RibbonPlatform() = delete;
};

} // namespace zel
