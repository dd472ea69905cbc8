#include "RibbonSysButton.h"

#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QStyleOptionButton>

namespace zel {

namespace {

// Frames of the glyph strips (17 pixels wide, one 16-pixel frame per state).
constexpr int kGlyphWidth = 17;
constexpr int kGlyphHeight = 16;
constexpr int kGlyphPressed = 0;
constexpr int kGlyphHover = 16;
constexpr int kGlyphActive = 32;
constexpr int kGlyphInactive = 64;

} // namespace

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

    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    if (hover && !pressed)
        painter.drawPixmap(rect(), style.sysBtnBack(), QRect(0, 0, kGlyphWidth, kGlyphHeight));
    else if (pressed)
        painter.drawPixmap(rect(), style.sysBtnBack(), QRect(0, 16, kGlyphWidth, kGlyphHeight));

    const bool windowActive = m_window && m_window->isActiveWindow();
    int y = windowActive ? kGlyphActive : kGlyphInactive;
    if (pressed)
        y = kGlyphPressed;
    else if (hover)
        y = kGlyphHover;

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
        painter.drawPixmap(rect(), *glyph, QRect(0, y, kGlyphWidth, kGlyphHeight));
}

} // namespace zel
