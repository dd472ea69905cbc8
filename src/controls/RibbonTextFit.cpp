#include "RibbonTextFit_p.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QHash>
#include <QRectF>
#include <QTextLayout>
#include <QWidget>

#include <cmath>

namespace zel {

namespace {

const int kFlags = Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap;

// Word-wrapped measuring with the shaping kept between trials. Each layout() lays
// the lines out the way the text-drawing code of QPainter does for bounding
// rectangles: lines start on whole pixels, are separated by the font's leading, and
// the block is centred in the trial width before being aligned to whole pixels.
class WrappedText
{
public:
    WrappedText(const QFont &font, const QString &text)
        : m_layout(text, font)
        , m_leading(QFontMetricsF(font).leading())
    {
        QTextOption option;
        option.setTextDirection(Qt::LeftToRight);
        option.setAlignment(Qt::AlignLeft);
        option.setWrapMode(QTextOption::WordWrap);
        m_layout.setTextOption(option);
        m_layout.setCacheEnabled(true);
        // One layout pass for all trials: beginLayout() would drop the shaped glyphs,
        // clearLayout() drops only the lines.
        m_layout.beginLayout();
    }

    ~WrappedText() { m_layout.endLayout(); }

    // The block of lines at a trial width, before it is centred in that width.
    struct Block
    {
        qreal width = 0;
        qreal height = 0;
        int lines = 0;
    };

    Block layout(int trial)
    {
        const qreal lineWidth = qMax<qreal>(0, trial);
        Block block;
        block.height = -m_leading;
        m_layout.clearLayout();
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            line.setLineWidth(lineWidth);
            block.height = std::ceil(block.height + m_leading);
            line.setPosition(QPointF(0, block.height));
            block.height += line.ascent() + line.descent();
            block.width = qMax(block.width, line.naturalTextWidth());
            ++block.lines;
        }
        return block;
    }

    static QRect aligned(const Block &block, int trial)
    {
        return QRectF((trial - block.width) / 2, 0, block.width, block.height).toAlignedRect();
    }

private:
    QTextLayout m_layout;
    qreal m_leading;
};

// Whether the text can be laid out directly: line feeds, tabs and carriage returns are
// turned into separators and spaces as text drawing does; the length-variant separator
// has no such counterpart and goes through QFontMetrics.
QString preparedText(const QString &text, bool *direct)
{
    QString out = text;
    *direct = !out.isEmpty();
    for (QChar &c : out) {
        if (c == QLatin1Char('\n'))
            c = QChar::LineSeparator;
        else if (c == QLatin1Char('\r') || c == QLatin1Char('\t'))
            c = QLatin1Char(' ');
        else if (c == QChar(ushort(0x9c)))
            *direct = false;
    }
    return out;
}

RibbonCaptionFit measureCaption(const QFont &font, const QString &text)
{
    const QFontMetrics fm(font);
    RibbonCaptionFit fit;
    fit.textWidth = fm.horizontalAdvance(text);
    fit.width = fit.textWidth;
    fit.wrapped = fit.textWidth + 4 >= 35;
    if (!fit.wrapped)
        return fit;

    const int limit = 2 * fm.height();
    bool direct = false;
    const QString prepared = preparedText(text, &direct);
    WrappedText wrapped(font, prepared);
    // Lines break between unbreakable runs. At width 0 every run takes a line of its own;
    // a wider trial that still gives as many lines holds the same lines, and so does every
    // narrower one: only the centring differs, and the search, which narrows while the
    // text fits, mostly ends among such trials.
    WrappedText::Block finest;
    int finestUpTo = 0; // trials up to this width lay out as finest
    if (direct)
        finest = wrapped.layout(0);
    int trial = fit.textWidth;
    int step = fit.textWidth;
    while (step != 0) {
        step /= 2;
        QRect bounds;
        if (direct) {
            const WrappedText::Block block = trial <= finestUpTo ? finest : wrapped.layout(trial);
            if (block.lines == finest.lines)
                finestUpTo = qMax(finestUpTo, trial);
            bounds = WrappedText::aligned(block, trial);
        } else {
            bounds = fm.boundingRect(QRect(0, 0, trial, 0), kFlags, text);
        }
        if (bounds.height() <= limit) {
            fit.width = bounds.width();
            fit.height = bounds.height();
            trial -= step;
        } else {
            trial += step;
        }
    }
    return fit;
}

struct CaptionKey
{
    QFont font;
    int dpi;
    QString text;

    bool operator==(const CaptionKey &other) const
    {
        return dpi == other.dpi && text == other.text && font == other.font;
    }
};

uint qHash(const CaptionKey &key, uint seed = 0)
{
    return ::qHash(key.text, seed) ^ ::qHash(key.font, seed) ^ uint(key.dpi);
}

} // namespace

RibbonCaptionFit ribbonCaptionFit(const QWidget &widget, const QString &text)
{
    // Captions are measured again whenever a button is rebuilt, re-synchronised or its
    // font changes back. QFont compares its request, not the resolution: that is kept too.
    static QHash<CaptionKey, RibbonCaptionFit> cache;
    CaptionKey key{widget.font(), widget.logicalDpiY(), text};
    const auto it = cache.constFind(key);
    if (it != cache.constEnd())
        return *it;
    if (cache.size() >= 2048)
        cache.clear();
    const RibbonCaptionFit fit = measureCaption(key.font, text);
    cache.insert(std::move(key), fit);
    return fit;
}

} // namespace zel
