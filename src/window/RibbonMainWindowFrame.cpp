#include "RibbonMainWindowFrame_p.h"

#include "RibbonApplication.h"
#include "RibbonPlatform.h"
#include "RibbonStyle.h"
#include "RibbonWindowBorder.h"
#include "RibbonWindowDrag_p.h"

#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindowStateChangeEvent>

namespace zel {

namespace {

// Height of the strip along an auto-hidden task bar's edge that makes it slide in.
constexpr int kTaskBarStrip = 12;
// How long the cursor rests in that strip before the task bar is called.
constexpr int kTaskBarDelayMs = 200;

Qt::WindowStates plainState(Qt::WindowStates state)
{
    return state & ~Qt::WindowActive;
}

} // namespace

RibbonMainWindowFrame::RibbonMainWindowFrame(RibbonMainWindow *window)
    : m_window(window)
    , m_border(new RibbonWindowBorder(window, true))
{
    buildSystemMenu();
}

RibbonMainWindowFrame::~RibbonMainWindowFrame() = default;

void RibbonMainWindowFrame::setCaptionWidget(QWidget *widget)
{
    m_captionWidget = widget;
}

int RibbonMainWindowFrame::margin() const
{
    return m_margin;
}

void RibbonMainWindowFrame::updateMargins(int extraTop)
{
    const QRect available = RibbonPlatform::availableGeometry(m_window);
    const QRect g = m_window->geometry();
    const bool fillsScreenHeight = g.top() == available.top() && g.height() == available.height();
    const bool noFrame = fillsScreenHeight || m_window->isMaximized()
                         || (m_window->windowState() & Qt::WindowFullScreen);
    const int m = noFrame ? 0 : RibbonPlatform::sizingFrameThickness();
    m_margin = m;
    m_window->setContentsMargins(m, m + extraTop, m, m);
    // Leave a one-pixel frame line just outside the contents; the rest of the invisible
    // frame belongs to the shadow border.
    m_window->setMask(QRegion(m_window->rect().adjusted(m - 1, m - 1, 1 - m, 1 - m)));
}

RibbonMainWindow::HitArea RibbonMainWindowFrame::hitTest(const QPoint &globalPos) const
{
    const QRect frame = m_window->frameGeometry();
    if (!frame.contains(globalPos))
        return RibbonMainWindow::HitClient;
    RibbonPlatform::FrameRow row = RibbonPlatform::FrameMiddle;
    RibbonPlatform::FrameColumn column = RibbonPlatform::FrameCentre;
    RibbonPlatform::frameCell(frame, globalPos, &row, &column);

    const QPoint local = m_window->mapFromGlobal(globalPos);
    if (row == RibbonPlatform::FrameTop) {
        if (m_window->childAt(local))
            row = RibbonPlatform::FrameMiddle;
    } else if (row == RibbonPlatform::FrameMiddle) {
        // An empty part of the ribbon bar drags the window like the caption.
        if (m_captionWidget && m_window->childAt(local) == m_captionWidget)
            row = RibbonPlatform::FrameTop;
    }
    return row == RibbonPlatform::FrameTop ? RibbonMainWindow::HitCaption : RibbonMainWindow::HitClient;
}

void RibbonMainWindowFrame::setRestoreGeometry(const QRect &geometry)
{
    m_restoreGeometry = geometry;
    // A window saved maximised comes up maximised; the state change restores to the
    // stored geometry later.
    if (geometry.isValid() && !m_window->isVisible() && plainState(m_window->windowState()) == Qt::WindowNoState)
        m_window->setWindowState(m_window->windowState() | Qt::WindowMaximized);
}

QRect RibbonMainWindowFrame::restoreGeometry() const
{
    return m_restoreGeometry;
}

void RibbonMainWindowFrame::windowStateChanged(const QWindowStateChangeEvent &event)
{
    if (!m_restoreGeometry.isValid())
        return;
    const Qt::WindowStates state = m_window->windowState();
    if ((event.oldState() & Qt::WindowMaximized) && !(state & Qt::WindowMinimized)) {
        const QRect geometry = m_restoreGeometry;
        m_restoreGeometry = QRect();
        m_window->setGeometry(geometry);
    } else if (plainState(state) == Qt::WindowNoState) {
        m_window->showMaximized();
    }
}

void RibbonMainWindowFrame::windowMoved()
{
    if (m_lastHitTest == RibbonMainWindow::HitCaption && m_restoreGeometry.isValid()
        && plainState(m_window->windowState()) == Qt::WindowMaximized)
        m_window->showNormal();
}

bool RibbonMainWindowFrame::mousePressed(QMouseEvent *event)
{
    m_lastHitTest = hitTest(event->globalPos());
    if (event->button() != Qt::LeftButton || m_lastHitTest != RibbonMainWindow::HitCaption)
        return false;
    event->accept();
    m_drag.reset(new RibbonWindowDrag(m_window, Qt::Edges(), event->globalPos(), RibbonWindowDrag::PressOnWindow));
    return true;
}

void RibbonMainWindowFrame::mouseMoved(const QMouseEvent &event)
{
    if (!m_window->isMaximized())
        return;
    Qt::Edge edge = Qt::BottomEdge;
    if (!RibbonPlatform::autoHideTaskBar(&edge))
        return;
    QRect strip = m_window->rect();
    switch (edge) {
    case Qt::TopEdge:
        strip.setHeight(kTaskBarStrip);
        break;
    case Qt::LeftEdge:
        strip.setWidth(kTaskBarStrip);
        break;
    case Qt::RightEdge:
        strip.setLeft(strip.right() - kTaskBarStrip);
        break;
    case Qt::BottomEdge:
        strip.setTop(strip.bottom() - kTaskBarStrip);
        break;
    }
    const bool inside = strip.contains(event.pos());
    if (inside != m_taskBarHot)
        QTimer::singleShot(kTaskBarDelayMs, m_window, SLOT(showTaskBar()));
    m_taskBarHot = inside;
}

void RibbonMainWindowFrame::mouseReleased()
{
    m_lastHitTest = RibbonMainWindow::HitClient;
}

bool RibbonMainWindowFrame::mouseDoubleClicked(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || hitTest(event.globalPos()) != RibbonMainWindow::HitCaption)
        return false;
    m_window->showMaximizedRestored();
    return true;
}

