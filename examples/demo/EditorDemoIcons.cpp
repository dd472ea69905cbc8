#include "EditorDemoIcons.h"

#include "DemoIcons.h"

#include <QPainter>
#include <QPainterPath>

namespace {

using namespace EditorColors;

// Draws one glyph into a 32x32 unit square; thin lines get thicker at 16 pixels so
// that they stay one device pixel wide.
class GlyphPainter
{
public:
    GlyphPainter(QPainter &painter, int extent, const QColor &monochrome)
        : p(painter), small(extent < 32), mono(monochrome)
    {
    }

    QColor c(const QColor &color) const { return mono.isValid() ? mono : color; }
    qreal thin() const { return small ? 2.0 : 1.2; }
    qreal bold() const { return small ? 3.0 : 2.4; }

    void page(const QRectF &r, const QColor &lines = Ink, int rows = 4)
    {
        const qreal fold = r.width() / 3.5;
        QPainterPath path;
        path.moveTo(r.left(), r.top());
        path.lineTo(r.right() - fold, r.top());
        path.lineTo(r.right(), r.top() + fold);
        path.lineTo(r.right(), r.bottom());
        path.lineTo(r.left(), r.bottom());
        path.closeSubpath();
        p.setPen(QPen(c(Ink), thin()));
        p.setBrush(mono.isValid() ? Qt::NoBrush : QBrush(Paper));
        p.drawPath(path);
        p.drawLine(QPointF(r.right() - fold, r.top()), QPointF(r.right() - fold, r.top() + fold));
        p.drawLine(QPointF(r.right() - fold, r.top() + fold), QPointF(r.right(), r.top() + fold));
        textLines(r.adjusted(3, fold + 2, -3, -3), lines, rows);
    }

    void textLines(const QRectF &r, const QColor &color, int rows, int align = 0)
    {
        if (rows <= 0)
            return;
        p.setPen(QPen(c(color), small ? 2.0 : 1.6, Qt::SolidLine, Qt::FlatCap));
        const qreal step = rows > 1 ? r.height() / (rows - 1) : 0;
        for (int i = 0; i < rows; ++i) {
            const qreal w = (i % 2) ? r.width() * 0.7 : r.width();
            qreal x = r.left();
            if (align == 1)
                x = r.center().x() - w / 2;
            else if (align == 2)
                x = r.right() - w;
            else if (align == 3)
                x = r.left();
            const qreal full = align == 3 ? r.width() : w;
            p.drawLine(QPointF(x, r.top() + i * step), QPointF(x + full, r.top() + i * step));
        }
    }

    void letter(const QString &text, const QColor &color, bool italic = false, bool underline = false,
                bool strike = false, const QRectF &box = QRectF(0, 0, 32, 32), int px = 26)
    {
        QFont font(QStringLiteral("DejaVu Serif"));
        font.setBold(!italic);
        font.setItalic(italic);
        font.setPixelSize(px);
        p.setFont(font);
        p.setPen(c(color));
        p.drawText(box.translated(0, underline ? -2 : 0), Qt::AlignCenter, text);
        if (underline) {
            p.setPen(QPen(c(color), small ? 2.5 : 2.0));
            p.drawLine(QPointF(box.left() + 7, 29), QPointF(box.right() - 7, 29));
        }
        if (strike) {
            p.setPen(QPen(c(Red), small ? 2.5 : 2.0));
            p.drawLine(QPointF(box.left() + 4, box.center().y() + 1), QPointF(box.right() - 4, box.center().y() + 1));
        }
    }

    void grid(const QRectF &r, int rows, int cols, const QColor &head)
    {
        p.setPen(Qt::NoPen);
        p.setBrush(mono.isValid() ? Qt::NoBrush : QBrush(Paper));
        p.drawRect(r);
        p.setBrush(c(head));
        p.drawRect(QRectF(r.left(), r.top(), r.width(), r.height() / rows));
        p.setPen(QPen(c(Ink), thin()));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r);
        for (int i = 1; i < rows; ++i) {
            const qreal y = r.top() + r.height() * i / rows;
            p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
        }
        for (int i = 1; i < cols; ++i) {
            const qreal x = r.left() + r.width() * i / cols;
            p.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
        }
    }

