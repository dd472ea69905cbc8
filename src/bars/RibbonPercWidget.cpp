#include "RibbonPercWidget.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonImageRows_p.h"
#include "RibbonPercAction.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QAccessible>
#include <QActionEvent>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zel {

namespace {

const int FirstRepeatDelay = 200;
const int RepeatInterval = 50;
const int Step = 10;

// Track geometry: the minimum sits at x 85, 100 % at 125 and the maximum at 165.
const int TrackStart = 80;
const int LowEnd = 85;
const int Centre = 125;
const int HalfLength = 40;
const int SnapDistance = 5;

// The buttons and the track lie in a row of 20 pixels, vertically centred in a widget
// that grows with the font of its label.
const int Row = 20;
const int ButtonExtent = 18;
const int ThumbWidth = 11;
const int ThumbHeight = 15;

// The label left of the minus button is 60 pixels wide at 96 DPI and grows with the
// horizontal resolution, like the text in it, or to hold the largest percentage in a
// large font; the track keeps its length and moves right by the growth.
const int LabelWidth = 60;

QString percentText(int percentage)
{
    return QString::number(percentage) + QStringLiteral(" %");
}

} // namespace

RibbonPercWidget::RibbonPercWidget(RibbonPercAction &action, QWidget *parent)
    : QWidget(parent)
    , m_action(&action)
    , repeatTimer(this)
    , m_value(action.percentage())
    , m_text(percentText(action.percentage()))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    setCursor(Qt::ArrowCursor);
    addAction(&action);
    setAccessibleName(tr("Zoom"));
    connect(&action, SIGNAL(percentageChanged(int)), this, SLOT(displayPercentage(int)));
    // Held buttons step at a steady pace, not a coarse one.
    repeatTimer.setTimerType(Qt::PreciseTimer);
    connect(&repeatTimer, SIGNAL(timeout()), this, SLOT(timerEvent()));
}

RibbonPercWidget::~RibbonPercWidget() = default;

RibbonPercAction *RibbonPercWidget::action() const
{
    return qobject_cast<RibbonPercAction *>(m_action);
}

int RibbonPercWidget::value() const
{
    return m_value;
}

QString RibbonPercWidget::text() const
{
    return m_text;
}

QSize RibbonPercWidget::sizeHint() const
{
    return QSize(190 + trackOffset(), textFitHeight(Row, fontMetrics(), 1));
}

int RibbonPercWidget::thumbPosition(int v) const
{
    RibbonPercAction *action = this->action();
    if (!action)
        return Centre + trackOffset();
    const int minimum = action->minimum();
    const int maximum = action->maximum();
    if (v < 100) {
        const int span = 100 - minimum;
        return trackOffset() + (span > 0 ? LowEnd + HalfLength * qMax(0, v - minimum) / span : LowEnd);
    }
    const int span = maximum - 100;
    return trackOffset() + (span > 0 ? Centre + HalfLength * qMin(v - 100, span) / span : Centre);
}

QRect RibbonPercWidget::minusRect() const
{
    return QRect(LabelWidth + trackOffset(), rowTop(), Row, Row);
}

QRect RibbonPercWidget::plusRect() const
{
    return QRect(width() - Row, rowTop(), Row, Row);
}

QRect RibbonPercWidget::thumbHitRect() const
{
    return QRect(thumbPosition(m_value) - 5, rowTop(), ThumbWidth, Row);
}

int RibbonPercWidget::rowTop() const
{
    return (height() - Row) / 2;
}

int RibbonPercWidget::trackOffset() const
{
    const RibbonPercAction *action = this->action();
    const int widest = fontMetrics().horizontalAdvance(percentText(action ? action->maximum() : 100)) + 4;
    return std::max(scaledX(LabelWidth), widest) - LabelWidth;
}

bool RibbonPercWidget::isHovered(const QRect &area) const
{
    return isEnabled() && m_mouseInside && area.contains(m_mousePos);
}

int RibbonPercWidget::valueAt(int position) const
{
    const int x = position - trackOffset();
    RibbonPercAction *action = this->action();
    const int minimum = action->minimum();
    const int maximum = action->maximum();
    int v;
    if (qAbs(x - Centre) < SnapDistance)
        v = 100;
    else if (x < Centre)
        v = minimum + static_cast<int>((100 - minimum) * (x - LowEnd) / double(HalfLength) + 0.5);
    else
        v = 100 + static_cast<int>((maximum - 100) * (x - Centre) / double(HalfLength) + 0.5);
    return qMax(minimum, qMin(v, maximum));
}

int RibbonPercWidget::stepped(int delta) const
{
    RibbonPercAction *action = this->action();
    if (!action)
        return m_value;
    const int v = m_value + delta;
    return delta < 0 ? qMax(v, action->minimum()) : qMin(v, action->maximum());
}

void RibbonPercWidget::dragTo(int x)
{
    RibbonPercAction *action = this->action();
    if (!action)
        return;
    const int v = valueAt(x);
    if (v == m_value)
        return;
    m_value = v;
    action->setPercentage(v);
}

void RibbonPercWidget::displayPercentage(int percentage)
{
    m_text = percentText(percentage);
    QAccessibleValueChangeEvent event(this, percentage);
    QAccessible::updateAccessibility(&event);
    update();
}

