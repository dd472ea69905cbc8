#pragma once

#include "zelribbon_export.h"

#include <QRect>
#include <QWidget>

namespace zel {

class RibbonCatMenuPalettePopup;

// The resize grip of a palette popup, a 9 x 8 child at its bottom-right corner, or at
// its top-right corner when the popup opened upwards. Dragging it resizes the popup
// from that corner (the opposite edge stays put), never below the popup's minimum size.
class ZELRIBBON_EXPORT RibbonCatMenuPalettePopupSizer : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonCatMenuPalettePopupSizer(RibbonCatMenuPalettePopup *popup);
    ~RibbonCatMenuPalettePopupSizer() override;

    // The corner of the popup the grip sits at, decided by where it was last moved to.
    Qt::Corner corner() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    RibbonCatMenuPalettePopup *m_popup;
    bool m_dragging = false;
    Qt::Corner m_corner = Qt::BottomRightCorner;
    QPoint m_pressPos;
    QRect m_pressGeometry;

    Q_DISABLE_COPY(RibbonCatMenuPalettePopupSizer)
};

} // namespace zel
