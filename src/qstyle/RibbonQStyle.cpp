#include "RibbonQStyle.h"

#include "RibbonApplication.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"
#include "RibbonStylePainter_p.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QMenuBar>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>

#include <algorithm>

namespace zel {

using namespace stylepainter;

namespace {

// Menu item layout. Horizontal metrics are fixed pixels, heights scale with the screen.
constexpr int kMenuItemMargin = 2;    // between the panel edge and an item's highlight
constexpr int kMenuCheckColumn = 26;  // check mark or icon column
constexpr int kMenuTextGap = 8;       // between that column and the text
constexpr int kMenuArrowArea = 20;    // sub-menu arrow at the right
constexpr int kMenuShortcutGap = 24;  // between text and shortcut
constexpr int kMenuItemHeight = 22;
constexpr int kMenuSeparatorHeight = 7;

// Row heights of the state sheets the style draws from (all nine-sliced with 2-pixel
// borders) and their rows.
constexpr int kPaletteItemSmallRowHeight = 22; // hover, pressed, checked, checked hover, disabled
constexpr int kCheckableMenuItemRowHeight = 22; // checked, checked hover, checked disabled
constexpr int kComboBoxRowHeight = 22;         // normal, hover, open, disabled
constexpr int kToolBoxTabRowHeight = 24;       // normal, hover, current
constexpr int kTooltipBorder = 3;              // the tool-tip image is one nine-slice

int menuCheckColumnWidth(const QStyleOptionMenuItem *item)
{
    return std::max(kMenuCheckColumn, item->maxIconWidth + 10);
}

const QColor &textColor(const RibbonStyle &style, const QStyleOption *option)
{
    return (option->state & QStyle::State_Enabled) ? style.highlightedCategoryTextColor()
                                                    : style.disabledCategoryTextColor();
}

void drawCheckMark(QPainter *painter, const QRect &rect, const QColor &color)
{
    const qreal w = rect.width();
    const qreal h = rect.height();
    QPainterPath path;
    path.moveTo(rect.left() + 0.22 * w, rect.top() + 0.52 * h);
    path.lineTo(rect.left() + 0.42 * w, rect.top() + 0.72 * h);
    path.lineTo(rect.left() + 0.80 * w, rect.top() + 0.30 * h);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(QPen(color, std::max(1.5, w / 7.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(path);
    painter->restore();
}

int scaledHeight(int value);

// A small arrow that grows with the screen resolution: 7 x 4 pixels at 96 DPI.
void drawFilledArrow(QPainter *painter, const QRect &rect, Qt::ArrowType type, const QColor &color)
{
    const int width = scaledHeight(7) | 1;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    drawArrow(painter, rect, type, width, width / 2 + 1);
    painter->restore();
}

// Fills rect unless the palette leaves the colour unset.
void fillRect(QPainter *painter, const QRect &rect, const QColor &color)
{
    if (color.isValid())
        painter->fillRect(rect, color);
}

// Heights scale with the screen of the running RibbonApplication.
int scaledHeight(int value)
{
    auto *app = qobject_cast<RibbonApplication *>(QCoreApplication::instance());
    return app && app->dpiFactor().second > 0.0 ? scaled(value) : value;
}

QRect centeredSquare(const QRect &rect, int side)
{
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

} // namespace

RibbonQStyle::RibbonQStyle(QStyle *baseStyle, const RibbonStyle *ribbonStyle)
    : QProxyStyle(baseStyle)
    , m_ribbonStyle(const_cast<RibbonStyle *>(ribbonStyle))
{
}

RibbonQStyle::~RibbonQStyle() = default;

const RibbonStyle *RibbonQStyle::ribbonStyle() const
{
    return m_ribbonStyle ? m_ribbonStyle.data() : stylepainter::palette();
}

void RibbonQStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // Hover feedback needs repaints on enter and leave.
    if (qobject_cast<QScrollBar *>(widget) || qobject_cast<QComboBox *>(widget) || qobject_cast<QTabBar *>(widget)
        || qobject_cast<QMenuBar *>(widget) || qobject_cast<QAbstractButton *>(widget))
        widget->setAttribute(Qt::WA_Hover, true);
}

void RibbonQStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    const RibbonStyle *style = ribbonStyle();
    if (!style || !option) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }

    switch (element) {
    case PE_PanelMenu:
        drawFlatPanel(painter, option->rect, style->mainMenuBgColor(), style->backstageGrayBorderColor());
        return;
    case PE_FrameMenu:
        drawFlatPanel(painter, option->rect, QColor(), style->backstageGrayBorderColor());
        return;
    case PE_PanelMenuBar:
        fillRect(painter, option->rect, style->mainClientColor());
        return;
    case PE_PanelTipLabel:
        if (!drawStateRow(painter, option->rect, style->tooltipBack(), 0, 0, kTooltipBorder))
            drawFlatPanel(painter, option->rect, style->mainMenuBgColor(), style->backstageGrayBorderColor());
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        drawCheckIndicator(option, painter, false);
        return;
    case PE_IndicatorRadioButton:
        drawCheckIndicator(option, painter, true);
        return;
    case PE_PanelButtonTool:
        if (option->state & State_AutoRaise) {
            const State state = option->state;
            if (!(state & State_Enabled))
                return;
            int row = -1;
            if (state & State_Sunken)
                row = 1;
            else if (state & State_On)
                row = (state & State_MouseOver) ? 3 : 2;
            else if (state & State_MouseOver)
                row = 0;
            if (row < 0)
                return;
            if (!drawStateRow(painter, option->rect, style->paletteItemSmall(), kPaletteItemSmallRowHeight, row)) {
                const QColor &fill = row == 0 ? style->backstageBlueHoverColor() : style->backstageBluePressedColor();
                drawFlatPanel(painter, option->rect, fill, style->backstageBlueBorderHoverColor());
            }
            return;
        }
        break;
    case PE_PanelButtonCommand: {
        const State state = option->state;
        const bool enabled = state & State_Enabled;
        const bool pressed = enabled && (state & (State_Sunken | State_On));
        const bool hover = enabled && (state & State_MouseOver);
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        const bool isDefault = button && (button->features & QStyleOptionButton::DefaultButton);
        const QColor fill = !enabled ? style->mainClientColor()
            : pressed ? style->backstageBluePressedColor()
            : hover ? style->backstageBlueHoverColor()
                    : style->backstageSimpleButtonColor();
        const QColor &outline = !enabled ? style->separatorColor()
            : (pressed || hover) ? style->backstageBlueBorderHoverColor()
            : (isDefault || (state & State_HasFocus)) ? style->frameBorderColor()
                                                      : style->backstageGrayBorderColor();
        drawFlatPanel(painter, option->rect, fill, outline);
        return;
    }
    case PE_FrameDefaultButton:
        return;
    case PE_FrameFocusRect:
        // Push buttons show the focus with their outline.
        if (qobject_cast<const QPushButton *>(widget))
            return;
        break;
    case PE_PanelLineEdit:
        // Inside a spin box or an editable combo box the host control draws the frame.
        if (widget && (qobject_cast<const QAbstractSpinBox *>(widget->parentWidget())
                       || qobject_cast<const QComboBox *>(widget->parentWidget())))
            break;
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option)) {
            const bool enabled = frame->state & State_Enabled;
            const QColor fill = enabled ? frame->palette.color(QPalette::Base) : style->mainClientColor();
            if (frame->lineWidth <= 0) {
                drawFlatPanel(painter, frame->rect, fill, QColor());
                return;
            }
            const QColor &outline = !enabled ? style->separatorColor()
                : (frame->state & State_HasFocus) ? style->frameBorderColor()
                : (frame->state & State_MouseOver) ? style->backstageBlueBorderHoverColor()
                                                    : style->backstageGrayBorderColor();
            drawFlatPanel(painter, frame->rect, fill, outline);
            return;
        }
        break;
    case PE_FrameTabWidget:
        drawFlatPanel(painter, option->rect, style->mainMenuBgColor(), style->backstageGrayBorderColor());
        return;
    case PE_FrameTabBarBase:
        if (const auto *base = qstyleoption_cast<const QStyleOptionTabBarBase *>(option)) {
            if (base->shape == QTabBar::RoundedNorth || base->shape == QTabBar::TriangularNorth) {
                painter->save();
                painter->setPen(style->backstageGrayBorderColor());
                painter->drawLine(base->rect.bottomLeft(), base->rect.bottomRight());
                painter->restore();
                return;
            }
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void RibbonQStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const RibbonStyle *style = ribbonStyle();
    if (!style || !option) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }

