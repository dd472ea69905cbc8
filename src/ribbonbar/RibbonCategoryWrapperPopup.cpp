#include "RibbonCategoryWrapperPopup.h"

#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonContextMenu_p.h"
#include "RibbonScale_p.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPointer>
#include <QPolygon>
#include <QRegion>
#include <QScreen>

namespace zel {

struct RibbonCategoryWrapperPopup::Priv
{
    QPointer<RibbonCategoryWrapper> wrapper;
    QHBoxLayout *layout = nullptr;
    RibbonCategory *category = nullptr;
    // Whoever had the focus gets it back when the popup goes.
    QPointer<QWidget> focusWidget;
};

RibbonCategoryWrapperPopup::RibbonCategoryWrapperPopup(RibbonCategoryWrapper &wrapper)
    : QWidget(nullptr, Qt::Popup)
    , d(new Priv)
{
    d->wrapper = &wrapper;
    d->focusWidget = QApplication::focusWidget();

    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->category = new RibbonCategory(this, wrapper.categoryAction());
    d->layout->addWidget(d->category);

    // Any command of the group closes the popup.
    connect(&wrapper.categoryAction(), SIGNAL(ribbonActionActivated()), this, SLOT(close()));

    show();
}

RibbonCategoryWrapperPopup::~RibbonCategoryWrapperPopup() = default;

RibbonCategoryWrapper *RibbonCategoryWrapperPopup::wrapper() const
{
    return d->wrapper.data();
}

RibbonCategory *RibbonCategoryWrapperPopup::category() const
{
    return d->category;
}

void RibbonCategoryWrapperPopup::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void RibbonCategoryWrapperPopup::place()
{
    if (RibbonCategoryWrapper *wrapper = d->wrapper.data()) {
        QRect r(wrapper->mapToGlobal(QPoint(0, wrapper->height() - 1)), size());
        const QScreen *screen = wrapper->screen();
        const QRect available = screen ? screen->availableGeometry() : QRect();
        if (available.isValid()) {
            // No room below: open upwards, above the whole panel area.
            if (r.bottom() > available.bottom())
                r.moveBottom(r.top() - scaled(92));
            if (r.right() > available.right())
                r.moveRight(available.right());
        }
        move(r.topLeft());
    }

    // Cut off the four corner pixels.
    const int w = width();
    const int h = height();
    QPolygon shape;
    shape << QPoint(1, 0) << QPoint(w - 2, 0) << QPoint(w - 2, 1) << QPoint(w - 1, 1)
          << QPoint(w - 1, h - 2) << QPoint(w - 2, h - 2) << QPoint(w - 2, h - 1) << QPoint(1, h - 1)
          << QPoint(1, h - 2) << QPoint(0, h - 2) << QPoint(0, 1) << QPoint(1, 1) << QPoint(1, 0);
    setMask(QRegion(shape, Qt::OddEvenFill));
}

void RibbonCategoryWrapperPopup::mousePressEvent(QMouseEvent *event)
{
    if (rect().contains(event->pos()))
        return;
    QWidget::mousePressEvent(event);
}

void RibbonCategoryWrapperPopup::closeEvent(QCloseEvent *event)
{
    if (RibbonCategoryWrapper *wrapper = d->wrapper.data()) {
        if (wrapper->isMyChecked())
            wrapper->setMyChecked(false);
    }
    if (d->focusWidget)
        d->focusWidget->setFocus(Qt::PopupFocusReason);
    event->accept();
    deleteLater();
}

void RibbonCategoryWrapperPopup::contextMenuEvent(QContextMenuEvent *event)
{
    ribbonOpenContextMenu(*this, event);
}

} // namespace zel
