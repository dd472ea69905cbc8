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
    RibbonPaint::drawSmallButtonBackground(painter, *this, d->background);
    const QColor color = RibbonPaint::textColor(isEnabled());
    painter.setPen(color);
    painter.setBrush(color);
    RibbonStyle::drawSymbol(painter, rect().adjusted(3, 3, -3, -3), d->symbol);
}

} // namespace zel