    switch (element) {
    case CE_MenuItem:
        drawMenuItem(option, painter, widget);
        return;
    case CE_MenuEmptyArea:
        fillRect(painter, option->rect, style->mainMenuBgColor());
        return;
    case CE_MenuBarEmptyArea:
        fillRect(painter, option->rect, style->mainClientColor());
        return;
    case CE_MenuBarItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
            fillRect(painter, item->rect, style->mainClientColor());
            const bool enabled = item->state & State_Enabled;
            const bool open = item->state & State_Sunken;
            const bool hover = item->state & State_Selected;
            if (enabled && (open || hover))
                drawFlatPanel(painter, item->rect, open ? style->backstageBluePressedColor() : style->backstageBlueHoverColor(),
                              style->backstageBlueBorderHoverColor());
            int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine;
            if (!proxy()->styleHint(SH_UnderlineShortcut, item, widget))
                flags |= Qt::TextHideMnemonic;
            painter->save();
            painter->setPen(textColor(*style, item));
            painter->drawText(item->rect, flags, item->text);
            painter->restore();
            return;
        }
        break;
    case CE_ToolBar:
        // The default palette leaves the tool-bar fill unset: the base style paints it then.
        if (style->toolBarFillColor().isValid()) {
            fillRect(painter, option->rect, style->toolBarFillColor());
            return;
        }
        break;
    case CE_ToolBoxTabShape: {
        const State state = option->state;
        const bool enabled = state & State_Enabled;
        int row = 0;
        if (state & State_Selected)
            row = 2;
        else if (enabled && (state & State_MouseOver))
            row = 1;
        if (!drawStateRow(painter, option->rect, style->toolBoxTabBack(), kToolBoxTabRowHeight, row)) {
            if (row == 2) {
                drawFlatPanel(painter, option->rect, style->mainMenuBgColor(), style->backstageGrayBorderColor());
                fillRect(painter, QRect(option->rect.left(), option->rect.top(), 3, option->rect.height()),
                                  style->frameBorderColor());
            } else if (row == 1) {
                drawFlatPanel(painter, option->rect, style->backstageBlueHoverColor(),
                              style->backstageBlueBorderHoverColor());
            } else {
                drawFlatPanel(painter, option->rect, style->mainClientColor(), style->separatorColor());
            }
        }
        return;
    }
    case CE_TabBarTabShape:
        if (drawTabShape(painter, option, *style))
            return;
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void RibbonQStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    if (ribbonStyle() && option) {
        switch (control) {
        case CC_ScrollBar:
            if (qstyleoption_cast<const QStyleOptionSlider *>(option)) {
                drawScrollBar(option, painter, widget);
                return;
            }
            break;
        case CC_ComboBox:
            if (qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
                drawComboBox(option, painter, widget);
                return;
            }
            break;
        case CC_SpinBox:
            if (qstyleoption_cast<const QStyleOptionSpinBox *>(option)) {
                drawSpinBox(option, painter, widget);
                return;
            }
            break;
        default:
            break;
        }
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QSize RibbonQStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                                     const QWidget *widget) const
{
    if (type == CT_MenuItem && ribbonStyle()) {
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
            if (item->menuItemType == QStyleOptionMenuItem::Separator)
                return QSize(menuCheckColumnWidth(item) + 2 * kMenuTextGap, scaledHeight(kMenuSeparatorHeight));
            int width = 2 * kMenuItemMargin + menuCheckColumnWidth(item) + kMenuTextGap + contentsSize.width()
                + kMenuArrowArea;
            // The menu adds the width of the widest shortcut on its own.
            if (item->text.contains(QLatin1Char('\t')))
                width += kMenuShortcutGap;
            // The height follows the item's font, not contentsSize: a combo box's popup
            // passes its whole item rectangle as the contents.
            int height = std::max(item->fontMetrics.height() + scaledHeight(6), scaledHeight(kMenuItemHeight));
            if (!item->icon.isNull()) {
                const int extent = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
                height = std::max(height, item->icon.actualSize(QSize(extent, extent)).height() + scaledHeight(6));
            }
            return QSize(width, height);
        }
    }
    return QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

int RibbonQStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuHMargin:
        return 0;
    case PM_MenuVMargin:
        return 2;
    case PM_MenuBarItemSpacing:
        return 0;
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
    case PM_MenuBarPanelWidth:
        return 0;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int RibbonQStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_Menu_FadeOutOnHide:
    case SH_Menu_AllowActiveAndDisabled:
        return 0;
    default:
        break;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void RibbonQStyle::drawMenuItem(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const RibbonStyle *style = ribbonStyle();
    if (!item) {
        QProxyStyle::drawControl(CE_MenuItem, option, painter, widget);
        return;
    }

    const QRect rect = item->rect;
    painter->save();
    fillRect(painter, rect, style->mainMenuBgColor());

    const int checkColumn = menuCheckColumnWidth(item);
    const int textLeft = rect.left() + kMenuItemMargin + checkColumn + kMenuTextGap;

    if (item->menuItemType == QStyleOptionMenuItem::Separator) {
        painter->setPen(style->separatorColor());
        const int y = rect.center().y();
        painter->drawLine(textLeft - kMenuTextGap / 2, y, rect.right() - kMenuItemMargin, y);
        painter->restore();
        return;
    }
    if (item->menuItemType == QStyleOptionMenuItem::EmptyArea || item->menuItemType == QStyleOptionMenuItem::Margin) {
        painter->restore();
        return;
    }

    const bool enabled = item->state & State_Enabled;
    const bool selected = item->state & State_Selected;
    const QRect highlight = rect.adjusted(kMenuItemMargin, 0, -kMenuItemMargin, 0);
    if (selected) {
        const int row = enabled ? 0 : 4;
        if (!drawStateRow(painter, highlight, style->paletteItemSmall(), kPaletteItemSmallRowHeight, row)) {
            if (enabled)
                drawFlatPanel(painter, highlight, style->backstageBlueHoverColor(), style->backstageBlueBorderHoverColor());
            else
                drawFlatPanel(painter, highlight, QColor(), style->separatorColor());
        }
    }

    // Check column: the checked background, then the icon or a check mark on top.
    const QRect column(rect.left() + kMenuItemMargin, rect.top(), checkColumn, rect.height());
    const bool checked = item->checkType != QStyleOptionMenuItem::NotCheckable && item->checked;
    const int side = std::min(column.width(), rect.height()) - 2;
    const QRect checkRect = centeredSquare(column, side);
    if (checked) {
        const int row = !enabled ? 2 : (selected ? 1 : 0);
        if (!drawStateRow(painter, checkRect, style->checkableMenuItemBack(), kCheckableMenuItemRowHeight, row)) {
            drawFlatPanel(painter, checkRect,
                          enabled ? style->backstageBluePressedColor() : style->separatorColor(),
                          enabled ? style->backstageBlueBorderHoverColor() : style->disabledCategoryTextColor());
        }
    }
    if (!item->icon.isNull()) {
        const int iconSize = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
        const QIcon::Mode mode = !enabled ? QIcon::Disabled : (selected ? QIcon::Active : QIcon::Normal);
        const QPixmap pixmap = item->icon.pixmap(QSize(iconSize, iconSize), mode, checked ? QIcon::On : QIcon::Off);
        const QSize logical = pixmap.size() / pixmap.devicePixelRatio();
        QRect target(QPoint(0, 0), logical);
        target.moveCenter(column.center());
        painter->drawPixmap(target, pixmap);
    } else if (checked) {
        const QColor &mark = enabled ? style->frameBorderColor() : style->disabledCategoryTextColor();
        if (item->checkType == QStyleOptionMenuItem::Exclusive) {
            painter->setRenderHint(QPainter::Antialiasing, true);
            painter->setPen(Qt::NoPen);
            painter->setBrush(mark);
            painter->drawEllipse(QRectF(centeredSquare(checkRect, scaledHeight(6))));
            painter->setRenderHint(QPainter::Antialiasing, false);
        } else {
            drawCheckMark(painter, centeredSquare(checkRect, std::min(side - 4, scaledHeight(14))), mark);
        }
    }

    // Text and shortcut.
    QString text = item->text;
    QString shortcut;
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        shortcut = text.mid(tab + 1);
        text.truncate(tab);
    }
    int flags = Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine;
    if (!proxy()->styleHint(SH_UnderlineShortcut, item, widget))
        flags |= Qt::TextHideMnemonic;
    QFont font = item->font;
    if (item->menuItemType == QStyleOptionMenuItem::DefaultItem)
        font.setBold(true);
    painter->setFont(font);
    painter->setPen(textColor(*style, item));
    const int textRight = rect.right() - kMenuItemMargin - kMenuArrowArea;
    const QRect textRect(textLeft, rect.top(), std::max(0, textRight - textLeft + 1), rect.height());
    painter->drawText(textRect, flags | Qt::AlignLeft, text);
    if (!shortcut.isEmpty())
        painter->drawText(textRect, (flags & ~Qt::TextShowMnemonic) | Qt::AlignRight, shortcut);

