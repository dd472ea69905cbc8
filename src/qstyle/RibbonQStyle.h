#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QProxyStyle>

namespace zel {

class RibbonStyle;

// Paints the standard Qt controls (menus, scroll bars, check boxes, radio buttons,
// combo and spin boxes, push buttons, line edits, tool tips, tool-box tabs, tabs, tool
// buttons) in the palette's colours and images over a base style, so that they sit well
// next to the ribbon. Whatever it does not paint itself, and everything while no
// palette is available, is left to the base style.
class ZELRIBBON_EXPORT RibbonQStyle : public QProxyStyle
{
    Q_OBJECT
public:
    // Takes ownership of baseStyle (nullptr: the application's default base style).
    // ribbonStyle is the palette to paint with; nullptr means the application's palette.
    explicit RibbonQStyle(QStyle *baseStyle = nullptr, const RibbonStyle *ribbonStyle = nullptr);
    ~RibbonQStyle() override;

    void polish(QWidget *widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                           const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

private:
    void drawMenuItem(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawScrollBar(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
    void drawComboBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
    void drawSpinBox(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
    void drawCheckIndicator(const QStyleOption *option, QPainter *painter, bool radio) const;

    // The palette in use: the one given at construction while it lives, else the
    // application's; nullptr when there is none, and the base style paints alone.
    const RibbonStyle *ribbonStyle() const;

    QPointer<RibbonStyle> m_ribbonStyle;

    Q_DISABLE_COPY(RibbonQStyle)
};

} // namespace zel
