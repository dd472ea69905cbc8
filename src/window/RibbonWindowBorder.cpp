#include "RibbonWindowBorder.h"
#include "RibbonWindowBorder_p.h"

#include "RibbonPlatform.h"
#include "RibbonWindowDrag_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

const char kItemName[] = "BorderItem";

// How long the items wait after an activation or state change before they show again:
// long enough for the window manager to finish raising or restoring the window.
const int kDelayedUpdateMs = 400;
// Each waiting update is a timer of this name, a child of the border, so that it dies
// with the border (and a test can find it and cut the wait short).
const char kDelayedUpdateName[] = "delayedBorderUpdate";

// The shadow's lines from the window outwards, as alpha of a mid grey.
const int kShadowAlphas[] = {128, 100, 70, 40, 20, 10, 3};

// The items are top-level windows, so something outside the border (a host that deletes
// every top-level widget, say) may destroy one first. The deleter remembers whether the
// item is still alive, and the border skips the ones that are gone.
struct ItemDeleter
{
    QPointer<QWidget> guard;
    template<class T>
    void operator()(T *) const
    {
        delete guard.data();
    }
};

template<class T>
bool isAlive(const std::shared_ptr<T> &item)
{
    const ItemDeleter *deleter = std::get_deleter<ItemDeleter>(item);
    return deleter && deleter->guard;
}

// Runs the border's onUpdateBorders() once, after the delay.
void updateLater(QObject *border)
{
    auto *timer = new QTimer(border);
    timer->setObjectName(QLatin1String(kDelayedUpdateName));
    timer->setSingleShot(true);
    QObject::connect(timer, SIGNAL(timeout()), border, SLOT(onUpdateBorders()));
    QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    timer->start(kDelayedUpdateMs);
}

bool isBorderItem(const QWidget *widget)
{
    return widget && widget->objectName() == QLatin1String(kItemName);
}

} // namespace

// BorderItem

RibbonWindowBorder::BorderItem::BorderItem(QWidget *w, int pos, bool onTop)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
    , position(pos)
    , window(w)
    , pressed(false)
    , closing(false)
    , stayOnTop(onTop)
    , covered(false)
{
    setAttribute(Qt::WA_TranslucentBackground, true);
    // A shadow strip must never take the activation away from its window.
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    setObjectName(QLatin1String(kItemName));
    if (stayOnTop)
        setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);

    if (!windowHasFixedSize()) {
        static const Qt::CursorShape cursors[] = {
            Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor,
            Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor,
        };
        if (position >= Left && position <= BottomLeft)
            setCursor(cursors[position - 1]);
    }

    place();
    syncVisibility();
}

RibbonWindowBorder::BorderItem::~BorderItem() = default;

bool RibbonWindowBorder::BorderItem::windowHasFixedSize() const
{
    const QSizePolicy policy = window->sizePolicy();
    return policy.horizontalPolicy() == QSizePolicy::Fixed
        && policy.verticalPolicy() == QSizePolicy::Fixed;
}

void RibbonWindowBorder::BorderItem::place()
{
    const int s = RibbonPlatform::sizingFrameThickness();
    const int m = window->contentsMargins().left();
    // With no margin the right and bottom items start one pixel beyond the window.
    const QRect r = window->geometry().adjusted(m, m, 1 - m, 1 - m);

    QSize size(s, s);
    QPoint topLeft;
    switch (position) {
    case Left:
        size = QSize(s, r.height());
        topLeft = r.topLeft() - QPoint(s, 0);
        break;
    case TopLeft:
        topLeft = r.topLeft() - QPoint(s, s);
        break;
    case Top:
        size = QSize(r.width(), s);
        topLeft = r.topLeft() - QPoint(0, s);
        break;
    case TopRight:
        topLeft = r.topRight() - QPoint(0, s);
        break;
    case Right:
        size = QSize(s, r.height());
        topLeft = r.topRight();
        break;
    case BottomRight:
        topLeft = r.bottomRight();
        break;
    case Bottom:
        size = QSize(r.width(), s);
        topLeft = r.bottomLeft();
        break;
    case BottomLeft:
        topLeft = r.bottomLeft() - QPoint(s, 0);
        break;
    default:
        return;
    }
    // A strip the window's change leaves in place (the left side when only the width
    // changes, say) keeps its pixels: repainting it would only send them again.
    const QRect placed(topLeft, size.expandedTo(QSize(0, 0)));
    const QRect before = geometry();
    if (placed == before)
        return;
    if (placed.size() != before.size())
        setFixedSize(placed.size());
    if (placed.topLeft() != before.topLeft())
        move(placed.topLeft());
    // A strip that only moves keeps its pixels too, unless they depend on where it lies:
    // while another window is active its mask cuts that window out.
    if (placed.size() != before.size() || !mask().isEmpty() || covered || window != QApplication::activeWindow())
        update();
}

