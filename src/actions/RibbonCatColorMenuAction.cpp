#include "RibbonCatColorMenuAction.h"

#include "RibbonCatColorMenuButton.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QToolBar>

namespace zel {

RibbonCatColorMenuAction::RibbonCatColorMenuAction(const QIcon &icon, const QString &text, eSize size,
                                                   QObject *parent)
    : RibbonSimpleAction(icon, text, parent)
    , m_baseIcon(icon)
    , m_size(size)
{
    updateIcon();
}

RibbonCatColorMenuAction::RibbonCatColorMenuAction(QPointer<QAction> alias, const QIcon &icon,
                                                   const QString &text, eSize size, QObject *parent)
    : RibbonSimpleAction(alias, icon, text, parent)
    , m_baseIcon(icon)
    , m_size(size)
{
    updateIcon();
}

RibbonCatColorMenuAction::~RibbonCatColorMenuAction() = default;

RibbonCatColorMenuAction::eSize RibbonCatColorMenuAction::size() const
{
    return m_size;
}

QColor RibbonCatColorMenuAction::color() const
{
    return m_color;
}

QColor RibbonCatColorMenuAction::automaticColor() const
{
    return m_automaticColor;
}

void RibbonCatColorMenuAction::setAutomaticColor(const QColor &color)
{
    if (color == m_automaticColor)
        return;
    m_automaticColor = color;
    announceChange();
}

bool RibbonCatColorMenuAction::hasAutomaticColor() const
{
    return m_flags & HasAutomaticColor;
}

void RibbonCatColorMenuAction::setHasAutomaticColor(bool has)
{
    offer(HasAutomaticColor, IsAutomatic, has);
}

bool RibbonCatColorMenuAction::isAutomatic() const
{
    return m_flags & IsAutomatic;
}

bool RibbonCatColorMenuAction::hasNoneColor() const
{
    return m_flags & HasNoneColor;
}

void RibbonCatColorMenuAction::setHasNoneColor(bool has)
{
    offer(HasNoneColor, IsNone, has);
}

bool RibbonCatColorMenuAction::isNone() const
{
    return m_flags & IsNone;
}

bool RibbonCatColorMenuAction::keepsSelection() const
{
    return m_keepSelection;
}

void RibbonCatColorMenuAction::setKeepSelection(bool keep)
{
    if (keep == m_keepSelection)
        return;
    m_keepSelection = keep;
    announceChange();
}

bool RibbonCatColorMenuAction::hasGradient() const
{
    return m_hasGradient;
}

void RibbonCatColorMenuAction::setHasGradient(bool has)
{
    if (has == m_hasGradient)
        return;
    m_hasGradient = has;
    announceChange();
}

bool RibbonCatColorMenuAction::gradient() const
{
    return m_gradient;
}

void RibbonCatColorMenuAction::setColor(const QColor &color)
{
    // An invalid colour would reach the host as a colour to apply; it stands for "no
    // colour" whatever state is in force.
    if (!color.isValid()) {
        setNone();
        return;
    }
    const bool special = m_flags & (IsAutomatic | IsNone);
    if (!special && m_keepSelection && color == m_color)
        return;
    m_flags &= ~(IsAutomatic | IsNone);
    m_color = color;
    announceChange();
    emit colorSet(m_color);
}

void RibbonCatColorMenuAction::setAutomatic()
{
    if (!hasAutomaticColor() || isAutomatic())
        return;
    m_flags = (m_flags & ~IsNone) | IsAutomatic;
    announceChange();
    emit automaticSet();
}

void RibbonCatColorMenuAction::setNone()
{
    if (!hasNoneColor() || isNone())
        return;
    m_flags = (m_flags & ~IsAutomatic) | IsNone;
    m_color = Qt::white;
    announceChange();
    emit noneSet();
}

void RibbonCatColorMenuAction::setGradient(bool gradient)
{
    if (gradient == m_gradient)
        return;
    m_gradient = gradient;
    sendActionChangedEvt();
    emit gradientSet(m_gradient);
}

void RibbonCatColorMenuAction::offer(int hasFlag, int isFlag, bool offered)
{
    if (offered == bool(m_flags & hasFlag))
        return;
    // A special state cannot stay in force once it is no longer offered: the colour
    // takes over (without an announcement: the host withdrew it).
    m_flags = offered ? m_flags | hasFlag : m_flags & ~(hasFlag | isFlag);
    announceChange();
}

void RibbonCatColorMenuAction::announceChange()
{
    updateIcon();
    sendActionChangedEvt();
}

QWidget *RibbonCatColorMenuAction::createWidget(QWidget *parent)
{
    // Inside the ribbon the category and the button strip make the button themselves.
    if (qobject_cast<QToolBar *>(parent))
        return new RibbonCatColorMenuButton(*this, parent);
    return nullptr;
}

void RibbonCatColorMenuAction::updateIcon()
{
    // A command without an icon shows no colour bar either: its button is text (or the
    // arrow) alone.
    if (m_baseIcon.isNull()) {
        if (!icon().isNull())
            setIcon(QIcon());
        return;
    }
    const bool large = m_size == ColorSizeLarge;
    const int extent = large ? 32 : 16;
    QColor bar;
    if (isAutomatic())
        bar = m_automaticColor;
    else if (!isNone())
        bar = m_color;
    // Composed at 1x and 2x, so a high-resolution screen gets the base icon's finer
    // drawing rather than the 1x one scaled up.
    QIcon composed;
    for (const int ratio : {1, 2}) {
        QImage image(extent * ratio, extent * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        // A base icon without a drawing as large as asked keeps its own size (in
        // pixels of the 1x image) at the top left.
        const QPixmap base = m_baseIcon.pixmap(QSize(extent, extent) * ratio);
        painter.drawPixmap(QRectF(QPointF(0, 0), QSizeF(base.size()) / (base.devicePixelRatio() * ratio)), base,
                           QRectF(base.rect()));
        if (bar.isValid())
            painter.fillRect(large ? QRect(2, 26, 28, 4) : QRect(0, 12, 16, 4), bar);
        painter.end();
        composed.addPixmap(QPixmap::fromImage(image));
    }
    setIcon(composed);
}

} // namespace zel
