#include "RibbonWindow.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonStyle.h"
#include "RibbonWindowDrag_p.h"
#include "RibbonWindowImages_p.h"

#include <QCursor>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygon>
#include <QRegion>

#include <boost/mpl/list.hpp>
#include <boost/statechart/custom_reaction.hpp>
#include <boost/statechart/event.hpp>
#include <boost/statechart/simple_state.hpp>
#include <boost/statechart/state_machine.hpp>

#include <algorithm>
#include <memory>

namespace zel {

namespace sc = boost::statechart;
namespace mpl = boost::mpl;

namespace {

// Border areas in hit-test order: the first one containing the cursor wins.
const int kBorderAreas[] = {
    Qt::AlignTop,
    Qt::AlignTop | Qt::AlignRight,
    Qt::AlignRight,
    Qt::AlignBottom | Qt::AlignRight,
    Qt::AlignBottom,
    Qt::AlignBottom | Qt::AlignLeft,
    Qt::AlignLeft,
    Qt::AlignTop | Qt::AlignLeft,
};

// Below this size the frame pieces would overlap, so the window has no border areas and
// cannot be resized smaller.
const int kMinFrameWidth = 2 * RibbonWindow::s_BorderSize;
const int kMinFrameHeight = RibbonWindow::s_TopBorderSize + RibbonWindow::s_BorderSize;

QRect borderAreaRect(const QRect &g, int area)
{
    if (g.isNull() || g.isEmpty() || !g.isValid() || g.width() < kMinFrameWidth
        || g.height() < kMinFrameHeight)
        return QRect();

    const int b = RibbonWindow::s_BorderSize;
    const int t = RibbonWindow::s_TopBorderSize;
    const int w = g.width();
    const int h = g.height();
    switch (area) {
    case Qt::AlignTop:
        return g.adjusted(b, 0, -b, t - h);
    case Qt::AlignTop | Qt::AlignRight:
        return g.adjusted(w - b, 0, 0, t - h);
    case Qt::AlignRight:
        return g.adjusted(w - b, t, 0, -b);
    case Qt::AlignBottom | Qt::AlignRight:
        return g.adjusted(w - b, h - b, 0, 0);
    case Qt::AlignBottom:
        return g.adjusted(b, h - b, -b, 0);
    case Qt::AlignBottom | Qt::AlignLeft:
        return g.adjusted(0, h - b, b - w, 0);
    case Qt::AlignLeft:
        return g.adjusted(0, t, b - w, -b);
    case Qt::AlignTop | Qt::AlignLeft:
        return g.adjusted(0, 0, b - w, t - h);
    default:
        return QRect();
    }
}

int borderAreaAt(const QRect &geometry, const QPoint &global)
{
    for (int area : kBorderAreas) {
        if (borderAreaRect(geometry, area).contains(global))
            return area;
    }
    return 0;
}

Qt::Edges edgesOfArea(int area)
{
    Qt::Edges edges;
    if (area & Qt::AlignLeft)
        edges |= Qt::LeftEdge;
    else if (area & Qt::AlignRight)
        edges |= Qt::RightEdge;
    if (area & Qt::AlignTop)
        edges |= Qt::TopEdge;
    else if (area & Qt::AlignBottom)
        edges |= Qt::BottomEdge;
    return edges;
}

Qt::CursorShape cursorForArea(int area)
{
    switch (area) {
    case Qt::AlignTop:
    case Qt::AlignBottom:
        return Qt::SizeVerCursor;
    case Qt::AlignLeft:
    case Qt::AlignRight:
        return Qt::SizeHorCursor;
    case Qt::AlignTop | Qt::AlignRight:
    case Qt::AlignBottom | Qt::AlignLeft:
        return Qt::SizeBDiagCursor;
    case Qt::AlignBottom | Qt::AlignRight:
    case Qt::AlignTop | Qt::AlignLeft:
        return Qt::SizeFDiagCursor;
    default:
        return Qt::ArrowCursor;
    }
}

const RibbonStyle &ribbonPalette()
{
    return RibbonApplication::theApp().ribbonStyle();
}

} // namespace

// The mouse state machine. The window's handlers only wrap the Qt event and hand it
// here; the current state decides what a press, move or release means.
class RibbonWindow::Events
{
public:
    struct EvtMousePress : sc::event<EvtMousePress>
    {
        explicit EvtMousePress(QMouseEvent *e) : event(e) {}
        QMouseEvent *event;
    };
    struct EvtMouseMove : sc::event<EvtMouseMove>
    {
        explicit EvtMouseMove(QMouseEvent *e) : event(e) {}
        QMouseEvent *event;
    };
    struct EvtMouseRelease : sc::event<EvtMouseRelease>
    {
        explicit EvtMouseRelease(QMouseEvent *e) : event(e) {}
        QMouseEvent *event;
    };
    struct EvtMouseDoubleClick : sc::event<EvtMouseDoubleClick>
    {
        explicit EvtMouseDoubleClick(QMouseEvent *e) : event(e) {}
        QMouseEvent *event;
    };