    if (item->menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRect arrowArea(textRight + 1, rect.top(), kMenuArrowArea, rect.height());
        const bool rtl = item->direction == Qt::RightToLeft;
        drawFilledArrow(painter, arrowArea, rtl ? Qt::LeftArrow : Qt::RightArrow, textColor(*style, item));
    }
    painter->restore();
}

void RibbonQStyle::drawScrollBar(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    const RibbonStyle *style = ribbonStyle();
    const bool horizontal = bar->orientation == Qt::Horizontal;
    const bool enabled = bar->state & State_Enabled;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    fillRect(painter, bar->rect, style->mainClientColor());

    const auto partState = [bar](SubControl part) {
        if (!(bar->activeSubControls & part))
            return 0;
        return (bar->state & State_Sunken) ? 2 : ((bar->state & State_MouseOver) ? 1 : 0);
    };

    if (bar->subControls & SC_ScrollBarSlider) {
        const QRect handle = proxy()->subControlRect(CC_ScrollBar, bar, SC_ScrollBarSlider, widget);
        if (handle.isValid() && enabled && bar->maximum > bar->minimum) {
            const int state = partState(SC_ScrollBarSlider);
            const QColor &fill = state == 2 ? style->backstageGrayBorderPressedColor()
                : state == 1 ? style->backstageGrayBorderHoverColor()
                             : style->frameRaiseColor();
            // A thin flat thumb inset from the groove's long edges.
            const QRect thumb = horizontal ? handle.adjusted(1, 3, -1, -3) : handle.adjusted(3, 1, -3, -1);
            fillRect(painter, thumb, fill);
        }
    }

    const auto drawButton = [&](SubControl part, Qt::ArrowType arrow) {
        if (!(bar->subControls & part))
            return;
        const QRect rect = proxy()->subControlRect(CC_ScrollBar, bar, part, widget);
        if (!rect.isValid())
            return;
        const int state = enabled ? partState(part) : 0;
        if (state == 2)
            fillRect(painter, rect, style->frameRaiseColor());
        else if (state == 1)
            fillRect(painter, rect, style->separatorColor());
        const QColor &color = !enabled ? style->disabledCategoryTextColor()
            : state > 0 ? style->highlightedCategoryTextColor()
                        : style->backstageGrayBorderPressedColor();
        drawFilledArrow(painter, rect, arrow, color);
    };
    const bool rtl = bar->direction == Qt::RightToLeft;
    drawButton(SC_ScrollBarSubLine, horizontal ? (rtl ? Qt::RightArrow : Qt::LeftArrow) : Qt::UpArrow);
    drawButton(SC_ScrollBarAddLine, horizontal ? (rtl ? Qt::LeftArrow : Qt::RightArrow) : Qt::DownArrow);
    painter->restore();
}

void RibbonQStyle::drawComboBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const RibbonStyle *style = ribbonStyle();
    const State state = combo->state;
    const bool enabled = state & State_Enabled;
    const bool open = state & (State_On | State_Sunken);
    const bool hover = state & State_MouseOver;
    const bool focus = state & State_HasFocus;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    const QRect arrowRect = proxy()->subControlRect(CC_ComboBox, combo, SC_ComboBoxArrow, widget);

