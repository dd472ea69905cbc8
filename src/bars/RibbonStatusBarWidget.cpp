#include "RibbonStatusBarWidget.h"

#include "RibbonApplication.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zel {

namespace {
const int ButtonExtent = 22;
const QRect HoverRect(0, 0, 20, 20);
} // namespace

RibbonStatusBarWidget::RibbonStatusBarWidget(RibbonSimpleAction &action, QWidget *parent)
    : QWidget(parent)
    , m_action(&action)
{
    setMouseTracking(true);
    setMaximumSize(ButtonExtent, ButtonExtent);
    addAction(&action);
}

RibbonStatusBarWidget::~RibbonStatusBarWidget() = default;

RibbonSimpleAction *RibbonStatusBarWidget::action() const
{
    return qobject_cast<RibbonSimpleAction *>(m_action);
}

QSize RibbonStatusBarWidget::sizeHint() const
{
    return QSize(ButtonExtent, ButtonExtent);
}

void RibbonStatusBarWidget::syncFromAction()
{
    RibbonSimpleAction *action = this->action();
    if (!action)
        return;
    m_pressed = action->isCheckable() && action->isChecked();
    setToolTip(ribbonScreenTip(action));
    setEnabled(action->isEnabled());
}

void RibbonStatusBarWidget::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    if ((event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionChanged)
        && event->action() == m_action)
        syncFromAction();
    update();
}

bool RibbonStatusBarWidget::isHovered() const
{
    return isEnabled() && m_mouseInside && HoverRect.contains(m_mousePos);
}

void RibbonStatusBarWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    namespace SmallButton = RibbonImageRows::SmallButton;
    const int frame = m_pressed ? SmallButton::Pressed : isHovered() ? SmallButton::Hover : SmallButton::Outline;
    const QPixmap &sheet = RibbonApplication::theApp().ribbonStyle().normalButtonSmall();
    RibbonPaint::drawPart(painter, QRect(0, 0, 20, 22), sheet,
                          QRect(0, RibbonPaint::SmallRowHeight * frame, 22, 23));

    if (!m_action)
        return;
    // The whole pixmap goes into the 16-pixel square, whatever size the icon offers.
    const QPixmap icon = RibbonPaint::iconPixmap(m_action->icon(), 16, isEnabled(), *this);
    if (icon.isNull())
        return;
    QRect target(0, 0, 16, 16);
    target.moveCenter(HoverRect.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, icon);
}

void RibbonStatusBarWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_pressed = !m_pressed;
    update();
}

void RibbonStatusBarWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const bool checkable = m_action && m_action->isCheckable();
    m_pressed = m_pressed && checkable;
    update();
    // Triggered wherever the button is released; the handlers may delete this widget.
    if (QAction *action = m_action.data())
        action->trigger();
}

void RibbonStatusBarWidget::mouseMoveEvent(QMouseEvent *event)
{
    m_mousePos = event->pos();
    m_mouseInside = rect().contains(m_mousePos);
    update();
}

void RibbonStatusBarWidget::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event);
    // Synthetic enter events may be plain QEvents without a position.
    if (const QEnterEvent *enter = dynamic_cast<QEnterEvent *>(event))
        m_mousePos = enter->pos();
    m_mouseInside = true;
    update();
}

void RibbonStatusBarWidget::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    m_mouseInside = false;
    update();
}

} // namespace zel
