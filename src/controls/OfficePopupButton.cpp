#include "OfficePopupButton.h"

#include "OfficeGallery_p.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QCursor>
#include <QPainter>

namespace zel {

OfficePopupButton::OfficePopupButton(QWidget *parent)
    : QPushButton(parent)
{
}

OfficePopupButton::~OfficePopupButton() = default;

void OfficePopupButton::mousePressEvent(QMouseEvent *event)
{
    QPushButton::mousePressEvent(event);
    update();
}

void OfficePopupButton::mouseReleaseEvent(QMouseEvent *event)
{
    QPushButton::mouseReleaseEvent(event);
    update();
}

void OfficePopupButton::mouseMoveEvent(QMouseEvent *event)
{
    QPushButton::mouseMoveEvent(event);
    update();
}

void OfficePopupButton::enterEvent(QEvent *event)
{
    QPushButton::enterEvent(event);
    update();
}

void OfficePopupButton::leaveEvent(QEvent *event)
{
    QPushButton::leaveEvent(event);
    update();
}

void OfficePopupButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    // The right and bottom edges fall outside the button: the frame the category draws
    // around the gallery closes them.
    painter.setPen(OfficeGallery::frameColor());
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect());

    // Disabled, the button keeps the resting fill of the scroll bar above it.
    QColor fill = RibbonApplication::theApp().ribbonStyle().mainMenuBgColor();
    if (isEnabled() && rect().contains(mapFromGlobal(QCursor::pos())))
        fill = isDown() ? OfficeGallery::pressedFill() : OfficeGallery::hoverFill();
    painter.fillRect(rect().adjusted(1, 1, 0, 0), fill);

    OfficeGallery::drawArrow(painter, *this, height() / 3 + 1, false, true);
}

} // namespace zel
