#pragma once

#include "zelribbon_export.h"

#include <QProxyStyle>

namespace zel {

// Style of the main tab bar: flat tabs drawn from the palette's tab shape image.
class ZELRIBBON_EXPORT RibbonMainTabBarStyle : public QProxyStyle
{
    Q_OBJECT
public:
    // Takes ownership of baseStyle; nullptr means the default base style.
    explicit RibbonMainTabBarStyle(QStyle *baseStyle = nullptr);
    ~RibbonMainTabBarStyle() override;

    void polish(QWidget *widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

private:
    Q_DISABLE_COPY(RibbonMainTabBarStyle)
};

} // namespace zel
