#include "RibbonStyle.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"

#include <QPainter>
#include <QPolygon>
#include <QRect>

#include <algorithm>

namespace zel {

RibbonStyle::RibbonStyle() = default;

RibbonStyle::~RibbonStyle() = default;

namespace {

void drawTriangle(QPainter &painter, const QPoint &a, const QPoint &b, const QPoint &c)
{
    const QPoint points[3] = {a, b, c};
    painter.drawPolygon(points, 3, Qt::OddEvenFill);
}

} // namespace

void RibbonStyle::drawSymbol(QPainter &painter, const QRect &r, eSymbolType symbol)
{
    switch (symbol) {
    case SymbolArrowUp:
        drawTriangle(painter, r.bottomRight(), r.bottomLeft(), QPoint(r.center().x(), r.top()));
        break;
    case SymbolDropDown:
        RibbonPaint::drawPart(painter, r, RibbonApplication::theApp().ribbonStyle().categoryWrapperIcon(),
                              QRect(0, 0, 5, 3));
        break;
    case SymbolArrowLeft:
        drawTriangle(painter, r.topRight(), r.bottomRight(), QPoint(r.left(), r.center().y()));
        break;
    case SymbolArrowRight:
        drawTriangle(painter, r.topLeft(), QPoint(r.right(), r.center().y()), r.bottomLeft());
        break;
    case SymbolBarArrowDown: {
        painter.drawRect(QRect(r.topLeft(), QSize(r.width() - 1, r.height() / 4)));
        const int middle = r.top() + r.height() / 2;
        drawTriangle(painter, QPoint(r.left(), middle), QPoint(r.right(), middle),
                     QPoint(r.center().x(), r.bottom()));
        break;
    }
    case SymbolFirst: {
        const int s = std::min(r.width(), r.height());
        QRect square(0, 0, s, s);
        square.moveCenter(r.center());
        const QRect arrow = square.adjusted(s / 2, 0, 0, 0);
        drawSymbol(painter, arrow, SymbolArrowLeft);
        QRect bar(arrow.topLeft(), QSize(s / 8, arrow.height()));
        bar.moveRight(arrow.left() - 1);
        painter.drawRect(bar.adjusted(0, 0, 0, -1));
        break;
    }
    case SymbolPrevious:
    case SymbolNext: {
        const int s = std::min(r.width(), r.height());
        QRect arrow(0, 0, s / 2, s);
        arrow.moveCenter(r.center());
        drawSymbol(painter, arrow, symbol == SymbolPrevious ? SymbolArrowLeft : SymbolArrowRight);
        break;
    }
    case SymbolLast: {
        const int s = std::min(r.width(), r.height());
        QRect square(0, 0, s, s);
        square.moveCenter(r.center());
        const QRect arrow = square.adjusted(0, 0, -(s / 2), 0);
        drawSymbol(painter, arrow, SymbolArrowRight);
        QRect bar(arrow.topLeft(), QSize(s / 8, arrow.height()));
        bar.moveLeft(arrow.right());
        painter.drawRect(bar.adjusted(0, 0, 0, -1));
        break;
    }
    case SymbolNone:
    default:
        break;
    }
}

} // namespace zel
