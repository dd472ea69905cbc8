#include "RibbonOptionsButton.h"

#include "RibbonImageRows_p.h"
#include "RibbonOptionsDialog.h"
#include "RibbonPanelPages_p.h"

#include <QPainter>

namespace zel {

struct RibbonOptionsButton::Priv
{
    explicit Priv(RibbonOptionsDialog &owner)
        : dialog(owner)
    {
    }

    RibbonOptionsDialog &dialog;
    RibbonSlices background;
};

RibbonOptionsButton::RibbonOptionsButton(RibbonOptionsDialog &dialog)
    : QAbstractButton(&dialog)
    , d(new Priv(dialog))
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setCheckable(true);
    setAttribute(Qt::WA_Hover); // repaint on entering and leaving
}

RibbonOptionsButton::~RibbonOptionsButton() = default;

RibbonOptionsDialog &RibbonOptionsButton::dialog() const
{
    return d->dialog;
}

QSize RibbonOptionsButton::sizeHint() const
{
    return RibbonPanelPages::buttonSizeHint(*this);
}

void RibbonOptionsButton::paintEvent(QPaintEvent *)
{
    // The dialog's buttons are a shade lighter than the stacked panes': the checked
    // one takes the hover frame, a hovered one the light hover frame.
    using namespace RibbonImageRows;
    const int frame = isChecked() ? PanelButton::Hover : underMouse() ? PanelButton::LightHover : NoRow;
    QPainter painter(this);
    RibbonPanelPages::paintButton(painter, *this, frame, d->background);
}

} // namespace zel
