#include "RibbonWindowDrag_p.h"

#include "RibbonPlatform.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>

namespace zel {

namespace {

// The rectangle with its dragged edges moved by delta, before any limit.
QRect draggedGeometry(const QRect &start, Qt::Edges edges, const QPoint &delta)
{
    QRect r = start;
    if (edges & Qt::LeftEdge)
        r.setLeft(r.left() + delta.x());
    else if (edges & Qt::RightEdge)
        r.setRight(r.right() + delta.x());
    if (edges & Qt::TopEdge)
        r.setTop(r.top() + delta.y());
    else if (edges & Qt::BottomEdge)
        r.setBottom(r.bottom() + delta.y());
    return r;
}

// One dimension: the length bounded by the limits (the minimum wins over a smaller
// maximum), grown or shrunk from the end that is not dragged.
void limitSpan(int *first, int *last, bool firstDragged, int minimum, int maximum)
{
    const int length = std::max(minimum, std::min(*last - *first + 1, maximum));
    if (firstDragged)
        *first = *last - length + 1;
    else
        *last = *first + length - 1;
}

// The geometry that dragging the edges of start by delta gives, each dragged dimension
// bounded by the limits with the opposite edge kept in place.
QRect resizedGeometry(const QRect &start, Qt::Edges edges, const QPoint &delta, const QSize &minimum,
                      const QSize &maximum)
{
    const QRect r = draggedGeometry(start, edges, delta);
    int left = r.left(), right = r.right(), top = r.top(), bottom = r.bottom();
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        limitSpan(&left, &right, edges.testFlag(Qt::LeftEdge), minimum.width(), maximum.width());
    if (edges & (Qt::TopEdge | Qt::BottomEdge))
        limitSpan(&top, &bottom, edges.testFlag(Qt::TopEdge), minimum.height(), maximum.height());
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

RibbonWindowDrag::RibbonWindowDrag(QWidget *window, Qt::Edges edges, const QPoint &globalPos, Trigger trigger)
    : m_window(window)
    , m_edges(edges)
    , m_anchor(globalPos)
    , m_start(window ? window->geometry() : QRect())
    , m_trigger(trigger)
    , m_restoreFirst(window && !edges && trigger == PressOnWindow && window->isMaximized())
{
    if (!window) {
        m_state = Ended;
        return;
    }
    qApp->installEventFilter(this);
    if (trigger == NoButton)
        takeOff(globalPos);
}

RibbonWindowDrag::~RibbonWindowDrag()
{
    end();
}

void RibbonWindowDrag::setMinimumSize(const QSize &size)
{
    m_minimum = size;
}

void RibbonWindowDrag::setLimitRule(LimitRule rule)
{
    m_rule = rule;
}

bool RibbonWindowDrag::isActive() const
{
    return m_state != Ended;
}

void RibbonWindowDrag::takeOff(const QPoint &globalPos)
{
    const bool bySystem = m_trigger != PressBesideWindow
                          && (m_edges ? RibbonPlatform::startSystemResize(m_window, m_edges)
                                      : RibbonPlatform::startSystemMove(m_window));
    if (bySystem) {
        // Without a button there is no release to wait for: the drag is the system's now.
        if (m_trigger == NoButton)
            end();
        else
            m_state = BySystem;
        return;
    }

    m_state = ByHand;
    if (m_trigger == NoButton) {
        m_window->grabMouse(m_edges ? Qt::SizeFDiagCursor : Qt::SizeAllCursor);
        m_window->grabKeyboard();
        m_grabbed = true;
    }
    if (m_restoreFirst)
        restoreFromMaximized();
    follow(globalPos);
}

void RibbonWindowDrag::restoreFromMaximized()
{
    // The window comes back to its normal size with the cursor at the same relative
    // place on the caption.
    const QPoint local = m_anchor - m_start.topLeft();
    const double fx = m_start.width() > 0 ? double(local.x()) / m_start.width() : 0.5;
    // Asked while the window is still maximised: afterwards it answers with the geometry
    // it has until the window system applies the new state.
    const QRect normal = m_window->normalGeometry();
    const QSize size = normal.isValid() ? normal.size() : m_window->size();
    m_window->showNormal();
    m_start = QRect(QPoint(m_anchor.x() - int(fx * size.width()), m_anchor.y() - local.y()), size);
}

void RibbonWindowDrag::follow(const QPoint &globalPos)
{
    const QPoint delta = globalPos - m_anchor;
    if (!m_edges) {
        m_window->move(m_start.topLeft() + delta);
        return;
    }
    const QSize minimum = m_window->minimumSize().expandedTo(m_minimum);
    const QRect r = resizedGeometry(m_start, m_edges, delta, minimum, m_window->maximumSize());
    if (m_rule == DropStep && r.size() != draggedGeometry(m_start, m_edges, delta).size())
        return;
    m_window->setGeometry(r);
}

void RibbonWindowDrag::end()
{
    if (m_state == Ended)
        return;
    m_state = Ended;
    if (QCoreApplication::instance())
        QCoreApplication::instance()->removeEventFilter(this);
    if (m_grabbed && m_window) {
        m_window->releaseMouse();
        m_window->releaseKeyboard();
    }
    m_grabbed = false;
}

bool RibbonWindowDrag::eventFilter(QObject *watched, QEvent *event)
{
    if (m_state == Ended || !m_window)
        return QObject::eventFilter(watched, event);
    // A drag begun without a button has the mouse and the keyboard to itself.
    const bool owned = m_trigger == NoButton;

    switch (event->type()) {
    case QEvent::MouseMove: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (!owned && !(mouse->buttons() & Qt::LeftButton)) {
            // The release went astray: the window must not stay glued to the cursor.
            end();
            break;
        }
        if (m_state == Waiting) {
            if ((mouse->globalPos() - m_anchor).manhattanLength() >= QApplication::startDragDistance())
                takeOff(mouse->globalPos());
        } else if (m_state == ByHand) {
            follow(mouse->globalPos());
        }
        return owned;
    }
    case QEvent::MouseButtonRelease:
        if (!owned)
            end();
        break;
    case QEvent::MouseButtonPress:
        if (owned) {
            end();
            return true;
        }
        break;
    case QEvent::KeyPress: {
        if (m_state != ByHand)
            break;
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape) {
            m_window->setGeometry(m_start);
            end();
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            end();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zel