    struct Main;
    struct Idle;
    struct MoveWindow;
    struct ResizeWindow;
    struct SysMinimize;
    struct SysMaximizeRestore;
    struct SysClose;

    struct StateMachine : sc::state_machine<StateMachine, Main>
    {
        explicit StateMachine(Events &e) : events(e) {}
        Events &events;
    };

    // Everything an inner state does not handle ends here and is discarded.
    struct Main : sc::simple_state<Main, StateMachine, Idle>
    {
    };

    struct Idle : sc::simple_state<Idle, Main>
    {
        using reactions = mpl::list<sc::custom_reaction<EvtMousePress>,
                                    sc::custom_reaction<EvtMouseMove>,
                                    sc::custom_reaction<EvtMouseDoubleClick>>;
        sc::result react(const EvtMousePress &evt);
        sc::result react(const EvtMouseMove &evt);
        sc::result react(const EvtMouseDoubleClick &evt);
    };

    // The drag follows the mouse by itself; the two dragging states bound its life, so
    // leaving them ends it.
    struct MoveWindow : sc::simple_state<MoveWindow, Main>
    {
        using reactions = mpl::list<sc::custom_reaction<EvtMousePress>,
                                    sc::custom_reaction<EvtMouseMove>,
                                    sc::custom_reaction<EvtMouseRelease>>;
        sc::result react(const EvtMousePress &evt);
        sc::result react(const EvtMouseMove &evt);
        sc::result react(const EvtMouseRelease &evt);

        std::unique_ptr<RibbonWindowDrag> drag;
    };

    struct ResizeWindow : sc::simple_state<ResizeWindow, Main>
    {
        using reactions = mpl::list<sc::custom_reaction<EvtMousePress>,
                                    sc::custom_reaction<EvtMouseMove>,
                                    sc::custom_reaction<EvtMouseRelease>>;
        sc::result react(const EvtMousePress &evt);
        sc::result react(const EvtMouseMove &evt);
        sc::result react(const EvtMouseRelease &evt);

        int area = 0;
        std::unique_ptr<RibbonWindowDrag> drag;
    };

    // A system button acts on release, and only when released over itself.
    struct SysMinimize : sc::simple_state<SysMinimize, Main>
    {
        using reactions = sc::custom_reaction<EvtMouseRelease>;
        sc::result react(const EvtMouseRelease &evt);
    };

    struct SysMaximizeRestore : sc::simple_state<SysMaximizeRestore, Main>
    {
        using reactions = sc::custom_reaction<EvtMouseRelease>;
        sc::result react(const EvtMouseRelease &evt);
    };

    struct SysClose : sc::simple_state<SysClose, Main>
    {
        using reactions = sc::custom_reaction<EvtMouseRelease>;
        sc::result react(const EvtMouseRelease &evt);
    };

    explicit Events(RibbonWindow *w);
    ~Events();

    // The window counts as maximised while it remembers a geometry to return to.
    bool isMaximized() const { return !restoreGeometry.isEmpty(); }
    void toggleMaximized();