    void plus(const QPointF &at, qreal size, const QColor &color)
    {
        p.setPen(QPen(c(color), bold(), Qt::SolidLine, Qt::FlatCap));
        p.drawLine(at - QPointF(size, 0), at + QPointF(size, 0));
        p.drawLine(at - QPointF(0, size), at + QPointF(0, size));
    }

    void cross(const QPointF &at, qreal size, const QColor &color)
    {
        p.setPen(QPen(c(color), bold(), Qt::SolidLine, Qt::RoundCap));
        p.drawLine(at + QPointF(-size, -size), at + QPointF(size, size));
        p.drawLine(at + QPointF(-size, size), at + QPointF(size, -size));
    }

    void picture(const QRectF &r)
    {
        p.setPen(QPen(c(Ink), thin()));
        p.setBrush(mono.isValid() ? Qt::NoBrush : QBrush(QColor(0xDD, 0xEE, 0xFA)));
        p.drawRect(r);
        p.setPen(Qt::NoPen);
        p.setBrush(c(QColor(0xF2, 0xB1, 0x2C)));
        p.drawEllipse(QRectF(r.left() + r.width() * 0.62, r.top() + r.height() * 0.15, r.width() * 0.2,
                             r.width() * 0.2));
        p.setBrush(c(Green));
        const QPointF hills[5] = {{r.left() + 1, r.bottom() - 0.5},
                                  {r.left() + r.width() * 0.35, r.top() + r.height() * 0.4},
                                  {r.left() + r.width() * 0.6, r.top() + r.height() * 0.72},
                                  {r.left() + r.width() * 0.75, r.top() + r.height() * 0.55},
                                  {r.right() - 1, r.bottom() - 0.5}};
        p.drawPolygon(hills, 5);
    }

    void arrow(const QPointF &from, const QPointF &to, const QColor &color)
    {
        p.setPen(QPen(c(color), bold(), Qt::SolidLine, Qt::RoundCap));
        p.drawLine(from, to);
        const QLineF line(to, from);
        QLineF a = line;
        a.setLength(small ? 6 : 5);
        a.setAngle(line.angle() + 40);
        QLineF b = line;
        b.setLength(small ? 6 : 5);
        b.setAngle(line.angle() - 40);
        p.drawLine(a);
        p.drawLine(b);
    }

    QPainter &p;
    bool small;
    QColor mono;
};

