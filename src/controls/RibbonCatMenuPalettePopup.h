#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

class QScrollBar;

namespace zel {

class RibbonAction;
class RibbonCatMenuAction;

// The drop-down of a palette menu: the items of a RibbonCatMenuAction as a grid of
// square icon cells (56 pixels, 20 for a small menu) with a vertical scroll bar and a
// resize grip. It opens below the button given as its parent, or above it when there
// is no room below (the grip then sits at the top). Pressing and releasing on the same
// enabled item triggers it. It shows itself when made and deletes itself when closed.
class ZELRIBBON_EXPORT RibbonCatMenuPalettePopup : public QWidget
{
    Q_OBJECT
public:
    RibbonCatMenuPalettePopup(RibbonCatMenuAction &action, QWidget *parent);
    ~RibbonCatMenuPalettePopup() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Columns and rows of cells the current size holds; -1 without a known menu size.
    int numColumns() const;
    int numRows() const;
    // Where the resize grip sits: Qt::BottomRightCorner, or Qt::TopRightCorner when the
    // popup opened upwards.
    Qt::Corner gripSizerCorner() const;

    QScrollBar *scrollBar() const;
    // Index in the menu's items of the first cell shown.
    int firstIndex() const;
    // The rectangle in which the cells are laid out.
    QRect itemArea() const;
    // The item whose cell contains pos, null when none (or for the scroll bar column).
    RibbonAction *itemAt(const QPoint &pos) const;

signals:
    void closed();

protected:
    void updateScrollBar();
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void scrolled(int value);

private:
    // Where the popup goes for a size: below its button, or above when there is no
    // room below; sets whether it opens upwards.
    QPoint placement(const QSize &size);

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCatMenuPalettePopup)
};

} // namespace zel
