#include "RibbonSysDockButton.h"

#include "RibbonCaptionButton_p.h"

#include <QStyleOptionButton>

namespace zel {

RibbonSysDockButton::RibbonSysDockButton(QWidget *parent)
    : QPushButton(parent)
{
    RibbonCaptionButton::setUp(*this);
}

RibbonSysDockButton::~RibbonSysDockButton() = default;

void RibbonSysDockButton::paintEvent(QPaintEvent *)
{
    namespace Glyph = WindowImages::SysButtonGlyph;
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool pressed = option.state & QStyle::State_Sunken;
    const bool hovered = (option.state & QStyle::State_MouseOver) && !pressed;

    QPainter painter(this);
    RibbonCaptionButton::drawBack(painter, *this, hovered, pressed);
    RibbonPaint::drawPart(painter, rect(), RibbonApplication::theApp().ribbonStyle().sysBtnRestore(),
                          QRect(0, pressed ? Glyph::PressedRow : Glyph::UndockRestingRow, Glyph::Width, Glyph::RowHeight));
}

} // namespace zel
