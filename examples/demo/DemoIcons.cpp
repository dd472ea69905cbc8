#include "DemoIcons.h"

#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

QIcon gridIcon(const std::function<void(QPainter &, int extent)> &paint)
{
    QIcon icon;
    for (int extent : {16, 32}) {
        QPixmap pixmap(extent, extent);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::TextAntialiasing);
        p.scale(extent / 32.0, extent / 32.0);
        paint(p, extent);
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon gridIcon(const QColor &color, int outlineDarkness, const std::function<void(QPainter &)> &paint)
{
    return gridIcon([&](QPainter &p, int extent) {
        p.setPen(QPen(color.darker(outlineDarkness), extent >= 32 ? 1.5 : 2.5));
        p.setBrush(color);
        paint(p);
    });
}

QIcon shapeIcon(DemoShape shape, const QColor &color, QChar letter)
{
    return gridIcon(color, 140, [&](QPainter &p) {
        switch (shape) {
        case DemoShape::Disc:
            p.drawEllipse(QRectF(4, 4, 24, 24));
            break;
        case DemoShape::Square:
            p.drawRoundedRect(QRectF(5, 5, 22, 22), 4, 4);
            break;
        case DemoShape::Triangle: {
            const QPointF points[3] = {{16, 4}, {28.5, 27}, {3.5, 27}};
            p.drawPolygon(points, 3);
            break;
        }
        case DemoShape::Page: {
            QPainterPath path;
            path.moveTo(7, 3);
            path.lineTo(20, 3);
            path.lineTo(26, 9);
            path.lineTo(26, 29);
            path.lineTo(7, 29);
            path.closeSubpath();
            p.setBrush(Qt::white);
            p.drawPath(path);
            p.setPen(QPen(color, 2.5));
            for (int y = 12; y <= 24; y += 5)
                p.drawLine(QPointF(11, y), QPointF(22, y));
            break;
        }
        case DemoShape::Bars:
            p.setPen(Qt::NoPen);
            for (int i = 0; i < 4; ++i)
                p.drawRoundedRect(QRectF(4, 5 + i * 6.5, i % 2 ? 18 : 24, 4), 1.5, 1.5);
            break;
        case DemoShape::Letter: {
            QFont font;
            font.setBold(true);
            font.setPixelSize(26);
            p.setFont(font);
            p.setPen(color);
            p.drawText(QRectF(0, 0, 32, 32), Qt::AlignCenter, QString(letter));
            break;
        }
        case DemoShape::Diamond: {
            const QPointF points[4] = {{16, 3}, {29, 16}, {16, 29}, {3, 16}};
            p.drawPolygon(points, 4);
            break;
        }
        case DemoShape::Ring:
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(color, 5));
            p.drawEllipse(QRectF(6, 6, 20, 20));
            break;
        case DemoShape::Frame:
            p.setBrush(Qt::white);
            p.drawRect(QRectF(4, 6, 24, 20));
            p.setBrush(color);
            p.setPen(Qt::NoPen);
            p.drawEllipse(QRectF(8, 10, 7, 7));
            p.drawPolygon(QPolygonF({{6, 24}, {14, 15}, {19, 20}, {22, 17}, {26, 24}}));
            break;
        }
    });
}

void DemoPanelBack::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const zel::RibbonStyle &style = zel::RibbonApplication::theApp().ribbonStyle();
    if (style.mainPanelBack().isNull())
        painter.fillRect(rect(), style.mainClientColor());
    else
        painter.drawPixmap(rect(), style.mainPanelBack());
}