    if (combo->frame) {
        const int row = !enabled ? 3 : open ? 2 : hover ? 1 : 0;
        if (!drawStateRow(painter, combo->rect, style->comboBox(), kComboBoxRowHeight, row)) {
            const QColor fill = enabled ? combo->palette.color(QPalette::Base) : style->mainClientColor();
            const QColor &outline = !enabled ? style->separatorColor()
                : open || focus ? style->frameBorderColor()
                : hover ? style->backstageBlueBorderHoverColor()
                        : style->backstageGrayBorderColor();
            drawFlatPanel(painter, combo->rect, fill, QColor());
            if (enabled && (open || hover)) {
                const QRect button = QRect(arrowRect.left(), combo->rect.top(), combo->rect.right() - arrowRect.left() + 1,
                                           combo->rect.height());
                fillRect(painter, button, open ? style->backstageBluePressedColor() : style->backstageBlueHoverColor());
            }
            drawFlatPanel(painter, combo->rect, QColor(), outline);
        }
    } else if (enabled && (open || hover)) {
        fillRect(painter, combo->rect, open ? style->backstageBluePressedColor() : style->backstageBlueHoverColor());
    }

    if (combo->subControls & SC_ComboBoxArrow)
        drawFilledArrow(painter, arrowRect, Qt::DownArrow, textColor(*style, combo));
    painter->restore();
}

