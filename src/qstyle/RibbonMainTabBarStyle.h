#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QProxyStyle>

namespace zel {

class RibbonStyle;

// Style of the main tab bar: flat tabs drawn from the palette's tab shape image.
class ZELRIBBON_EXPORT RibbonMainTabBarStyle : public QProxyStyle
{
    Q_OBJECT
public:
    // Takes ownership of baseStyle (nullptr: the application's default base style).
    // ribbonStyle is the palette to paint with; nullptr means the application's palette.
    explicit RibbonMainTabBarStyle(QStyle *baseStyle = nullptr, const RibbonStyle *ribbonStyle = nullptr);
    ~RibbonMainTabBarStyle() override;

    void polish(QWidget *widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

private:
    // The palette in use: the one given at construction while it lives, else the
    // application's; nullptr when there is none, and the base style paints alone.
    const RibbonStyle *ribbonStyle() const;

    QPointer<RibbonStyle> m_ribbonStyle;

    Q_DISABLE_COPY(RibbonMainTabBarStyle)
};

} // namespace zel
