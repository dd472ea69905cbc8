#include "RibbonStackedButton.h"

#include "RibbonImageRows_p.h"
#include "RibbonPanelPages_p.h"
#include "RibbonStackedWidget.h"

#include <QPainter>

namespace zel {

struct RibbonStackedButton::Priv
{
    explicit Priv(RibbonStackedWidget &owner)
        : stackedWidget(owner)
    {
    }

    RibbonStackedWidget &stackedWidget;
    RibbonSlices background;
};

RibbonStackedButton::RibbonStackedButton(RibbonStackedWidget &stackedWidget)
    : QAbstractButton(&stackedWidget)
    , d(new Priv(stackedWidget))
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setCheckable(true);
    setAttribute(Qt::WA_Hover); // repaint on entering and leaving
}

RibbonStackedButton::~RibbonStackedButton() = default;

RibbonStackedWidget &RibbonStackedButton::stackedWidget() const
{
    return d->stackedWidget;
}

QSize RibbonStackedButton::sizeHint() const
{
    return RibbonPanelPages::buttonSizeHint(*this);
}

void RibbonStackedButton::paintEvent(QPaintEvent *)
{
    using namespace RibbonImageRows;
    const int frame = isChecked() ? PanelButton::Checked : underMouse() ? PanelButton::Hover : NoRow;
    QPainter painter(this);
    RibbonPanelPages::paintButton(painter, *this, frame, d->background);
}

} // namespace zel