void RibbonWindowBorder::BorderItem::syncVisibility()
{
    const bool shown = !closing && window->isVisible() && !(window->windowState() & Qt::WindowMinimized);
    if (!pressed || !window->isVisible()) {
        // An item that stays up is brought back in front by raising it and repainted,
        // which is what hiding and showing it again comes to. Hiding would unmap a
        // managed window: the window manager lets go of it and takes it in again, for
        // all eight items at every activation of the application. An item that holds
        // the activation still goes through hiding, which hands the activation on.
        if (shown && isVisible() && !isActiveWindow()) {
            raise();
            update();
            return;
        }
        hide();
    }
    if (shown)
        show();
}

void RibbonWindowBorder::BorderItem::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (!(event->buttons() & Qt::LeftButton))
        return;
    pressed = true;
    static const Qt::Edges edges[] = {
        Qt::LeftEdge,  Qt::TopEdge | Qt::LeftEdge,     Qt::TopEdge,    Qt::TopEdge | Qt::RightEdge,
        Qt::RightEdge, Qt::BottomEdge | Qt::RightEdge, Qt::BottomEdge, Qt::BottomEdge | Qt::LeftEdge,
    };
    if (!windowHasFixedSize() && position >= Left && position <= BottomLeft)
        drag.reset(new RibbonWindowDrag(window, edges[position - 1], event->globalPos(),
                                        RibbonWindowDrag::PressBesideWindow));
}

void RibbonWindowBorder::BorderItem::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    drag.reset();
    pressed = false;
    QApplication::setActiveWindow(window);
    window->setFocus();
}

void RibbonWindowBorder::BorderItem::updateMask()
{
    covered = false;
    bool masked = false;
    QRegion region;
    if (window != QApplication::activeWindow()) {
        // Another window is active: leave out whatever part of the item lies under other
        // windows, system frame and caption included, so the shadow never draws on them.
        // This runs on every paint, so it goes over the application's windows, a handful,
        // and never over its widgets, which may be tens of thousands.
        const int s = RibbonPlatform::sizingFrameThickness();
        const int c = RibbonPlatform::captionHeight();
        region = QRegion(rect());
        const QWindow *own = window->windowHandle();
        const QWindowList topLevels = QGuiApplication::topLevelWindows();
        for (QWindow *other : topLevels) {
            if (!other->isVisible() || other == own || isBorderItem(QWidget::find(other->winId())))
                continue;
            QRect g = other->geometry().adjusted(-s, -(c + s), s, s);
            g.moveTopLeft(mapFromGlobal(g.topLeft()));
            if (g.contains(rect())) {
                covered = true;
                break;
            }
            region -= g;
        }
        masked = !covered;
    }
    // Only a changed mask is applied: setting one schedules a repaint, and this runs at
    // the start of every paint.
    if (masked)
        setMask(region);
    else
        clearMask();
}

// The shadow's bands from the window outwards, one pixel each: band i of a side is a line
// along it; band i of a corner is an L, its leg along the side plus the rest of its other
// leg, so that the shared corner pixel is filled once. Filled rectangles blend exactly as
// one-pixel lines do and cost far less to draw.
int RibbonWindowBorder::BorderItem::shadowBand(int i, QRect bands[2]) const
{
    const QRect r = rect();
    const QRect vertical(0, 0, 1, i + 1);
    const QRect horizontal(0, 0, i, 1);
    switch (position) {
    case Left:
        bands[0] = QRect(r.right() - i, r.top(), 1, r.height());
        return 1;
    case Top:
        bands[0] = QRect(r.left(), r.bottom() - i, r.width(), 1);
        return 1;
    case Right:
        bands[0] = QRect(r.left() + i, r.top(), 1, r.height());
        return 1;
    case Bottom:
        bands[0] = QRect(r.left(), r.top() + i, r.width(), 1);
        return 1;
    case TopLeft:
        bands[0] = vertical.translated(r.right() - i, r.bottom() - i);
        bands[1] = horizontal.translated(r.right() - i + 1, r.bottom() - i);
        break;
    case TopRight:
        bands[0] = vertical.translated(r.left() + i, r.bottom() - i);
        bands[1] = horizontal.translated(r.left(), r.bottom() - i);
        break;
    case BottomRight:
        bands[0] = vertical.translated(r.left() + i, r.top());
        bands[1] = horizontal.translated(r.left(), r.top() + i);
        break;
    case BottomLeft:
        bands[0] = vertical.translated(r.right() - i, r.top());
        bands[1] = horizontal.translated(r.right() - i + 1, r.top() + i);
        break;
    default:
        return 0;
    }
    return i > 0 ? 2 : 1;
}