    RibbonWindow *window;
    StateMachine machine;
    QRect restoreGeometry;
};

RibbonWindow::Events::Events(RibbonWindow *w)
    : window(w)
    , machine(*this)
{
    machine.initiate();
}

RibbonWindow::Events::~Events()
{
    machine.terminate();
}

void RibbonWindow::Events::toggleMaximized()
{
    if (isMaximized()) {
        const QRect target = restoreGeometry;
        restoreGeometry = QRect();
        window->setGeometry(target);
        return;
    }
    const QRect available = RibbonPlatform::availableGeometry();
    if (available.isEmpty())
        return;
    // The frame falls outside the work area so that only the content shows. Newer
    // desktops keep the bottom edge one pixel inside, which leaves an auto-hidden task
    // bar a line to react to.
    const int b = s_BorderSize;
    const QRect target = RibbonPlatform::isVistaOrLater() ? available.adjusted(-b, -b, b, -1)
                                                          : available.adjusted(-b, -b, b, b);
    restoreGeometry = window->geometry();
    window->setGeometry(target);
}

// Idle

sc::result RibbonWindow::Events::Idle::react(const EvtMousePress &evt)
{
    Events &events = outermost_context().events;
    RibbonWindow *w = events.window;
    const QMouseEvent *e = evt.event;
    if (e->button() != Qt::LeftButton)
        return discard_event();

    const QPoint pos = e->pos();
    if (w->captionRect().contains(pos)) {
        if (events.isMaximized())
            return discard_event();
        // The next state needs the press too, to take its anchor from it.
        post_event(evt);
        return transit<MoveWindow>();
    }
    if (w->sysMinimizeRect().contains(pos))
        return transit<SysMinimize>();
    if (w->sysMaximizeRestoreRect().contains(pos))
        return transit<SysMaximizeRestore>();
    if (w->sysCloseRect().contains(pos))
        return transit<SysClose>();
    if (!events.isMaximized() && borderAreaAt(w->geometry(), e->globalPos()) != 0) {
        post_event(evt);
        return transit<ResizeWindow>();
    }
    return discard_event();
}

sc::result RibbonWindow::Events::Idle::react(const EvtMouseMove &evt)
{
    Events &events = outermost_context().events;
    if (events.isMaximized())
        return discard_event();
    RibbonWindow *w = events.window;
    w->setCursor(cursorForArea(borderAreaAt(w->geometry(), evt.event->globalPos())));
    return discard_event();
}

sc::result RibbonWindow::Events::Idle::react(const EvtMouseDoubleClick &evt)
{
    Events &events = outermost_context().events;
    const QMouseEvent *e = evt.event;
    if (e->button() == Qt::LeftButton && events.window->captionRect().contains(e->pos()))
        events.toggleMaximized();
    return discard_event();
}

// MoveWindow

sc::result RibbonWindow::Events::MoveWindow::react(const EvtMousePress &evt)
{
    drag.reset(new RibbonWindowDrag(outermost_context().events.window, Qt::Edges(),
                                    evt.event->globalPos(), RibbonWindowDrag::PressOnWindow));
    return discard_event();
}

sc::result RibbonWindow::Events::MoveWindow::react(const EvtMouseMove &evt)
{
    // Without the button the release went elsewhere: the gesture is over.
    if (!(evt.event->buttons() & Qt::LeftButton))
        return transit<Idle>();
    return discard_event();
}

sc::result RibbonWindow::Events::MoveWindow::react(const EvtMouseRelease &)
{
    return transit<Idle>();
}

// ResizeWindow

sc::result RibbonWindow::Events::ResizeWindow::react(const EvtMousePress &evt)
{
    if (evt.event->button() != Qt::LeftButton)
        return transit<Idle>();
    RibbonWindow *w = outermost_context().events.window;
    area = borderAreaAt(w->geometry(), evt.event->globalPos());
    drag.reset();
    if (area == 0)
        return discard_event();
    drag.reset(new RibbonWindowDrag(w, edgesOfArea(area), evt.event->globalPos(),
                                    RibbonWindowDrag::PressOnWindow));
    drag->setMinimumSize(QSize(kMinFrameWidth, kMinFrameHeight));
    // A step that would go below the minimum is dropped whole rather than clamped, so
    // the edge stops where the last acceptable step left it.
    drag->setLimitRule(RibbonWindowDrag::DropStep);
    return discard_event();
}

sc::result RibbonWindow::Events::ResizeWindow::react(const EvtMouseMove &evt)
{
    if (!(evt.event->buttons() & Qt::LeftButton))
        return transit<Idle>();
    return discard_event();
}

sc::result RibbonWindow::Events::ResizeWindow::react(const EvtMouseRelease &)
{
    return transit<Idle>();
}

// System buttons

sc::result RibbonWindow::Events::SysMinimize::react(const EvtMouseRelease &evt)
{
    if (evt.event->button() != Qt::LeftButton)
        return discard_event();
    RibbonWindow *w = outermost_context().events.window;
    if (w->sysMinimizeRect().contains(evt.event->pos()))
        w->showMinimized();
    return transit<Idle>();
}

sc::result RibbonWindow::Events::SysMaximizeRestore::react(const EvtMouseRelease &evt)
{
    if (evt.event->button() != Qt::LeftButton)
        return discard_event();
    Events &events = outermost_context().events;
    if (events.window->sysMaximizeRestoreRect().contains(evt.event->pos()))
        events.toggleMaximized();
    return transit<Idle>();
}

sc::result RibbonWindow::Events::SysClose::react(const EvtMouseRelease &evt)
{
    if (evt.event->button() != Qt::LeftButton)
        return discard_event();
    RibbonWindow *w = outermost_context().events.window;
    if (w->sysCloseRect().contains(evt.event->pos()))
        w->close();
    return transit<Idle>();
}

// RibbonWindow

RibbonWindow::RibbonWindow()
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowSystemMenuHint)
{
    init();
}

