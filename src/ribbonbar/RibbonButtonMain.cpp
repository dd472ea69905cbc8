#include "RibbonButtonMain.h"

#include "RibbonApplication.h"
#include "RibbonImageRows_p.h"
#include "RibbonMenuBar.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QPainter>

namespace zel {

RibbonButtonMain::RibbonButtonMain(RibbonMenuBar &menuBar)
    : QAbstractButton(&menuBar)
    , m_menuBar(menuBar)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setFixedHeight(24);
    setMouseTracking(true);
    // The hovered look needs a repaint on enter and leave.
    setAttribute(Qt::WA_Hover);
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
}

RibbonButtonMain::~RibbonButtonMain() = default;

RibbonMenuBar &RibbonButtonMain::ribbonMenuBar() const
{
    return m_menuBar;
}

QString RibbonButtonMain::text() const
{
    return m_text;
}

void RibbonButtonMain::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    updateGeometry();
    update();
}

QSize RibbonButtonMain::sizeHint() const
{
    return QSize(fontMetrics().horizontalAdvance(m_text) + 20, 0);
}

void RibbonButtonMain::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);

    namespace FileButton = RibbonImageRows::FileButton;
    const int row = (underMouse() || isChecked()) ? FileButton::HoverOrChecked : FileButton::Normal;
    RibbonPaint::drawThreeSlice(painter, QRect(0, 0, width(), 24), style.fileBarButton(),
                                QRect(0, row * 24, 57, 24), 5, 5);

    painter.setPen(style.fileMenuBarTextColor());
    painter.drawText(rect().adjusted(6, 0, -6, 0),
                     Qt::AlignCenter | Qt::TextSingleLine | Qt::TextHideMnemonic, m_text);
}

} // namespace zel