void RibbonQStyle::drawSpinBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const RibbonStyle *style = ribbonStyle();
    const State state = spin->state;
    const bool enabled = state & State_Enabled;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    if (spin->frame) {
        const QColor fill = enabled ? spin->palette.color(QPalette::Base) : style->mainClientColor();
        const QColor &outline = !enabled ? style->separatorColor()
            : (state & State_HasFocus) ? style->frameBorderColor()
            : (state & State_MouseOver) ? style->backstageBlueBorderHoverColor()
                                        : style->backstageGrayBorderColor();
        drawFlatPanel(painter, spin->rect, fill, outline);
    }
    if (spin->buttonSymbols != QAbstractSpinBox::NoButtons) {
        const bool plusMinus = spin->buttonSymbols == QAbstractSpinBox::PlusMinus;
        const auto drawButton = [&](SubControl part, QAbstractSpinBox::StepEnabledFlag step, Qt::ArrowType arrow) {
            if (!(spin->subControls & part))
                return;
            QRect rect = proxy()->subControlRect(CC_SpinBox, spin, part, widget);
            if (spin->frame)
                rect = rect.intersected(spin->rect.adjusted(1, 1, -1, -1));
            const bool active = enabled && (spin->stepEnabled & step);
            if (active && (spin->activeSubControls & part)) {
                const bool pressed = state & State_Sunken;
                fillRect(painter, rect, pressed ? style->backstageBluePressedColor() : style->backstageBlueHoverColor());
            }
            const QColor &color = active ? style->highlightedCategoryTextColor() : style->disabledCategoryTextColor();
            if (plusMinus) {
                const int extent = scaledHeight(7) | 1;
                QRect bar(0, 0, extent, 1);
                bar.moveCenter(rect.center());
                fillRect(painter, bar, color);
                if (arrow == Qt::UpArrow) {
                    QRect upright(0, 0, 1, extent);
                    upright.moveCenter(rect.center());
                    fillRect(painter, upright, color);
                }
            } else {
                drawFilledArrow(painter, rect, arrow, color);
            }
        };
        drawButton(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow);
        drawButton(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow);
    }
    painter->restore();
}