void RibbonMainWindowFrame::showSystemMenu(const QPoint &globalPos)
{
    m_systemMenu->popup(globalPos);
}

void RibbonMainWindowFrame::showTaskBar()
{
    if (m_taskBarHot)
        RibbonPlatform::revealTaskBar();
}

void RibbonMainWindowFrame::paintFrameLine(QPainter &painter, int extraTop) const
{
    const QMargins m = m_window->contentsMargins();
    painter.setPen(RibbonApplication::theApp().ribbonStyle().frameBorderColor());
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_window->rect().adjusted(m.left() - 1, m.top() - extraTop - 1, -m.right(), -m.bottom()));
}

void RibbonMainWindowFrame::buildSystemMenu()
{
    RibbonMainWindow *w = m_window;
    m_systemMenu = new QMenu(w);
    m_systemMenu->setObjectName(QStringLiteral("systemMenu"));
    m_restoreAction = m_systemMenu->addAction(RibbonMainWindow::tr("&Restore"), w, SLOT(showNormal()));
    m_restoreAction->setObjectName(QStringLiteral("restoreAction"));
    m_moveAction = m_systemMenu->addAction(RibbonMainWindow::tr("&Move"));
    m_moveAction->setObjectName(QStringLiteral("moveAction"));
    m_sizeAction = m_systemMenu->addAction(RibbonMainWindow::tr("&Size"));
    m_sizeAction->setObjectName(QStringLiteral("sizeAction"));
    m_minimizeAction = m_systemMenu->addAction(RibbonMainWindow::tr("Mi&nimize"), w, SLOT(showMinimized()));
    m_minimizeAction->setObjectName(QStringLiteral("minimizeAction"));
    m_maximizeAction = m_systemMenu->addAction(RibbonMainWindow::tr("Ma&ximize"), w, SLOT(showMaximized()));
    m_maximizeAction->setObjectName(QStringLiteral("maximizeAction"));
    m_systemMenu->addSeparator();
    m_closeAction = m_systemMenu->addAction(RibbonMainWindow::tr("&Close"), w, SLOT(close()));
    m_closeAction->setObjectName(QStringLiteral("closeAction"));
    m_closeAction->setShortcut(QKeySequence(Qt::ALT + Qt::Key_F4));
    // Only a label here: the window system or the host owns the key.
    m_closeAction->setShortcutContext(Qt::WidgetShortcut);
    QFont bold = m_closeAction->font();
    bold.setBold(true);
    m_closeAction->setFont(bold);

    // Move and Size follow the mouse from where it is until the next click or key.
    connect(m_moveAction, &QAction::triggered, this, [this] {
        m_drag.reset(new RibbonWindowDrag(m_window, Qt::Edges(), QCursor::pos(), RibbonWindowDrag::NoButton));
    });
    connect(m_sizeAction, &QAction::triggered, this, [this] {
        m_drag.reset(new RibbonWindowDrag(m_window, Qt::RightEdge | Qt::BottomEdge, QCursor::pos(),
                                          RibbonWindowDrag::NoButton));
    });
    connect(m_systemMenu, &QMenu::aboutToShow, this, [this] { updateSystemMenu(); });
}

void RibbonMainWindowFrame::updateSystemMenu()
{
    const Qt::WindowStates state = m_window->windowState();
    const bool maximized = state & (Qt::WindowMaximized | Qt::WindowFullScreen);
    const bool minimized = state & Qt::WindowMinimized;
    const bool normal = !maximized && !minimized;
    const bool resizable = m_window->minimumSize() != m_window->maximumSize();
    m_restoreAction->setEnabled(!normal);
    m_moveAction->setEnabled(normal);
    m_sizeAction->setEnabled(normal && resizable);
    m_minimizeAction->setEnabled(!minimized);
    m_maximizeAction->setEnabled(!maximized && resizable);
    m_closeAction->setEnabled(true);
}

} // namespace zel