void RibbonWindowBorder::BorderItem::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    updateMask();
    if (covered)
        return;
    if (stayOnTop && (!QApplication::activeWindow() || window->isMaximized()))
        return;

    QPainter p(this);
    QRect bands[2];
    for (int i = 0; i < int(std::size(kShadowAlphas)); ++i) {
        QColor colour(0x80, 0x80, 0x80);
        colour.setAlpha(kShadowAlphas[i]);
        const int n = shadowBand(i, bands);
        for (int b = 0; b < n; ++b)
            p.fillRect(bands[b], colour);
    }
}

// RibbonWindowBorder

RibbonWindowBorder::RibbonWindowBorder(QWidget *window, bool stayOnTop)
    : QObject(window)
    , m_window(window)
    , m_closing(false)
{
    if (!window)
        return;
    for (int position = BorderItem::Left; position <= BorderItem::BottomLeft; ++position) {
        auto *item = new BorderItem(window, position, stayOnTop);
        m_items.append(std::shared_ptr<BorderItem>(item, ItemDeleter{item}));
    }
    connect(QCoreApplication::instance(), SIGNAL(focusChanged(QWidget*, QWidget*)), this,
            SLOT(onFocusChanged(QWidget*, QWidget*)));
    window->installEventFilter(this);
}

RibbonWindowBorder::~RibbonWindowBorder()
{
    // Deleting visible top-level items can move the focus; nothing may reach this
    // half-destroyed border any more.
    if (QCoreApplication::instance())
        QCoreApplication::instance()->disconnect(this);
    if (m_activeWindow && m_activeWindow != m_window)
        m_activeWindow->removeEventFilter(this);
    if (m_window)
        m_window->removeEventFilter(this);
    const auto items = std::move(m_items);
    m_items.clear();
}

void RibbonWindowBorder::placeItems()
{
    for (const auto &item : qAsConst(m_items)) {
        if (isAlive(item)) {
            item->closing = m_closing;
            item->place();
        }
    }
}

void RibbonWindowBorder::update()
{
    for (const auto &item : qAsConst(m_items)) {
        if (isAlive(item))
            item->update();
    }
}

void RibbonWindowBorder::onUpdateBorders()
{
    for (const auto &item : qAsConst(m_items)) {
        if (isAlive(item)) {
            item->closing = m_closing;
            item->syncVisibility();
        }
    }
}

void RibbonWindowBorder::onFocusChanged(QWidget *, QWidget *)
{
    QWidget *active = QApplication::activeWindow();
    if (active == m_activeWindow)
        return;
    // The masks depend on where the active window lies, so follow it around.
    if (m_activeWindow && m_activeWindow != m_window)
        m_activeWindow->removeEventFilter(this);
    m_activeWindow = active;
    if (active && active != m_window)
        active->installEventFilter(this);
    update();
}

bool RibbonWindowBorder::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && m_window) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
            placeItems();
            break;
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ApplicationDeactivate:
            onUpdateBorders();
            break;
        case QEvent::Close:
            // Final: a window shown again after its close keeps its border hidden.
            m_closing = true;
            onUpdateBorders();
            break;
        case QEvent::ActivationChange:
            if (m_window->isActiveWindow() || isBorderItem(QApplication::activeWindow()))
                updateLater(this);
            else
                onUpdateBorders();
            break;
        case QEvent::WindowStateChange:
            if (m_window->windowState() == Qt::WindowMinimized)
                onUpdateBorders();
            else
                updateLater(this);
            break;
        case QEvent::ApplicationActivate:
            updateLater(this);
            break;
        default:
            break;
        }
    } else if (watched == m_activeWindow
               && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) {
        update();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zel
