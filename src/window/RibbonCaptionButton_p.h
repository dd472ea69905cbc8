#pragma once

// What the two small buttons of a child window's caption (close and undock) share: their
// size and the back they show hovered and pressed. Not installed.

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"
#include "RibbonWindowImages_p.h"

#include <QPainter>
#include <QWidget>

namespace zel {
namespace RibbonCaptionButton {

// 17 by 16, the size of one frame of sysBtnBack; never takes the focus.
inline void setUp(QWidget &button)
{
    button.setFixedSize(WindowImages::SysButtonBack::Width, WindowImages::SysButtonBack::RowHeight);
    button.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button.setFocusPolicy(Qt::NoFocus);
    button.setAttribute(Qt::WA_Hover); // repaint on entering and leaving
}

// The hovered or pressed back over the whole button; nothing at rest.
inline void drawBack(QPainter &painter, const QWidget &button, bool hovered, bool pressed)
{
    namespace Back = WindowImages::SysButtonBack;
    if (!hovered && !pressed)
        return;
    RibbonPaint::drawPart(painter, button.rect(), RibbonApplication::theApp().ribbonStyle().sysBtnBack(),
                          QRect(0, pressed ? Back::PressedRow : Back::HoverRow, Back::Width, Back::RowHeight));
}

} // namespace RibbonCaptionButton
} // namespace zel