void drawGlyph(GlyphPainter &g, EditorIcon icon)
{
    QPainter &p = g.p;
    switch (icon) {
    case EditorIcon::Paste:
        p.setPen(QPen(g.c(Clipboard.darker(140)), g.thin()));
        p.setBrush(g.c(Clipboard));
        p.drawRoundedRect(QRectF(3.5, 5.5, 20, 24), 2.5, 2.5);
        p.setBrush(g.c(QColor(0x70, 0x70, 0x70)));
        p.drawRoundedRect(QRectF(8.5, 2.5, 10, 6), 1.5, 1.5);
        g.page(QRectF(12.5, 11.5, 16, 19), Accent, 4);
        break;
    case EditorIcon::Cut: {
        p.setPen(QPen(g.c(Ink), g.bold(), Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(9, 4), QPointF(20, 21));
        p.drawLine(QPointF(23, 4), QPointF(12, 21));
        p.setPen(QPen(g.c(Accent), g.bold()));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QRectF(5, 20, 8, 8));
        p.drawEllipse(QRectF(19, 20, 8, 8));
        break;
    }
    case EditorIcon::Copy:
        g.page(QRectF(4.5, 3.5, 15, 19), Accent, 3);
        g.page(QRectF(12.5, 9.5, 15, 19), Accent, 3);
        break;
    case EditorIcon::FormatPainter:
        p.setPen(QPen(g.c(Ink), g.thin()));
        p.setBrush(g.c(Clipboard));
        p.drawRoundedRect(QRectF(5.5, 3.5, 20, 9), 2, 2);
        p.setBrush(g.c(Ink));
        p.drawRect(QRectF(14, 12.5, 4, 16));
        break;
    case EditorIcon::Bold:
        g.letter(QStringLiteral("B"), Ink);
        break;
    case EditorIcon::Italic:
        g.letter(QStringLiteral("I"), Ink, true);
        break;
    case EditorIcon::Underline:
        g.letter(QStringLiteral("U"), Ink, false, true);
        break;
    case EditorIcon::Strikethrough:
        g.letter(QStringLiteral("S"), Ink, false, false, true);
        break;
    case EditorIcon::Grow:
    case EditorIcon::Shrink: {
        g.letter(QStringLiteral("A"), Ink, false, false, false, QRectF(0, 4, 24, 28), 24);
        const bool up = icon == EditorIcon::Grow;
        p.setPen(Qt::NoPen);
        p.setBrush(g.c(Accent));
        const QPointF tri[3] = {{22, up ? 12.0 : 4.0}, {31, up ? 12.0 : 4.0}, {26.5, up ? 4.0 : 12.0}};
        p.drawPolygon(tri, 3);
        break;
    }
    case EditorIcon::ClearFormat:
        g.letter(QStringLiteral("A"), Ink, false, false, false, QRectF(0, 0, 26, 28), 24);
        p.setPen(QPen(g.c(Ink), g.thin()));
        p.setBrush(g.c(QColor(0xF2, 0x9C, 0xB5)));
        p.save();
        p.translate(22, 24);
        p.rotate(-40);
        p.drawRoundedRect(QRectF(-8, -4, 16, 8), 1.5, 1.5);
        p.restore();
        break;
    case EditorIcon::AlignLeft:
    case EditorIcon::AlignCenter:
    case EditorIcon::AlignRight:
    case EditorIcon::Justify: {
        const int align = icon == EditorIcon::AlignLeft ? 0
                          : icon == EditorIcon::AlignCenter ? 1
                          : icon == EditorIcon::AlignRight ? 2 : 3;
        p.setPen(QPen(g.c(Ink), g.bold(), Qt::SolidLine, Qt::FlatCap));
        for (int i = 0; i < 5; ++i) {
            const qreal y = 6 + i * 5;
            const qreal w = (align == 3 || i % 2 == 0) ? 24 : 15;
            const qreal x = align == 0 || align == 3 ? 4 : align == 1 ? 16 - w / 2 : 28 - w;
            p.drawLine(QPointF(x, y), QPointF(x + w, y));
        }
        break;
    }
    case EditorIcon::Bullets:
    case EditorIcon::Numbering:
        for (int i = 0; i < 3; ++i) {
            const qreal y = 7 + i * 9;
            if (icon == EditorIcon::Bullets) {
                p.setPen(Qt::NoPen);
                p.setBrush(g.c(Accent));
                p.drawEllipse(QPointF(6, y), 3, 3);
            } else {
                QFont font;
                font.setBold(true);
                font.setPixelSize(10);
                p.setFont(font);
                p.setPen(g.c(Accent));
                p.drawText(QRectF(0, y - 6, 11, 12), Qt::AlignCenter, QString::number(i + 1));
            }
            p.setPen(QPen(g.c(Ink), g.bold(), Qt::SolidLine, Qt::FlatCap));
            p.drawLine(QPointF(13, y), QPointF(29, y));
        }
        break;
    case EditorIcon::SelectAll:
        p.setPen(QPen(g.c(Accent), g.thin(), Qt::DashLine));
        p.setBrush(g.c(QColor(0xCF, 0xE0, 0xF5)));
        p.drawRect(QRectF(3.5, 3.5, 25, 25));
        g.textLines(QRectF(8, 10, 16, 12), Ink, 3);
        break;
    case EditorIcon::Find:
        p.setPen(QPen(g.c(Ink), g.bold()));
        p.setBrush(g.c(Paper));
        p.drawEllipse(QRectF(4, 4, 16, 16));
        p.setPen(QPen(g.c(Accent), 5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(19, 19), QPointF(27, 27));
        break;
    case EditorIcon::StyleNormal:
    case EditorIcon::StyleHeading1:
    case EditorIcon::StyleHeading2:
    case EditorIcon::StyleTitle:
    case EditorIcon::StyleQuote: {
        // A sample of the style on a small card.
        p.setPen(QPen(g.c(QColor(0xC8, 0xC8, 0xC8)), g.thin()));
        p.setBrush(g.c(Paper));
        p.drawRect(QRectF(1.5, 3.5, 29, 25));
        QFont font(QStringLiteral("DejaVu Sans"));
        QColor ink = Ink;
        int px = 14;
        if (icon == EditorIcon::StyleHeading1) {
            px = 17;
            ink = Accent;
        } else if (icon == EditorIcon::StyleHeading2) {
            px = 14;
            ink = Accent;
            font.setBold(true);
        } else if (icon == EditorIcon::StyleTitle) {
            px = 20;
            font.setWeight(QFont::Light);
        } else if (icon == EditorIcon::StyleQuote) {
            font.setItalic(true);
            ink = QColor(0x70, 0x70, 0x70);
        }
        font.setPixelSize(px);
        p.setFont(font);
        p.setPen(g.c(ink));
        p.drawText(QRectF(1, 3, 30, 26), Qt::AlignCenter, QStringLiteral("Aa"));
        break;
    }
    case EditorIcon::Table:
        g.grid(QRectF(3.5, 5.5, 25, 21), 4, 3, Accent);
        break;
    case EditorIcon::Picture:
        g.picture(QRectF(3.5, 5.5, 25, 21));
        break;
    case EditorIcon::DateTime:
        p.setPen(QPen(g.c(Ink), g.thin()));
        p.setBrush(g.c(Paper));
        p.drawRect(QRectF(3.5, 5.5, 22, 21));
        p.setPen(Qt::NoPen);
        p.setBrush(g.c(Red));
        p.drawRect(QRectF(4, 6, 21, 6));
        p.setBrush(g.c(Ink));
        for (int r = 0; r < 2; ++r)
            for (int k = 0; k < 3; ++k)
                p.drawRect(QRectF(7 + k * 6, 15 + r * 5, 3, 3));
        p.setPen(QPen(g.c(Accent), g.thin()));
        p.setBrush(g.c(Paper));
        p.drawEllipse(QRectF(17, 17, 13, 13));
        p.drawLine(QPointF(23.5, 23.5), QPointF(23.5, 19.5));
        p.drawLine(QPointF(23.5, 23.5), QPointF(26.5, 23.5));
        break;
    case EditorIcon::Line:
        g.textLines(QRectF(4, 6, 24, 5), Ink, 2);
        p.setPen(QPen(g.c(Accent), g.bold()));
        p.drawLine(QPointF(2, 17), QPointF(30, 17));
        g.textLines(QRectF(4, 22, 24, 5), Ink, 2);
        break;
    case EditorIcon::ZoomIn:
    case EditorIcon::ZoomOut:
    case EditorIcon::Zoom100:
        p.setPen(QPen(g.c(Ink), g.bold()));
        p.setBrush(g.c(Paper));
        p.drawEllipse(QRectF(3, 3, 19, 19));
        p.setPen(QPen(g.c(Ink), 5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(21, 21), QPointF(28, 28));
        if (icon == EditorIcon::Zoom100) {
            QFont font;
            font.setBold(true);
            font.setPixelSize(9);
            p.setFont(font);
            p.setPen(g.c(Accent));
            p.drawText(QRectF(3, 3, 19, 19), Qt::AlignCenter, QStringLiteral("1:1"));
        } else {
            p.setPen(QPen(g.c(Accent), g.bold(), Qt::SolidLine, Qt::FlatCap));
            p.drawLine(QPointF(7.5, 12.5), QPointF(17.5, 12.5));
            if (icon == EditorIcon::ZoomIn)
                p.drawLine(QPointF(12.5, 7.5), QPointF(12.5, 17.5));
        }
        break;
    case EditorIcon::MinimiseRibbon:
        p.setPen(QPen(g.c(Ink), g.thin()));
        p.setBrush(g.c(Paper));
        p.drawRect(QRectF(3.5, 4.5, 25, 23));
        p.setPen(Qt::NoPen);
        p.setBrush(g.c(Accent));
        p.drawRect(QRectF(4, 5, 24, 5));
        g.arrow(QPointF(16, 25), QPointF(16, 14), Accent);
        break;
    case EditorIcon::Save:
        p.setPen(QPen(g.c(Accent.darker(130)), g.thin()));
        p.setBrush(g.c(Accent));
        p.drawRoundedRect(QRectF(3.5, 3.5, 25, 25), 2.5, 2.5);
        p.setBrush(g.c(Paper));
        p.drawRect(QRectF(9.5, 3.5, 13, 9));
        p.drawRect(QRectF(7.5, 17.5, 17, 11));
        p.setBrush(g.c(Accent));
        p.drawRect(QRectF(17.5, 5.5, 3, 5));
        break;
    case EditorIcon::Undo:
    case EditorIcon::Redo: {
        p.save();
        if (icon == EditorIcon::Redo) {
            p.translate(32, 0);
            p.scale(-1, 1);
        }
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(g.c(Accent), g.small ? 3.5 : 3.0, Qt::SolidLine, Qt::RoundCap));
        QPainterPath arc;
        arc.moveTo(10, 13);
        arc.cubicTo(16, 7, 29, 9, 27, 26);
        p.drawPath(arc);
        p.setPen(Qt::NoPen);
        p.setBrush(g.c(Accent));
        const QPointF head[3] = {{3, 14}, {14, 6}, {14, 20}};
        p.drawPolygon(head, 3);
        p.restore();
        break;
    }
    case EditorIcon::NewDocument:
        g.page(QRectF(6.5, 2.5, 19, 27), Accent, 0);
        g.plus(QPointF(16, 19), 5, Green);
        break;
    case EditorIcon::OpenFolder: {
        p.setPen(QPen(g.c(Clipboard.darker(150)), g.thin()));
        p.setBrush(g.c(Clipboard.lighter(130)));
        p.drawRect(QRectF(2.5, 7.5, 24, 19));
        p.setBrush(g.c(Clipboard));
        const QPointF front[4] = {{7, 13.5}, {30, 13.5}, {26.5, 26.5}, {2.5, 26.5}};
        p.drawPolygon(front, 4);
        break;
    }
    case EditorIcon::RowAbove:
    case EditorIcon::RowBelow: {
        const bool above = icon == EditorIcon::RowAbove;
        g.grid(QRectF(3.5, above ? 13.5 : 3.5, 25, 15), 2, 3, QColor(0xE6, 0xDD, 0xF3));
        g.plus(QPointF(16, above ? 6 : 26), 4.5, Green);
        break;
    }
    case EditorIcon::ColumnLeft:
    case EditorIcon::ColumnRight: {
        const bool left = icon == EditorIcon::ColumnLeft;
        g.grid(QRectF(left ? 13.5 : 3.5, 3.5, 15, 25), 3, 2, QColor(0xE6, 0xDD, 0xF3));
        g.plus(QPointF(left ? 6 : 26, 16), 4.5, Green);
        break;
    }
    case EditorIcon::DeleteRow:
    case EditorIcon::DeleteColumn:
    case EditorIcon::DeleteTable:
        g.grid(QRectF(3.5, 3.5, 22, 22), 3, 3, QColor(0xE6, 0xDD, 0xF3));
        g.cross(QPointF(24, 24), 4.5, Red);
        break;
    case EditorIcon::PictureLarger:
    case EditorIcon::PictureSmaller:
        g.picture(icon == EditorIcon::PictureLarger ? QRectF(2.5, 8.5, 20, 16) : QRectF(2.5, 8.5, 14, 11));
        if (icon == EditorIcon::PictureLarger)
            g.arrow(QPointF(20, 12), QPointF(29, 3), Accent);
        else
            g.arrow(QPointF(29, 3), QPointF(20, 12), Accent);
        break;
    case EditorIcon::PictureReset: {
        g.picture(QRectF(3.5, 5.5, 25, 21));
        p.setPen(QPen(g.c(Accent), g.thin()));
        p.setBrush(g.c(Paper));
        p.drawEllipse(QRectF(16, 16, 14, 14));
        QFont font;
        font.setBold(true);
        font.setPixelSize(8);
        p.setFont(font);
        p.drawText(QRectF(16, 16, 14, 14), Qt::AlignCenter, QStringLiteral("1"));
        break;
    }
    case EditorIcon::Page:
        g.page(QRectF(7.5, 3.5, 17, 25), Ink, 0);
        break;
    // The two colour glyphs keep clear of the bottom quarter, where the colour
    // command draws its bar of the current colour.
    case EditorIcon::FontColor:
        g.letter(QStringLiteral("A"), Ink, false, false, false, QRectF(0, 0, 32, 24), 23);
        break;
    case EditorIcon::Highlight: {
        p.save();
        p.translate(16, 12);
        p.rotate(45);
        p.setPen(QPen(g.c(Ink), g.thin()));
        p.setBrush(g.c(QColor(0xF2, 0xC8, 0x1F)));
        p.drawRect(QRectF(-3.5, -10, 7, 12));
        p.setBrush(g.c(Ink));
        p.drawPolygon(QPolygonF({QPointF(-3.5, 2), QPointF(3.5, 2), QPointF(1.5, 8), QPointF(-1.5, 8)}));
        p.restore();
        break;
    }
    case EditorIcon::Symbol:
        g.letter(QString(QChar(0x03A9)), Accent, false, false, false, QRectF(0, 0, 32, 32), 24);
        break;
    case EditorIcon::Words:
        g.textLines(QRectF(4, 8, 24, 16), Ink, 4);
        break;
    case EditorIcon::Help:
        p.setPen(Qt::NoPen);
        p.setBrush(g.c(Accent));
        p.drawEllipse(QRectF(3, 3, 26, 26));
        {
            QFont font;
            font.setBold(true);
            font.setPixelSize(20);
            p.setFont(font);
            p.setPen(g.mono.isValid() ? QColor(Qt::black) : QColor(Paper));
            p.drawText(QRectF(3, 3, 26, 26), Qt::AlignCenter, QStringLiteral("?"));
        }
        break;
    case EditorIcon::Person:
        p.setPen(Qt::NoPen);
        p.setBrush(g.c(Accent));
        p.drawEllipse(QRectF(10, 3, 12, 12));
        p.drawChord(QRectF(4, 17, 24, 24), 0, 180 * 16);
        break;
    }
}

QIcon makeIcon(EditorIcon icon, const QColor &mono)
{
    return gridIcon([&](QPainter &p, int extent) {
        GlyphPainter g(p, extent, mono);
        drawGlyph(g, icon);
    });
}

} // namespace

QIcon editorIcon(EditorIcon icon)
{
    return makeIcon(icon, QColor());
}

QIcon editorIcon(EditorIcon icon, const QColor &color)
{
    return makeIcon(icon, color);
}
