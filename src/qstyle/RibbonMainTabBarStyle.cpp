#include "RibbonMainTabBarStyle.h"

#include "RibbonStyle.h"
#include "RibbonStylePainter_p.h"

#include <QPainter>
#include <QStyleOption>
#include <QTabBar>

namespace zel {

using namespace stylepainter;

RibbonMainTabBarStyle::RibbonMainTabBarStyle(QStyle *baseStyle, const RibbonStyle *ribbonStyle)
    : QProxyStyle(baseStyle)
    , m_ribbonStyle(const_cast<RibbonStyle *>(ribbonStyle))
{
}

RibbonMainTabBarStyle::~RibbonMainTabBarStyle() = default;

const RibbonStyle *RibbonMainTabBarStyle::ribbonStyle() const
{
    return m_ribbonStyle ? m_ribbonStyle.data() : stylepainter::palette();
}

void RibbonMainTabBarStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QTabBar *>(widget))
        widget->setAttribute(Qt::WA_Hover, true);
}

void RibbonMainTabBarStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                          QPainter *painter, const QWidget *widget) const
{
    // The tabs stand on the ribbon's own background: no base line under them.
    if (element == PE_FrameTabBarBase && ribbonStyle())
        return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void RibbonMainTabBarStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                        const QWidget *widget) const
{
    const RibbonStyle *style = ribbonStyle();
    if (style && option) {
        switch (element) {
        case CE_TabBarTabShape:
            if (drawTabShape(painter, option, *style))
                return;
            break;
        case CE_TabBarTabLabel:
            if (const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option)) {
                // Tab captions in the ribbon's text colours rather than the window text.
                QStyleOptionTab label(*tab);
                const QColor &color = (tab->state & State_Enabled) ? style->highlightedCategoryTextColor()
                                                                   : style->disabledCategoryTextColor();
                label.palette.setColor(QPalette::WindowText, color);
                label.palette.setColor(QPalette::ButtonText, color);
                QProxyStyle::drawControl(element, &label, painter, widget);
                return;
            }
            break;
        default:
            break;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace zel
