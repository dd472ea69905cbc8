#include "RibbonCatColorMenuButton.h"

#include "RibbonApplication.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonColorPickerPopup.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonPopupReplay_p.h"
#include "RibbonScale_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonStyle.h"
#include "RibbonTextFit_p.h"

#include <QActionEvent>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace zel {

namespace {

const int kRowHeight = 22;   // one-row buttons, and the rows of the drop-down images
const int kLargeHeight = 66; // large buttons, and the rows of paletteItemLarge
const int kSmallIcon = 16;
const int kLargeIcon = 32;

using Action = RibbonCatColorMenuAction;

} // namespace

struct RibbonCatColorMenuButton::Priv
{
    explicit Priv(QWidget *owner)
        : popup(owner)
    {
    }

    RibbonColorPickerPopup popup;
    QPointer<QAction> action;
    int lineCount = 2;
    mutable QSize sizeHint; // invalid until computed
    QPointer<QWidget> savedFocus;
    RibbonSlices background;

    Action *liveAction() const { return qobject_cast<Action *>(action); }
};

RibbonCatColorMenuButton::RibbonCatColorMenuButton(RibbonCatColorMenuAction &action, QWidget *parent)
    : QWidget(parent)
    , d(new Priv(this))
{
    d->action = &action;
    d->popup.setKeepSelection(action.keepsSelection());
    addAction(&action);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);

    d->popup.installEventFilter(this);
    connect(&d->popup, &RibbonColorPickerPopup::hidden, this, &RibbonCatColorMenuButton::popupClosed);
    connect(&d->popup, &RibbonColorPickerPopup::noneColorSelected, &action, &Action::setNone);
    connect(&d->popup, &RibbonColorPickerPopup::automaticColorSelected, &action, &Action::setAutomatic);
    connect(&d->popup, &RibbonColorPickerPopup::colorSelected, &action, &Action::setColor);
    connect(&d->popup, &RibbonColorPickerPopup::gradientChecked, &action, &Action::setGradient);
}

RibbonCatColorMenuButton::~RibbonCatColorMenuButton()
{
    // The popup is destroyed with the private part; nothing it sends on the way may
    // reach this half-destroyed button.
    d->popup.removeEventFilter(this);
    disconnect(&d->popup, nullptr, this, nullptr);
}

RibbonCatColorMenuAction *RibbonCatColorMenuButton::action() const
{
    return d->liveAction();
}

RibbonColorPickerPopup &RibbonCatColorMenuButton::popup() const
{
    return d->popup;
}

QSize RibbonCatColorMenuButton::sizeHint() const
{
    if (d->sizeHint.isValid())
        return d->sizeHint;
    const Action *action = d->liveAction();
    if (!action)
        return QSize(0, 0);

    const QString text = action->text();
    const bool noIcon = action->icon().isNull();
    switch (action->size()) {
    case Action::ColorSizeSmall:
        // The height of a small drop-down button does not scale: it holds only the
        // 16-pixel icon, as a small menu button does.
        d->sizeHint = QSize(noIcon ? 15 : 31, kRowHeight);
        break;
    case Action::ColorSizeMedium: {
        // The height scales with the caption's font, as every captioned ribbon button's.
        const int textWidth = text.isEmpty() ? 0 : fontMetrics().horizontalAdvance(text) + 4;
        d->sizeHint = QSize(textWidth + 31 - (noIcon ? 16 : 0), scaled(kRowHeight));
        break;
    }
    case Action::ColorSizeLarge:
        d->sizeHint = QSize(qMax(ribbonCaptionFit(*this, text).captionWidth() + 10, 42), scaled(kLargeHeight));
        break;
    }
    return d->sizeHint;
}

void RibbonCatColorMenuButton::processEvents(QEvent *event)
{
    if (!event || event->type() != QEvent::MouseButtonPress)
        return;
    if (auto *mouse = dynamic_cast<QMouseEvent *>(event))
        mousePressEvent(mouse);
}

void RibbonCatColorMenuButton::calculateLineCount()
{
    const Action *action = d->liveAction();
    // Only a large button shows its caption on more than one line.
    if (!action || action->size() != Action::ColorSizeLarge)
        return;
    const RibbonCaptionFit fit = ribbonCaptionFit(*this, action->text());
    if (!fit.wrapped)
        d->lineCount = 1;
    else if (fit.height > 0)
        d->lineCount = qRound(double(fit.height) / fontMetrics().height());
}

void RibbonCatColorMenuButton::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *own = d->action;
    if (!own || event->action() != own)
        return;
    if (event->type() != QEvent::ActionAdded && event->type() != QEvent::ActionChanged)
        return;
    Action *action = d->liveAction();
    if (!action)
        return;
    calculateLineCount();
    setEnabled(action->isEnabled());
    setToolTip(ribbonScreenTip(action));
    setAccessibleName(ribbonAccessibleName(action));

    RibbonColorPickerPopup &popup = d->popup;
    popup.setKeepSelection(action->keepsSelection());
    popup.setAutomaticColorEnabled(action->hasAutomaticColor());
    popup.setAutomaticColor(action->automaticColor());
    popup.setNoneColorEnabled(action->hasNoneColor());
    popup.setGradientEnabled(action->hasGradient());
    popup.setGradient(action->gradient());
    if (action->isAutomatic())
        popup.setAutomaticColor();
    else if (action->isNone())
        popup.setNoneColor();
    else
        popup.selectColor(action->color());

    d->sizeHint = QSize();
    updateGeometry();
    update();
}

void RibbonCatColorMenuButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        calculateLineCount();
        d->sizeHint = QSize();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

