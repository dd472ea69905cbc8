#include "RibbonSmallSysBtnClose.h"

#include "RibbonCaptionButton_p.h"

#include <QPainter>

namespace zel {

RibbonSmallSysBtnClose::RibbonSmallSysBtnClose(QWidget *parent)
    : QAbstractButton(parent)
{
    RibbonCaptionButton::setUp(*this);
}

RibbonSmallSysBtnClose::~RibbonSmallSysBtnClose() = default;

bool RibbonSmallSysBtnClose::closeHintSet() const
{
    const QWidget *owner = parentWidget();
    return owner && owner->windowFlags().testFlag(Qt::WindowCloseButtonHint);
}

bool RibbonSmallSysBtnClose::hitButton(const QPoint &pos) const
{
    // The signals follow the hint only from one show to the next; refusing the press
    // also honours a hint the host cleared while the button was on screen.
    return closeHintSet() && QAbstractButton::hitButton(pos);
}

void RibbonSmallSysBtnClose::showEvent(QShowEvent *event)
{
    QAbstractButton::showEvent(event);
    blockSignals(!closeHintSet());
}

void RibbonSmallSysBtnClose::paintEvent(QPaintEvent *)
{
    if (!closeHintSet())
        return;
    namespace Glyph = WindowImages::SmallSysButtonGlyph;
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    const bool down = isDown();
    const bool hovered = underMouse() && !down;
    RibbonCaptionButton::drawBack(painter, *this, hovered, down);
    const int glyphRow = down ? Glyph::PressedRow : hovered ? Glyph::HoverRow : Glyph::ChildNormalRow;
    const QRect glyph(0, 0, Glyph::Width, Glyph::RowHeight);
    RibbonPaint::drawPart(painter, glyph.translated(rect().center() - glyph.center()), style.sysBtnCloseSmall(),
                          glyph.translated(0, glyphRow));
}

} // namespace zel