RibbonWindow::RibbonWindow(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    init();
}

RibbonWindow::~RibbonWindow() = default;

void RibbonWindow::init()
{
    m_events.reset(new Events(this));
    // Cursor shapes and the hover highlight of the buttons need moves without a button.
    setMouseTracking(true);
    connect(&RibbonApplication::theApp(), SIGNAL(ribbonStyleChanged()), this,
            SLOT(ribbonStyleChanged()));
    ribbonStyleChanged();
    setContentsMargins(s_BorderSize, captionHeight(), s_BorderSize, s_BorderSize);
}

int RibbonWindow::captionHeight() const
{
    return std::max(QFontMetrics(font()).height(), s_SysIconSize) + 17;
}

QRect RibbonWindow::captionRect() const
{
    const int left = s_BorderSize + s_SysIconSize + s_SysSpacing;
    return QRect(left, s_TopBorderSize, width() - 96,
                 std::max(QFontMetrics(font()).height(), s_SysIconSize));
}

QRect RibbonWindow::sysMinimizeRect() const
{
    return QRect(width() - 67, s_TopBorderSize, s_SysBtnSize, s_SysBtnSize);
}

QRect RibbonWindow::sysMaximizeRestoreRect() const
{
    return QRect(width() - 45, s_TopBorderSize, s_SysBtnSize, s_SysBtnSize);
}

QRect RibbonWindow::sysCloseRect() const
{
    return QRect(width() - 23, s_TopBorderSize, s_SysBtnSize, s_SysBtnSize);
}

void RibbonWindow::ribbonStyleChanged()
{
    QPalette pal = palette();
    pal.setColor(QPalette::Window, ribbonPalette().mainClientColor());
    setPalette(pal);
    update();
}

void RibbonWindow::mousePressEvent(QMouseEvent *event)
{
    m_events->machine.process_event(Events::EvtMousePress(event));
    update();
}

void RibbonWindow::mouseMoveEvent(QMouseEvent *event)
{
    m_events->machine.process_event(Events::EvtMouseMove(event));
    update();
}

void RibbonWindow::mouseReleaseEvent(QMouseEvent *event)
{
    m_events->machine.process_event(Events::EvtMouseRelease(event));
    update();
}

void RibbonWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_events->machine.process_event(Events::EvtMouseDoubleClick(event));
    update();
}

void RibbonWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Stepped corners, one to four pixels deep.
    const int w = width();
    const int h = height();
    const QPolygon outline({
        {4, 0}, {w - 4, 0}, {w - 4, 1}, {w - 2, 1}, {w - 2, 2}, {w - 1, 2}, {w - 1, 4},
        {w, 4}, {w, h - 4}, {w - 1, h - 4}, {w - 1, h - 2}, {w - 2, h - 2}, {w - 2, h - 1},
        {w - 4, h - 1}, {w - 4, h}, {4, h}, {4, h - 1}, {2, h - 1}, {2, h - 2}, {1, h - 2},
        {1, h - 4}, {0, h - 4}, {0, 4}, {1, 4}, {1, 2}, {2, 2}, {2, 1}, {4, 1}, {4, 0},
    });
    setMask(QRegion(outline, Qt::OddEvenFill));
}