void RibbonPercWidget::timerEvent()
{
    if (repeatTimer.interval() == FirstRepeatDelay)
        repeatTimer.setInterval(RepeatInterval);
    int v = m_value;
    if (m_minusPressed)
        v = stepped(-Step);
    else if (m_plusPressed)
        v = stepped(Step);
    RibbonPercAction *action = this->action();
    if (v == m_value || !action)
        return;
    m_value = v;
    QPointer<RibbonPercWidget> self(this);
    action->setPercentage(v);
    if (self)
        update();
}

void RibbonPercWidget::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    RibbonPercAction *action = this->action();
    if (event->type() == QEvent::ActionChanged && action && event->action() == action) {
        m_value = action->percentage();
        m_text = percentText(m_value);
        setEnabled(action->isEnabled());
    }
    update();
}

void RibbonPercWidget::paintEvent(QPaintEvent *)
{
    if (!action())
        return;
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.5);

    painter.setPen(style.statusBarTextColor());
    // Right-aligned against the minus button, vertically centred.
    painter.drawText(QRect(0, 0, LabelWidth + trackOffset(), height()), Qt::AlignRight | Qt::AlignVCenter, m_text);

    const int trackEnd = width() - Row;
    painter.translate(0, rowTop());
    painter.setPen(style.frameSunkenColor());
    const int trackStart = TrackStart + trackOffset();
    const int centre = Centre + trackOffset();
    painter.drawLine(trackStart, 9, trackEnd, 9);
    painter.drawLine(centre, 6, centre, 13);
    painter.setPen(style.frameRaiseColor());
    painter.drawLine(trackStart, 10, trackEnd, 10);
    painter.drawLine(centre + 1, 7, centre + 1, 14);

    const auto frameOf = [this](bool pressed, const QRect &area) {
        namespace SliderPart = RibbonImageRows::SliderPart;
        return pressed ? SliderPart::Pressed : isHovered(area) ? SliderPart::Hover : SliderPart::Normal;
    };

    painter.resetTransform();
    QRect button(0, 0, ButtonExtent, ButtonExtent);
    button.moveCenter(minusRect().center());
    RibbonPaint::drawPart(painter, button, style.sliderMinus(),
                          QRect(0, ButtonExtent * frameOf(m_minusPressed, minusRect()), ButtonExtent, ButtonExtent));
    button.moveCenter(plusRect().center());
    RibbonPaint::drawPart(painter, button, style.sliderPlus(),
                          QRect(0, ButtonExtent * frameOf(m_plusPressed, plusRect()), ButtonExtent, ButtonExtent));

    const int x = thumbPosition(m_value);
    const QRect thumb(x - ThumbWidth / 2, rowTop() + Row / 2 - ThumbHeight / 2, ThumbWidth, ThumbHeight);
    RibbonPaint::drawPart(painter, thumb, style.sliderThumb(),
                          QRect(0, ThumbHeight * frameOf(m_thumbPressed, thumbHitRect()), ThumbWidth, ThumbHeight));
}

void RibbonPercWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !action()) {
        QWidget::mousePressEvent(event);
        return;
    }
    const QPoint pos = event->pos();
    if (minusRect().contains(pos)) {
        m_minusPressed = true;
    } else if (plusRect().contains(pos)) {
        m_plusPressed = true;
    } else if (thumbHitRect().contains(pos)) {
        m_thumbPressed = true;
    } else if (pos.x() >= TrackStart + trackOffset() && pos.x() < plusRect().left()) {
        // A press on the bare track moves the thumb there and keeps it for dragging.
        m_thumbPressed = true;
        QPointer<RibbonPercWidget> self(this);
        dragTo(pos.x());
        if (!self)
            return;
    }
    if (m_minusPressed || m_plusPressed) {
        repeatTimer.setInterval(FirstRepeatDelay);
        repeatTimer.start();
    }
    update();
}

void RibbonPercWidget::mouseMoveEvent(QMouseEvent *event)
{
    // Accepted, not passed on: a handler of the change may delete this widget, and an
    // ignored event would travel on through it.
    m_mousePos = event->pos();
    m_mouseInside = rect().contains(m_mousePos);
    if (m_thumbPressed) {
        QPointer<RibbonPercWidget> self(this);
        dragTo(event->pos().x());
        if (!self)
            return;
    }
    update();
}

void RibbonPercWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const QPoint pos = event->pos();
    const int old = m_value;
    if (m_minusPressed && minusRect().contains(pos))
        m_value = stepped(-Step);
    else if (m_plusPressed && plusRect().contains(pos))
        m_value = stepped(Step);
    m_minusPressed = m_plusPressed = m_thumbPressed = false;
    repeatTimer.stop();
    update();
    if (m_value != old) {
        if (RibbonPercAction *action = this->action())
            action->setPercentage(m_value);
    }
}

void RibbonPercWidget::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event);
    // Synthetic enter events may be plain QEvents without a position.
    if (const QEnterEvent *enter = dynamic_cast<QEnterEvent *>(event))
        m_mousePos = enter->pos();
    m_mouseInside = true;
    update();
}

void RibbonPercWidget::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    m_mouseInside = false;
    update();
}

} // namespace zel
