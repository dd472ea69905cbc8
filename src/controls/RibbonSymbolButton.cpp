#include "RibbonSymbolButton.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"

#include <QPainter>

namespace zel {

struct RibbonSymbolButton::Priv
{
    eSymbolType symbol = SymbolNone;
    RibbonSlices background;
};

RibbonSymbolButton::RibbonSymbolButton(eSymbolType symbol, QWidget *parent)
    : QAbstractButton(parent)
    , d(new Priv)
{
    d->symbol = symbol;
    setMouseTracking(true);
}

RibbonSymbolButton::~RibbonSymbolButton() = default;

eSymbolType RibbonSymbolButton::symbol() const
{
    return d->symbol;
}

QSize RibbonSymbolButton::sizeHint() const
{
    return QSize();
}

void RibbonSymbolButton::enterEvent(QEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void RibbonSymbolButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void RibbonSymbolButton::mousePressEvent(QMouseEvent *event)
{
    QAbstractButton::mousePressEvent(event);
    update();
}

void RibbonSymbolButton::mouseReleaseEvent(QMouseEvent *event)
{
    QAbstractButton::mouseReleaseEvent(event);
    update();
}

void RibbonSymbolButton::mouseMoveEvent(QMouseEvent *event)
{
    QAbstractButton::mouseMoveEvent(event);
    update();
}

void RibbonSymbolButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int state = RibbonPaint::smallButtonRow(*this);
    if (state >= 0) {
        const QPixmap &sheet = RibbonApplication::theApp().ribbonStyle().normalButtonSmall();
        d->background.set(rect(), QRect(0, 0, sheet.width(), RibbonPaint::SmallRowHeight),
                          QMargins(2, 2, 2, 2));
        d->background.draw(painter, sheet, state * RibbonPaint::SmallRowHeight);
    }
    const QColor color = RibbonPaint::textColor(isEnabled());
    painter.setPen(color);
    painter.setBrush(color);
    RibbonStyle::drawSymbol(painter, rect().adjusted(3, 3, -3, -3), d->symbol);
}

} // namespace zel
