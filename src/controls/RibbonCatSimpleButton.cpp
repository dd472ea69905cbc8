#include "RibbonCatSimpleButton.h"

#include "RibbonApplication.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonImageRows_p.h"
#include "RibbonMetaMethod_p.h"
#include "RibbonPaint_p.h"
#include "RibbonScale_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonStyle.h"
#include "RibbonTextFit_p.h"

#include <QActionEvent>
#include <QPainter>
#include <QPointer>

namespace zel {

namespace {

const int kLargeRow = 66;
const int kSmallRow = 22;
const int kLargeIcon = 32;
const int kSmallIcon = 16;
const int kLargeTextFlags = Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap;

} // namespace

struct RibbonCatSimpleButton::Priv
{
    QPointer<QAction> action;

    RibbonCatSimpleAction *liveAction() const { return qobject_cast<RibbonCatSimpleAction *>(action); }

    RibbonCatSimpleAction::eSize size = RibbonCatSimpleAction::SizeLarge;
    mutable QSize sizeHint; // invalid until computed
    RibbonSlices background;
};

RibbonCatSimpleButton::RibbonCatSimpleButton(RibbonCatSimpleAction &action, QWidget *parent)
    : QAbstractButton(parent)
    , d(new Priv)
{
    d->action = &action;
    d->size = action.size();
    if (d->size == RibbonCatSimpleAction::SizeLarge)
        capToDesignFont(*this);
    addAction(&action);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    // Between meta-methods: a connection to a function pointer would carry a slot
    // object of its own, in every button.
    static const QMetaMethod actionChanged = ribbonMetaMethod<QAction>("changed()");
    static const QMetaMethod repaint = ribbonMetaMethod<QWidget>("update()");
    static const QMetaMethod buttonClicked = ribbonMetaMethod<QAbstractButton>("clicked(bool)");
    static const QMetaMethod triggerAction = ribbonMetaMethod<QAction>("trigger()");
    connect(&action, actionChanged, this, repaint);
    connect(this, buttonClicked, &action, triggerAction);
}

RibbonCatSimpleButton::~RibbonCatSimpleButton() = default;

RibbonCatSimpleAction *RibbonCatSimpleButton::action() const
{
    return d->liveAction();
}

QSize RibbonCatSimpleButton::sizeHint() const
{
    if (d->sizeHint.isValid())
        return d->sizeHint;

    const QFontMetrics fm = fontMetrics();
    const QString caption = text();
    int width = 0;
    int height = scaled(kSmallRow);
    switch (d->size) {
    case RibbonCatSimpleAction::SizeLarge:
        width = qMax(ribbonCaptionFit(*this, caption).captionWidth() + 10, 42);
        height = scaled(kLargeRow);
        break;
    case RibbonCatSimpleAction::SizeMedium:
        width = (icon().isNull() ? 0 : 18) + (caption.isEmpty() ? 0 : fm.horizontalAdvance(caption) + 10);
        break;
    case RibbonCatSimpleAction::SizeSmall:
        width = icon().isNull() ? 4 : 22;
        break;
    }
    if (RibbonCatSimpleAction *action = d->liveAction()) {
        if (action->minimalWidth() != -1)
            width = qMax(width, action->minimalWidth());
    }
    d->sizeHint = QSize(width, height);
    return d->sizeHint;
}

void RibbonCatSimpleButton::actionEvent(QActionEvent *event)
{
    QAbstractButton::actionEvent(event);
    QAction *own = d->action;
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionChanged:
        if (own && event->action() == own) {
            setEnabled(own->isEnabled());
            setIcon(own->icon());
            setText(own->text());
            setToolTip(ribbonScreenTip(own));
            setCheckable(own->isCheckable());
            setChecked(own->isChecked());
            d->sizeHint = QSize();
            updateGeometry();
        }
        break;
    case QEvent::ActionRemoved:
        // Also reached while the action is being destroyed: compare addresses only.
        if (own && event->action() == own)
            d->action = nullptr;
        break;
    default:
        break;
    }
    update();
}

void RibbonCatSimpleButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        d->sizeHint = QSize();
        updateGeometry();
    }
    QAbstractButton::changeEvent(event);
}

void RibbonCatSimpleButton::enterEvent(QEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void RibbonCatSimpleButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void RibbonCatSimpleButton::nextCheckState()
{
}

void RibbonCatSimpleButton::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const bool enabled = isEnabled();
    const bool hovered = underMouse();

    using namespace RibbonImageRows;
    int state = NoRow;
    if (!enabled)
        state = isCheckable() && isChecked() ? PaletteItem::Disabled : NoRow;
    else if (isDown())
        state = PaletteItem::Pressed;
    else if (isCheckable() && isChecked())
        state = hovered ? PaletteItem::CheckedHover : PaletteItem::Checked;
    else if (hovered)
        state = PaletteItem::Hover;

    const int w = width();
    const int h = height();
    const QMargins border(2, 2, 2, 2);
    QPainter painter(this);

    if (d->size == RibbonCatSimpleAction::SizeLarge) {
        if (state != NoRow) {
            d->background.set(rect(), QRect(0, 0, RibbonPaint::logicalSize(style.paletteItemLarge()).width(), kLargeRow), border);
            d->background.draw(painter, style.paletteItemLarge(), state * kLargeRow);
        }
        const QPixmap pixmap = RibbonPaint::iconPixmap(icon(), kLargeIcon, enabled, *this);
        if (!pixmap.isNull()) {
            const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
            painter.drawPixmap((w - ps.width()) / 2, (32 - ps.height()) / 2 + 2, pixmap);
        }
        painter.setPen(RibbonPaint::textColor(enabled));
        const QRect textRect = QRect(0, scaled(34), w, h - 34)
                                   .adjusted(scaled(2), scaled(2), scaled(-2), scaled(-2));
        // Descenders of the second line may reach a pixel beyond the rectangle.
        painter.drawText(textRect, kLargeTextFlags | Qt::TextDontClip, text());
        return;
    }

    if (state != NoRow) {
        d->background.set(rect(), QRect(0, 0, RibbonPaint::logicalSize(style.paletteItemSmall()).width(), kSmallRow), border);
        d->background.draw(painter, style.paletteItemSmall(), state * kSmallRow);
    }
    const QPixmap pixmap = RibbonPaint::iconPixmap(icon(), kSmallIcon, enabled, *this);
    if (!pixmap.isNull()) {
        const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
        painter.drawPixmap((18 - ps.width()) / 2 + 2, scaled((18 - ps.height()) / 2 + 2), pixmap);
    }
    if (d->size == RibbonCatSimpleAction::SizeMedium && !text().isEmpty()) {
        const int left = pixmap.isNull() ? 2 : 20;
        painter.setPen(RibbonPaint::textColor(enabled));
        const QRect textRect = QRect(left, 0, w - left, h)
                                   .adjusted(scaled(2), scaled(2), scaled(-2), scaled(-2));
        painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    }
}

} // namespace zel
