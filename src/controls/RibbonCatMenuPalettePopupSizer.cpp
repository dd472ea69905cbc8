#include "RibbonCatMenuPalettePopupSizer.h"

#include "RibbonApplication.h"
#include "RibbonCatMenuPalettePopup.h"
#include "RibbonStyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace zel {

RibbonCatMenuPalettePopupSizer::RibbonCatMenuPalettePopupSizer(RibbonCatMenuPalettePopup *popup)
    : QWidget(popup)
    , m_popup(popup)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFixedSize(9, 8);
    setCursor(Qt::SizeFDiagCursor);
    setMouseTracking(true);
}

RibbonCatMenuPalettePopupSizer::~RibbonCatMenuPalettePopupSizer() = default;

Qt::Corner RibbonCatMenuPalettePopupSizer::corner() const
{
    return m_corner;
}

void RibbonCatMenuPalettePopupSizer::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_dragging = true;
    m_pressPos = event->globalPos();
    m_pressGeometry = m_popup->geometry();
}

void RibbonCatMenuPalettePopupSizer::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_dragging = false;
}

void RibbonCatMenuPalettePopupSizer::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging || !(event->buttons() & Qt::LeftButton)) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const QSize minimum = m_popup->minimumSizeHint();
    const QPoint g = event->globalPos();
    const int width = qMax(m_pressGeometry.width() - m_pressPos.x() + g.x(), minimum.width());
    switch (m_corner) {
    case Qt::BottomRightCorner:
        m_popup->resize(width, qMax(m_pressGeometry.height() - m_pressPos.y() + g.y(), minimum.height()));
        break;
    case Qt::TopRightCorner: {
        // The bottom edge stays; the top follows the mouse down to the minimum height.
        const int bottom = m_pressGeometry.y() + m_pressGeometry.height();
        const int top = qMin(g.y() + m_pressGeometry.top() - m_pressPos.y(), bottom - minimum.height());
        m_popup->setGeometry(m_pressGeometry.x(), top, width, bottom - top);
        break;
    }
    default:
        break;
    }
}

void RibbonCatMenuPalettePopupSizer::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    if (y() <= m_popup->height() / 2) {
        m_corner = Qt::TopRightCorner;
        setCursor(Qt::SizeBDiagCursor);
    } else {
        m_corner = Qt::BottomRightCorner;
        setCursor(Qt::SizeFDiagCursor);
    }
    update();
}

void RibbonCatMenuPalettePopupSizer::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_corner == Qt::TopRightCorner ? style.popupResizeBarIconTR()
                                                            : style.popupResizeBarIconBR());
}

} // namespace zel
