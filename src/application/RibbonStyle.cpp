#include "RibbonStyle.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonStyleImages_p.h"

#include <QPainter>
#include <QPolygon>
#include <QRect>

#include <algorithm>
#include <unordered_map>

namespace zel {

namespace {

bool s_deferImages = false;

} // namespace

struct RibbonStyle::Priv
{
    struct Deferred
    {
        QString path;
        bool highResolution = false;
        bool loaded = false;
        QPixmap image;
    };

    bool deferImages = s_deferImages;
    // Keyed by the entry; a node container, so that references handed out stay valid.
    std::unordered_map<const QPixmap *, Deferred> deferred;
};

RibbonDeferredPaletteImages::RibbonDeferredPaletteImages()
    : m_outer(s_deferImages)
{
    s_deferImages = true;
}

RibbonDeferredPaletteImages::~RibbonDeferredPaletteImages()
{
    s_deferImages = m_outer;
}

RibbonStyle::RibbonStyle()
    : d(new Priv)
{
}

RibbonStyle::~RibbonStyle() = default;

void RibbonStyle::loadImage(QPixmap &entry, const QString &path)
{
    if (!d->deferImages) {
        entry = RibbonPaint::loadImage(path);
        return;
    }
    // Decoded later, but for the resolution of now, as loading at once would.
    entry = QPixmap();
    Priv::Deferred &deferred = d->deferred[&entry];
    deferred = Priv::Deferred();
    deferred.path = path;
    deferred.highResolution = RibbonPaint::wantsHighResolutionImages();
}

const QPixmap &RibbonStyle::image(const QPixmap &entry) const
{
    // An entry a subclass filled itself wins over a deferred one.
    if (!entry.isNull() || d->deferred.empty())
        return entry;
    const auto it = d->deferred.find(&entry);
    if (it == d->deferred.end())
        return entry;
    Priv::Deferred &deferred = it->second;
    if (!deferred.loaded) {
        deferred.image = RibbonPaint::loadImage(deferred.path, deferred.highResolution);
        deferred.loaded = true;
    }
    return deferred.image;
}

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
