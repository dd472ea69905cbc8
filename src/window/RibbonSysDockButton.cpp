#include "RibbonSysDockButton.h"

#include "RibbonApplication.h"
#include "RibbonStyle.h"
#include "RibbonWindowImages_p.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace zel {

RibbonSysDockButton::RibbonSysDockButton(QWidget *parent)
    : QPushButton(parent)
{
    setFixedSize(17, 16);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover); // repaint on entering and leaving
}

RibbonSysDockButton::~RibbonSysDockButton() = default;

void RibbonSysDockButton::paintEvent(QPaintEvent *)
{
    namespace Back = WindowImages::SysButtonBack;
    namespace Glyph = WindowImages::SysButtonGlyph;
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool pressed = option.state & QStyle::State_Sunken;
    const bool hovered = (option.state & QStyle::State_MouseOver) && !pressed;

    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    if (hovered || pressed) {
        painter.drawPixmap(rect(), style.sysBtnBack(),
                           QRect(0, pressed ? Back::PressedRow : Back::HoverRow, Back::Width, Back::RowHeight));
    }
    painter.drawPixmap(rect(), style.sysBtnRestore(),
                       QRect(0, pressed ? Glyph::PressedRow : Glyph::UndockRestingRow, Glyph::Width, Glyph::RowHeight));
}

} // namespace zel
