#include "OfficeScrollBar.h"

#include "OfficeGallery_p.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

namespace zel {

namespace {

const int kRepeatDelay = 500;
const int kRepeatInterval = 50;

} // namespace

OfficeScrollBar::OfficeScrollBar(QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
{
}

OfficeScrollBar::~OfficeScrollBar() = default;

bool OfficeScrollBar::isPressed() const
{
    return m_pressed;
}

QSize OfficeScrollBar::sizeHint() const
{
    QSize hint = QScrollBar::sizeHint();
    hint.setWidth(qBound(minimumWidth(), hint.width(), maximumWidth()));
    return hint;
}

QAbstractSlider::SliderAction OfficeScrollBar::actionAt(const QPoint &pos) const
{
    if (!rect().contains(pos))
        return SliderNoAction;
    return pos.y() < height() / 2 ? SliderSingleStepSub : SliderSingleStepAdd;
}

// The bar is painted as two buttons, so it answers presses as two buttons: the standard
// handling would hit-test the style's slider and page areas, which are not drawn.
void OfficeScrollBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QScrollBar::mousePressEvent(event);
        return;
    }
    event->accept();
    m_pressed = true;
    const SliderAction action = actionAt(event->pos());
    if (action != SliderNoAction) {
        triggerAction(action);
        setRepeatAction(action, kRepeatDelay, kRepeatInterval);
    }
    update();
}

void OfficeScrollBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QScrollBar::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    m_pressed = false;
    setRepeatAction(SliderNoAction);
    update();
}

void OfficeScrollBar::mouseMoveEvent(QMouseEvent *event)
{
    // Leaving the button held down stops its repetition, as with any scroll arrow.
    if (m_pressed && repeatAction() != SliderNoAction && actionAt(event->pos()) != repeatAction())
        setRepeatAction(SliderNoAction);
    event->accept();
    update();
}

void OfficeScrollBar::enterEvent(QEvent *event)
{
    QScrollBar::enterEvent(event);
    update();
}

void OfficeScrollBar::leaveEvent(QEvent *event)
{
    QScrollBar::leaveEvent(event);
    update();
}

void OfficeScrollBar::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);

    const QRect area = rect().adjusted(0, 0, -1, 0);
    painter.fillRect(area, style.mainMenuBgColor());
    painter.setPen(OfficeGallery::frameColor());
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
    const int middle = height() / 2;
    painter.drawLine(area.left(), middle, area.right(), middle);

    if (isEnabled()) {
        const QPoint cursor = mapFromGlobal(QCursor::pos());
        // Inside the outline (whose right edge is the column right of area) and the
        // dividing line.
        const QRect halves[] = {QRect(1, 1, area.width() - 1, middle - 1),
                                QRect(1, middle + 1, area.width() - 1, height() - middle - 1)};
        for (const QRect &half : halves) {
            if (half.contains(cursor))
                painter.fillRect(half, m_pressed ? OfficeGallery::pressedFill() : OfficeGallery::hoverFill());
        }
    }

    // The down arrow mirrors the up arrow about the dividing line. (The button under the
    // bar leaves it 40 pixels high, where a down arrow a fixed 20 rows below the up
    // arrow would sit on the bar's bottom edge.)
    const int upRow = height() / 3 + 1;
    OfficeGallery::drawArrow(painter, *this, upRow, true, false);
    OfficeGallery::drawArrow(painter, *this, 2 * middle - upRow, false, false);
}

} // namespace zel
