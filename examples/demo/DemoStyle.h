#pragma once

#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QObject>

#include <utility>

// The demo's own panes take their colours from the ribbon's palette, so that they follow
// it from light to dark. apply(style) runs now and again on every switch, for as long as
// owner lives.
template<class Apply>
void followRibbonStyle(QObject *owner, Apply apply)
{
    zel::RibbonApplication &app = zel::RibbonApplication::theApp();
    apply(app.ribbonStyle());
    QObject::connect(&app, &zel::RibbonApplication::ribbonStyleChanged, owner,
                     [apply = std::move(apply)] { apply(zel::RibbonApplication::theApp().ribbonStyle()); });
}

// A style sheet that sets a label's text colour.
inline QString textColorSheet(const QColor &color)
{
    return QStringLiteral("color: %1;").arg(color.name());
}