void RibbonWindow::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);

    const RibbonStyle &style = ribbonPalette();
    const int c = captionHeight();
    const int w = width();
    const int h = height();
    const int b = s_BorderSize;
    namespace F = WindowImages::Frame;
    const int k = isActiveWindow() ? 0 : F::InactiveHalf;

    QPainter p(this);
    // The caption band and the bottom edge are three-slices of their images with caps as
    // wide as the border; each side stretches one row of the border image. A missing
    // image simply leaves its piece out.
    RibbonPaint::drawThreeSlice(p, QRect(0, 0, w, c), style.mainBorderCaption(),
                                QRect(k, 0, F::HalfWidth, F::CaptionHeight), b, b);
    const QPixmap &border = style.mainBorder();
    RibbonPaint::drawPart(p, QRect(0, c, b, h - b - c), border, QRect(k, F::SideRow, F::EndWidth, 1));
    RibbonPaint::drawPart(p, QRect(w - b, c, b, h - b - c), border, QRect(k + F::RightEndX, F::SideRow, F::EndWidth, 1));
    RibbonPaint::drawThreeSlice(p, QRect(0, h - b, w, b), border,
                                QRect(k, F::BottomRow, F::HalfWidth, F::BottomHeight), b, b);

    const int lineHeight = std::max(fontMetrics().height(), s_SysIconSize);
    const QIcon icon = windowIcon();
    if (!icon.isNull()) {
        const QPixmap pm = icon.pixmap(QSize(s_SysIconSize, s_SysIconSize),
                                       isEnabled() ? QIcon::Normal : QIcon::Disabled);
        if (!pm.isNull()) {
            QRect target(QPoint(), pm.size() / pm.devicePixelRatio());
            target.moveCenter(QRect(b, s_TopBorderSize, s_SysIconSize, lineHeight).center());
            p.drawPixmap(target, pm);
        }
    }

    const QRect titleRect = captionRect();
    const QString title =
        fontMetrics().elidedText(windowTitle(), Qt::ElideRight, titleRect.width());
    if (!title.isEmpty()) {
        p.setPen(isActiveWindow() ? style.activeTitleTextColor() : style.inactiveTitleTextColor());
        p.drawText(titleRect, Qt::AlignLeft | Qt::AlignVCenter, title);
    }

    const QPoint cursor = mapFromGlobal(QCursor::pos());
    const Events::StateMachine &machine = m_events->machine;
    const struct
    {
        QRect rect;
        bool pressed;
        const QPixmap &icon;
    } buttons[] = {
        {sysMinimizeRect(), machine.state_cast<const Events::SysMinimize *>() != nullptr,
         style.sysBtnMinimizeSmall()},
        {sysMaximizeRestoreRect(),
         machine.state_cast<const Events::SysMaximizeRestore *>() != nullptr,
         m_events->isMaximized() ? style.sysBtnRestoreSmall() : style.sysBtnMaximizeSmall()},
        {sysCloseRect(), machine.state_cast<const Events::SysClose *>() != nullptr,
         style.sysBtnCloseSmall()},
    };
    namespace Back = WindowImages::SysButtonBack;
    namespace Glyph = WindowImages::SmallSysButtonGlyph;
    const auto backRow = [](int y) { return QRect(0, y, Back::Width, Back::RowHeight); };
    const auto glyphRow = [](int y) { return QRect(0, y, Glyph::Width, Glyph::RowHeight); };
    for (const auto &button : buttons) {
        const bool hovered = button.rect.contains(cursor);
        if (hovered && button.pressed) {
            RibbonPaint::drawPart(p, button.rect, style.sysBtnBack(), backRow(Back::PressedRow));
            RibbonPaint::drawPart(p, button.rect, button.icon, glyphRow(Glyph::PressedRow));
        } else if (hovered) {
            RibbonPaint::drawPart(p, button.rect, style.sysBtnBack(), backRow(Back::HoverRow));
            RibbonPaint::drawPart(p, button.rect, button.icon, glyphRow(Glyph::HoverRow));
        } else {
            RibbonPaint::drawPart(p, button.rect, button.icon, glyphRow(Glyph::NormalRow));
        }
    }
}

} // namespace zel
