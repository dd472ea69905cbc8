#pragma once

#include "zelribbon_export.h"

#include <QColor>
#include <QPoint>
#include <QWidget>

namespace zel {

// The grid of a colour picker, RibbonColorPickerPopup::ColorItems: the fixed colours in
// cells of 20 x 16 pixels, 8 columns of 5 rows. Pressing and releasing on the same cell
// selects its colour.
class ZELRIBBON_EXPORT RibbonColorPickerItems : public QWidget
{
    Q_OBJECT
public:
    static const int Columns = 8;
    static const int Rows = 5;
    static const int CellWidth = 20;
    static const int CellHeight = 16;

    explicit RibbonColorPickerItems(QWidget *parent);
    ~RibbonColorPickerItems() override;

    // The colour of a cell of the table; invalid outside the table.
    static QColor colorAt(const QPoint &cell);
    // The cell under a point of the widget; (-1, -1) outside the table.
    static QPoint cellAt(const QPoint &pos);

    // Selects the cell of color and returns true; without such a cell (or without
    // keep-selection) no cell is selected and the result is false.
    bool selectColor(const QColor &color);
    QPoint selectedCell() const;
    void setKeepSelection(bool keep);

    QSize sizeHint() const override;

signals:
    void colorSelected(const QColor &color);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPoint m_pressedCell = QPoint(-1, -1);
    QPoint m_selectedCell = QPoint(2, 2);
    bool m_keepSelection = true;

    Q_DISABLE_COPY(RibbonColorPickerItems)
};

} // namespace zel