void RibbonQStyle::drawCheckIndicator(const QStyleOption *option, QPainter *painter, bool radio) const
{
    const RibbonStyle *style = ribbonStyle();
    const State state = option->state;
    const bool enabled = state & State_Enabled;
    const bool hover = enabled && (state & State_MouseOver);
    const bool pressed = enabled && (state & State_Sunken);
    const int side = std::min(option->rect.width(), option->rect.height());
    const QRect box = centeredSquare(option->rect, side);

    const QColor fill = !enabled ? style->mainClientColor()
        : pressed ? style->backstageBluePressedColor()
        : hover ? style->backstageBlueHoverColor()
                : option->palette.color(QPalette::Base);
    const QColor &outline = !enabled ? style->disabledCategoryTextColor()
        : (hover || pressed) ? style->frameBorderColor()
                             : style->backstageGrayBorderPressedColor();
    const QColor mark = enabled ? legibleOn(fill, style->frameBorderColor(), style->normalCategoryTextColor())
                                : style->disabledCategoryTextColor();

    painter->save();
    if (radio) {
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->setPen(outline);
        painter->setBrush(fill);
        painter->drawEllipse(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5));
        if (state & State_On) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(mark);
            const qreal inset = side * 0.28;
            painter->drawEllipse(QRectF(box).adjusted(inset, inset, -inset, -inset));
        }
    } else {
        drawFlatPanel(painter, box, fill, outline);
        if (state & State_NoChange)
            fillRect(painter, box.adjusted(3, 3, -3, -3), mark);
        else if (state & State_On)
            drawCheckMark(painter, box, mark);
    }
    painter->restore();
}

} // namespace zel
