#include "RibbonSysButton.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"
#include "RibbonWindowImages_p.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QStyleOptionButton>

namespace zel {

RibbonSysButton::RibbonSysButton(QWidget *window, int type, QWidget *parent)
    : QPushButton(parent ? parent : window)
    , m_window(window)
    , m_type(type)
{
    setFixedSize(20, 20);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
}

RibbonSysButton::~RibbonSysButton() = default;

QWidget *RibbonSysButton::mainWindow() const
{
    return m_window;
}

int RibbonSysButton::type() const
{
    return m_type;
}

void RibbonSysButton::mouseMoveEvent(QMouseEvent *event)
{
    update();
    QPushButton::mouseMoveEvent(event);
}

void RibbonSysButton::leaveEvent(QEvent *event)
{
    update();
    QPushButton::leaveEvent(event);
}

void RibbonSysButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);

    if (m_type == SystemMenu) {
        const QPixmap icon = QApplication::windowIcon().pixmap(QSize(18, 18), QIcon::Normal, QIcon::Off);
        if (!icon.isNull())
            painter.drawPixmap(QRect(1, 1, 18, 18), icon);
        return;
    }

    QStyleOptionButton option;
    initStyleOption(&option);
    // Not every style option carries the hover state; the widget knows it in any case.
    const bool hover = (option.state & QStyle::State_MouseOver) || underMouse();
    const bool pressed = option.state & QStyle::State_Sunken;

    namespace Back = WindowImages::SysButtonBack;
    namespace Glyph = WindowImages::SysButtonGlyph;
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    if (hover && !pressed)
        RibbonPaint::drawPart(painter, rect(), style.sysBtnBack(), QRect(0, Back::HoverRow, Back::Width, Back::RowHeight));
    else if (pressed)
        RibbonPaint::drawPart(painter, rect(), style.sysBtnBack(), QRect(0, Back::PressedRow, Back::Width, Back::RowHeight));

    const bool windowActive = m_window && m_window->isActiveWindow();
    int y = windowActive ? Glyph::ActiveRow : Glyph::InactiveRow;
    if (pressed)
        y = Glyph::PressedRow;
    else if (hover)
        y = Glyph::HoverRow;

    const QPixmap *glyph = nullptr;
    switch (m_type) {
    case Minimize:
        glyph = &style.sysBtnMinimize();
        break;
    case MaximizeRestore:
        glyph = (m_window && m_window->isMaximized()) ? &style.sysBtnRestore() : &style.sysBtnMaximize();
        break;
    case Close:
        glyph = &style.sysBtnClose();
        break;
    default:
        break;
    }
    if (glyph)
        RibbonPaint::drawPart(painter, rect(), *glyph, QRect(0, y, Glyph::Width, Glyph::RowHeight));
}

} // namespace zel