bool RibbonCatColorMenuButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &d->popup)
        keepOpenerPressFromReopening(&d->popup, *this, event);
    return QWidget::eventFilter(watched, event);
}

void RibbonCatColorMenuButton::mousePressEvent(QMouseEvent *event)
{
    const Action *action = d->liveAction();
    RibbonColorPickerPopup &popup = d->popup;
    if (event->button() != Qt::LeftButton || !action || !action->isEnabled() || popup.isVisible()) {
        update();
        return;
    }

    // Below the button, kept on the desktop.
    popup.adjustSize();
    const QSize size = popup.size();
    QPoint pos = mapToGlobal(QPoint(0, height()));
    const QRect desktop = RibbonPlatform::desktopGeometry();
    if (!desktop.isNull()) {
        pos.setX(qMax(pos.x(), desktop.left()));
        pos.setY(qMax(pos.y(), desktop.top()));
        if (pos.x() + size.width() > desktop.x() + desktop.width())
            pos.setX(desktop.x() + desktop.width() - size.width());
        if (pos.y() + size.height() > desktop.y() + desktop.height())
            pos.setY(desktop.y() + desktop.height() - size.height());
    }
    popup.move(pos);

    d->savedFocus = QApplication::focusWidget();
    clearFocus();
    update();
    popup.show();
    popup.setFocus(Qt::PopupFocusReason);
    ribbonAnnouncePopup(this, &popup, true);
}

void RibbonCatColorMenuButton::popupClosed()
{
    ribbonAnnouncePopup(this, &d->popup, false);
    update();
    QWidget *focus = d->savedFocus;
    d->savedFocus = nullptr;
    if (focus)
        focus->setFocus(Qt::PopupFocusReason);
}

void RibbonCatColorMenuButton::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    update();
}

void RibbonCatColorMenuButton::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    update();
}

void RibbonCatColorMenuButton::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event);
    update();
}

void RibbonCatColorMenuButton::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    update();
}

// Painting ------------------------------------------------------------------------------

int RibbonCatColorMenuButton::stateRow(int hoverRow, int openRow) const
{
    const Action *action = d->liveAction();
    if (!action || !action->isEnabled())
        return RibbonImageRows::NoRow;
    if (d->popup.isVisible())
        return openRow;
    return underMouse() ? hoverRow : RibbonImageRows::NoRow;
}

void RibbonCatColorMenuButton::paintEvent(QPaintEvent *)
{
    const Action *action = d->liveAction();
    if (!action)
        return;
    QPainter painter(this);
    if (action->size() == Action::ColorSizeLarge)
        drawLargeIcon(painter);
    else
        drawRowButton(painter);
}

void RibbonCatColorMenuButton::drawRowButton(QPainter &painter)
{
    using namespace RibbonImageRows;
    const Action *action = d->liveAction();
    const bool enabled = action->isEnabled();
    const int w = width();
    const int h = height();

    const int captionRow = stateRow(MenuCaption::Hover, MenuCaption::Open);
    const int arrowRow = stateRow(MenuArrow::Hover, MenuArrow::Open);
    RibbonPaint::drawDropDownRow(painter, w, qMin(scaled(kRowHeight), h), captionRow, arrowRow);

    const QPixmap pixmap = RibbonPaint::iconPixmap(action->icon(), kSmallIcon, enabled, *this);
    if (!pixmap.isNull()) {
        const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
        painter.drawPixmap((16 - ps.width()) / 2 + 3, scaled((16 - ps.height()) / 2 + 3), pixmap);
    }
    const QColor textColor = RibbonPaint::textColor(enabled);
    if (action->size() == Action::ColorSizeMedium) {
        const int left = pixmap.isNull() ? 3 : 19;
        painter.setPen(textColor);
        painter.drawText(QRect(left, 0, (w - 12) - left, h).adjusted(2, 2, -2, -2),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, action->text());
    }
    RibbonPaint::drawDropDownArrow(painter, w - 9, h / 2, textColor);
}

void RibbonCatColorMenuButton::drawLargeIcon(QPainter &painter)
{
    using namespace RibbonImageRows;
    const Action *action = d->liveAction();
    const bool enabled = action->isEnabled();
    const int w = width();
    const int h = height();

    const int row = stateRow(PaletteItem::Hover, PaletteItem::Checked);
    if (row != NoRow) {
        const QPixmap &sheet = RibbonApplication::theApp().ribbonStyle().paletteItemLarge();
        d->background.set(rect(), QRect(0, 0, RibbonPaint::logicalSize(sheet).width(), kLargeHeight), QMargins(2, 2, 2, 2));
        d->background.draw(painter, sheet, row * kLargeHeight);
    }

    const QPixmap pixmap = RibbonPaint::iconPixmap(action->icon(), kLargeIcon, enabled, *this);
    if (!pixmap.isNull()) {
        const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
        painter.drawPixmap((w - ps.width()) / 2, (32 - ps.height()) / 2 + 2, pixmap);
    }

    const QColor textColor = RibbonPaint::textColor(enabled);
    painter.setPen(textColor);
    const int top = scaled(34);
    // Descenders of the second line may reach a pixel beyond the rectangle.
    painter.drawText(QRect(0, top, w, h - top).adjusted(2, 2, -2, -2),
                     Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap | Qt::TextDontClip, action->text());
    if (d->lineCount == 2)
        RibbonPaint::drawDropDownArrow(painter, w - 7, scaled(56), textColor);
    else
        RibbonPaint::drawDropDownArrow(painter, (w - 5) / 2, scaled(56), textColor);
}

} // namespace zel
