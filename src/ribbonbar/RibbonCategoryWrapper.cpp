#include "RibbonCategoryWrapper.h"

#include "RibbonApplication.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonPopupReplay_p.h"
#include "RibbonScale_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonStyle.h"
#include "RibbonTextFit_p.h"

#include <QFontMetrics>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

namespace zel {

struct RibbonCategoryWrapper::Priv
{
    Priv(RibbonCategoryPanel &p, RibbonCategoryAction &a)
        : panel(p)
        , action(a)
    {
    }

    RibbonCategoryPanel &panel;
    RibbonCategoryAction &action;
    bool colapsed = false;
    bool myChecked = false;
    RibbonCategory *category = nullptr;
    QPointer<RibbonCategoryWrapperPopup> popup;
    // The folded width wraps the caption by trial layouts; layouts ask for it on every
    // pass over every page, so it is kept for the caption and font it was found for.
    QString colapsedText;
    QFont colapsedFont;
    QSize colapsedSize;
};

RibbonCategoryWrapper::RibbonCategoryWrapper(RibbonCategoryPanel &panel, RibbonCategoryAction &action)
    : QAbstractButton(&panel)
    , d(new Priv(panel, action))
{
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    // Repaint on enter and leave: the collapsed button has a hover look.
    setAttribute(Qt::WA_Hover);

    d->category = new RibbonCategory(this, action);
    d->category->move(0, 0);
    // The group takes its size when the wrapper is shown (see event()): measuring it
    // now would measure every control of pages that may never be shown.

    // Folded, the wrapper is the button a screen reader meets: named by its caption.
    const auto nameFromCaption = [this] {
        const QString name = ribbonShownText(d->action.text());
        if (accessibleName() != name)
            setAccessibleName(name);
    };
    nameFromCaption();
    connect(&action, &QAction::changed, this, nameFromCaption);
}

RibbonCategoryWrapper::~RibbonCategoryWrapper()
{
    // The popup shows controls of this group; it must not outlive the wrapper's view of
    // it. It may be in the middle of its own event handling, so it goes at the next turn.
    if (RibbonCategoryWrapperPopup *popup = d->popup.data()) {
        d->popup = nullptr;
        popup->hide();
        popup->deleteLater();
    }
}

RibbonCategoryPanel &RibbonCategoryWrapper::categoryPanel() const
{
    return d->panel;
}

RibbonCategoryAction &RibbonCategoryWrapper::categoryAction() const
{
    return d->action;
}

RibbonCategory *RibbonCategoryWrapper::category() const
{
    return d->category;
}

bool RibbonCategoryWrapper::isColapsed() const
{
    return d->colapsed;
}

void RibbonCategoryWrapper::setColapsed(bool colapsed)
{
    if (d->colapsed == colapsed)
        return;
    d->colapsed = colapsed;
    d->category->setVisible(!colapsed);
    // An expanded group shows its controls in place; a popup of it would be a duplicate.
    if (!colapsed && d->popup)
        d->popup->close();
    updateGeometry();
    update();
}

bool RibbonCategoryWrapper::isMyChecked() const
{
    return d->myChecked;
}

void RibbonCategoryWrapper::setMyChecked(bool checked)
{
    if (d->myChecked == checked)
        return;
    d->myChecked = checked;
    if (checked && !d->popup)
        d->popup = new RibbonCategoryWrapperPopup(*this);
    ribbonAnnouncePopup(this, d->popup, checked);
    update();
}

RibbonCategoryWrapperPopup *RibbonCategoryWrapper::popup() const
{
    return d->popup.data();
}

QSize RibbonCategoryWrapper::normalSize() const
{
    return d->category->sizeHint();
}

QSize RibbonCategoryWrapper::colapsedSize() const
{
    const QString text = d->action.text();
    if (d->colapsedSize.isValid() && text == d->colapsedText && font() == d->colapsedFont)
        return d->colapsedSize;

    // Short captions stay on one line, longer ones take the narrowest two-line wrapping.
    const int width = qMax(ribbonCaptionFit(*this, text).captionWidth(), 38);
    d->colapsedText = text;
    d->colapsedFont = font();
    d->colapsedSize = QSize(width + 12, scaled(85));
    return d->colapsedSize;
}

QSize RibbonCategoryWrapper::sizeHint() const
{
    return normalSize();
}

QSize RibbonCategoryWrapper::minimumSizeHint() const
{
    return colapsedSize();
}

bool RibbonCategoryWrapper::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Show:
        // The group is not in a layout: follow its size hint by hand.
        if (d->category->size() != d->category->sizeHint()) {
            d->category->resize(d->category->sizeHint());
            updateGeometry();
        }
        break;
    default:
        break;
    }
    return QAbstractButton::event(event);
}

void RibbonCategoryWrapper::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && d->colapsed && !d->popup)
        setMyChecked(true);
}

void RibbonCategoryWrapper::mouseReleaseEvent(QMouseEvent *)
{
    // The press opened the popup; a release is no click of this button.
}

void RibbonCategoryWrapper::paintEvent(QPaintEvent *)
{
    if (!d->colapsed)
        return;

    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);

    namespace FoldedGroup = RibbonImageRows::FoldedGroup;
    const int row = d->myChecked                               ? FoldedGroup::Open
                    : (option.state & QStyle::State_MouseOver) ? FoldedGroup::Hover
                                                               : FoldedGroup::Normal;
    const int h = scaled(85);
    RibbonPaint::drawThreeSlice(painter, QRect(0, 0, width(), h), style.categoryWrapperBack(),
                                QRect(0, row * 85, 52, 85), 3, 3);

    RibbonPaint::drawPart(painter, QRect(width() / 2 - 3, height() - 10, 5, 3), style.categoryWrapperIcon(),
                          QRect(0, 0, 5, 3));

    const QIcon icon = d->action.icon();
    if (!icon.isNull()) {
        const QSize iconSize = icon.actualSize(size()).boundedTo(QSize(32, 32));
        const QRect target(width() / 2 - iconSize.width() / 2, scaled(24 - iconSize.height() / 2),
                           iconSize.width(), iconSize.height());
        icon.paint(&painter, target, Qt::AlignCenter, QIcon::Normal, QIcon::Off);
    }

    painter.setPen(style.categoryWrapperCaptionTextColor());
    painter.drawText(QRect(6, scaled(44), width() - 12, scaled(38)),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, d->action.text());
}

} // namespace zel
