#include "RibbonChildWindow.h"

#include "RibbonApplication.h"
#include "RibbonScale_p.h"
#include "RibbonSmallSysBtnClose.h"
#include "RibbonStyle.h"
#include "RibbonSysDockButton.h"

#include <QCloseEvent>
#include <QPainter>
#include <QRegion>

namespace zel {

namespace {

// The caption strip is 20 pixels high at 96 DPI and grows with the resolution, as its
// title does; the caption buttons keep the size of their images.
int captionHeight()
{
    return scaled(20);
}

constexpr int ButtonStep = 18; // each caption button takes this much from the right edge
constexpr int TitleInset = 5;

} // namespace

struct RibbonChildWindow::Priv
{
    bool captionFrame = true;
    bool dockable = false;
    RibbonSmallSysBtnClose *closeButton = nullptr;
    RibbonSysDockButton *dockButton = nullptr;
};

RibbonChildWindow::RibbonChildWindow(QWidget *parent, bool dockable)
    : QWidget(parent, Qt::WindowFlags())
    , d(new Priv)
{
    d->dockable = dockable;
    if (dockable) {
        d->dockButton = new RibbonSysDockButton(this);
        connect(d->dockButton, SIGNAL(clicked()), this, SLOT(onUndocking()));
    }
    d->closeButton = new RibbonSmallSysBtnClose(this);
    connect(&RibbonApplication::theApp(), SIGNAL(ribbonStyleChanged()), this, SLOT(ribbonStyleChanged()));
    // The button goes through QWidget::close(), so a host's own close() call and the
    // button both announce closed() from closeEvent().
    connect(d->closeButton, SIGNAL(clicked()), this, SLOT(close()));
    ribbonStyleChanged();
    setContentsMargins(1, captionHeight(), 1, 1);
}

RibbonChildWindow::~RibbonChildWindow() = default;

void RibbonChildWindow::showDockingButton(bool show)
{
    if (!d->dockable || !d->dockButton)
        return;
    d->dockButton->setVisible(show);
    update();
}

void RibbonChildWindow::drawCaptionFrame(bool draw)
{
    if (d->captionFrame == draw)
        return;
    d->captionFrame = draw;
    update();
}

void RibbonChildWindow::onUndocking()
{
    emit undocking();
}

void RibbonChildWindow::ribbonStyleChanged()
{
    QPalette pal = palette();
    pal.setColor(QPalette::All, QPalette::Window, RibbonApplication::theApp().ribbonStyle().frameNormalFillColor());
    setPalette(pal);
    update();
}

void RibbonChildWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange)
        update();
}

void RibbonChildWindow::closeEvent(QCloseEvent *event)
{
    emit closed();
    QWidget::closeEvent(event);
}

void RibbonChildWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int w = width();
    const int h = height();
    // One pixel from the top at 96 DPI, centred in the taller strip of higher resolutions.
    const int y = 1 + (captionHeight() - 20) / 2;
    d->closeButton->move(w - ButtonStep, y);
    if (d->dockButton)
        d->dockButton->move(w - 2 * ButtonStep, y);

    // One pixel off each corner. (A polygon region through the corner pixels would
    // leave out the whole right column and bottom row as well.)
    QRegion mask(0, 0, w, h);
    for (const QPoint &corner : {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1), QPoint(w - 1, h - 1)})
        mask -= QRegion(corner.x(), corner.y(), 1, 1);
    setMask(mask);
}

void RibbonChildWindow::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    painter.fillRect(rect(), style.frameNormalFillColor());
    const int caption = captionHeight();
    if (d->captionFrame) {
        painter.setPen(style.frameOutlineColor());
        painter.drawLine(0, caption - 1, width() - 1, caption - 1);
    }

    // The title stops short of the leftmost caption button instead of running under it.
    int buttonsLeft = width() - ButtonStep;
    if (d->dockButton && !d->dockButton->isHidden())
        buttonsLeft -= ButtonStep;
    QFont bold = painter.font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(Qt::black);
    painter.drawText(QRect(0, 0, buttonsLeft, caption - 2).adjusted(TitleInset, 1, -TitleInset, 1),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, windowTitle());
}

} // namespace zel
