#include "OfficePopupButton.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QCursor>
#include <QPainter>

namespace zel {

namespace {

const QColor kOutline(QStringLiteral("#afafaf"));
const QColor kHoverFill(QStringLiteral("#d5e1f2"));
const QColor kPressedFill(QStringLiteral("#a3bde2"));
const QColor kGlyph(QStringLiteral("#5f5f5f"));
const QColor kDisabledGlyph(QStringLiteral("#afafaf"));
const int kGlyphWidth = 7;

} // namespace

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
    painter.setPen(kOutline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect());

    // Disabled, the button keeps the resting fill of the scroll bar above it.
    QColor fill = RibbonApplication::theApp().ribbonStyle().mainMenuBgColor();
    if (isEnabled() && rect().contains(mapFromGlobal(QCursor::pos())))
        fill = isDown() ? kPressedFill : kHoverFill;
    painter.fillRect(rect().adjusted(1, 1, 0, 0), fill);

    const QColor glyph = isEnabled() ? kGlyph : kDisabledGlyph;
    painter.setPen(glyph);
    painter.setBrush(glyph);
    const int inset = (width() - kGlyphWidth) / 2;
    const int row = height() / 3 + 1;
    RibbonPaint::drawSmallArrow(painter, QPoint(inset, row), QPoint(inset + kGlyphWidth - 1, row), false, true);
}

} // namespace zel
