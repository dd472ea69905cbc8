#include "RibbonCatMenuButton.h"
#include "RibbonCatMenuButton_p.h"

#include "RibbonApplication.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuPalettePopup.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonPopupReplay_p.h"
#include "RibbonScale_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonStyle.h"
#include "RibbonTextFit_p.h"
#include "RibbonViewPopup.h"

#include <QActionEvent>
#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace zel {

namespace {

// Sprite rows of the menu button images, in pixels before scaling.
const int RowHeight = 22;          // horizontalMenuButtonCaption / horizontalMenuButtonMenu
const int ArrowWidth = 11;         // width of the arrow part of a one-row button
const int LargeCaptionHeight = 39; // verticalMenuButtonCaption rows
const int LargeArrowHeight = 27;   // verticalMenuButtonMenu rows
const int LargeCaptionHit = 37;    // presses above this line hit a large button's caption

namespace MenuArrow = RibbonImageRows::MenuArrow;
namespace MenuCaption = RibbonImageRows::MenuCaption;
using RibbonImageRows::NoRow;

const RibbonStyle &palette()
{
    return RibbonApplication::theApp().ribbonStyle();
}

// A band of a 43-pixel-wide vertical sprite (2-pixel edges, stretched centre) across
// the full width of a large button.
void drawVerticalRow(QPainter &painter, const QPixmap &image, int sourceY, int sourceHeight,
                     int targetY, int targetHeight, int width)
{
    RibbonPaint::drawThreeSlice(painter, QRect(0, targetY, width, targetHeight), image,
                                QRect(0, sourceY, 43, sourceHeight), 2, 2);
}

} // namespace

// RibbonCatMenuButton -------------------------------------------------------------------

RibbonCatMenuButton::RibbonCatMenuButton(RibbonCatMenuAction &action, QWidget *parent)
    : QWidget(parent)
    , m_action(&action)
{
    if (action.menuSize() == RibbonCatMenuAction::MenuSizeLarge)
        capToDesignFont(*this);
    addAction(&action);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    connect(&action, &QAction::changed, this, QOverload<>::of(&QWidget::update));
    connect(&action, &RibbonMenuAction::defaultActionChanged, this, &RibbonCatMenuButton::onDefaultActionChanged);
}

RibbonCatMenuButton::~RibbonCatMenuButton() = default;

RibbonCatMenuAction *RibbonCatMenuButton::action() const
{
    return qobject_cast<RibbonCatMenuAction *>(m_action);
}

QSize RibbonCatMenuButton::sizeHint() const
{
    if (!d)
        return QWidget::sizeHint();
    QSize result;
    d->sizeHint(&result);
    return result;
}

void RibbonCatMenuButton::processEvents(QEvent *event)
{
    if (!event || !d || event->type() != QEvent::MouseButtonPress)
        return;
    if (auto *mouse = dynamic_cast<QMouseEvent *>(event)) {
        d->mousePressEvent(mouse);
        update();
    }
}

bool RibbonCatMenuButton::isPopupOpen() const
{
    return d && d->popupShown;
}

void RibbonCatMenuButton::drawBorder(bool draw)
{
    // Made here when needed so that the flag survives until the first action event.
    if (!d)
        d = new RibbonCatMenuButtonBPriv(*this);
    if (d->drawBorder == draw)
        return;
    d->drawBorder = draw;
    update();
}

void RibbonCatMenuButton::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    if (event->type() != QEvent::ActionAdded && event->type() != QEvent::ActionChanged)
        return;
    if (!m_action || event->action() != m_action)
        return;
    refreshFromAction(event);
}

void RibbonCatMenuButton::refreshFromAction(QActionEvent *event)
{
    RibbonCatMenuAction *action = this->action();
    if (!action)
        return;
    if (action->menuType() == RibbonCatMenuAction::MenuTypeButton
        && !qobject_cast<RibbonCatMenuButtonBPriv *>(d)) {
        const bool border = d && d->drawBorder;
        delete d;
        d = new RibbonCatMenuButtonBPriv(*this);
        d->drawBorder = border;
    }
    setEnabled(action->isEnabled());
    const RibbonAction *defaultAction = action->defaultAction();
    setToolTip(ribbonScreenTip(defaultAction ? static_cast<const QAction *>(defaultAction) : action));
    setAccessibleName(ribbonAccessibleName(action));
    setAccessibleDescription(ribbonDescription(action));
    if (d)
        d->actionEvent(event);
    updateGeometry();
    update();
}

void RibbonCatMenuButton::onDefaultActionChanged()
{
    if (!m_action)
        return;
    QActionEvent event(QEvent::ActionChanged, m_action);
    refreshFromAction(&event);
}

void RibbonCatMenuButton::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The caption is measured in the widget's font.
    if (action() && d && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        QActionEvent changed(QEvent::ActionChanged, m_action);
        d->actionEvent(&changed);
        updateGeometry();
    }
}

void RibbonCatMenuButton::paintEvent(QPaintEvent *event)
{
    if (d && action())
        d->paintEvent(event);
}

void RibbonCatMenuButton::mousePressEvent(QMouseEvent *event)
{
    if (d)
        d->mousePressEvent(event);
    update();
}

void RibbonCatMenuButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (d)
        d->mouseReleaseEvent(event);
    update();
}

void RibbonCatMenuButton::mouseMoveEvent(QMouseEvent *event)
{
    if (d)
        d->mouseMoveEvent(event);
    update();
}

void RibbonCatMenuButton::enterEvent(QEvent *event)
{
    if (d)
        d->enterEvent(event);
    update();
}

void RibbonCatMenuButton::leaveEvent(QEvent *event)
{
    if (d)
        d->leaveEvent(event);
    update();
}

// RibbonCatMenuButtonPriv ---------------------------------------------------------------

RibbonCatMenuButtonPriv::RibbonCatMenuButtonPriv(RibbonCatMenuButton &button)
    : QObject(&button)
    , owner(button)
{
}

RibbonCatMenuButtonPriv::~RibbonCatMenuButtonPriv() = default;

// RibbonCatMenuButtonBPriv --------------------------------------------------------------

RibbonCatMenuButtonBPriv::RibbonCatMenuButtonBPriv(RibbonCatMenuButton &button)
    : RibbonCatMenuButtonPriv(button)
{
}

RibbonCatMenuButtonBPriv::~RibbonCatMenuButtonBPriv()
{
    // A drop-down must not outlive its button: it would still run the items.
    if (m_popup) {
        m_popup->removeEventFilter(this);
        disconnect(m_popup, nullptr, this, nullptr);
        m_popup->close();
    }
}

bool RibbonCatMenuButtonBPriv::isLarge() const
{
    const RibbonCatMenuAction *action = owner.action();
    return action && action->menuSize() == RibbonCatMenuAction::MenuSizeLarge;
}

bool RibbonCatMenuButtonBPriv::onCaption(const QPoint &pos) const
{
    if (isLarge())
        return pos.y() < scaled(LargeCaptionHit);
    return pos.x() < owner.width() - ArrowWidth;
}

bool RibbonCatMenuButtonBPriv::isHovered() const
{
    return owner.underMouse() && owner.rect().contains(owner.mapFromGlobal(QCursor::pos()));
}

void RibbonCatMenuButtonBPriv::actionEvent(QActionEvent *event)
{
    Q_UNUSED(event)
    if (!isLarge())
        return;

    const RibbonCaptionFit fit = ribbonCaptionFit(owner, owner.action()->text());
    const int lineHeight = owner.fontMetrics().height();
    if (!fit.wrapped) {
        textSize = QSize(fit.textWidth + 10, lineHeight);
        lineCount = 1;
        return;
    }
    // The narrowest wrapping width at which the caption still fits in two lines.
    if (fit.height > 0)
        lineCount = qRound(double(fit.height) / lineHeight);
    textSize = QSize(fit.width + 10, 2 * lineHeight);
}

void RibbonCatMenuButtonBPriv::sizeHint(QSize *result)
{
    const RibbonCatMenuAction *action = owner.action();
    if (!action) {
        *result = QSize(0, 0);
        return;
    }

    QSize size;
    switch (action->menuSize()) {
    case RibbonCatMenuAction::MenuSizeLarge:
        size = QSize(qMax(textSize.width() + 8, 38), scaled(66));
        break;
    case RibbonCatMenuAction::MenuSizeMedium: {
        const QString text = action->text();
        const int textWidth = text.isEmpty() ? 0 : QFontMetrics(owner.font()).horizontalAdvance(text) + 5;
        size = QSize(action->menuMarkerOffset() + textWidth + 31, scaled(22));
        break;
    }
    case RibbonCatMenuAction::MenuSizeSmall:
    default: {
        const RibbonAction *defaultAction = action->defaultAction();
        const QIcon icon = defaultAction ? defaultAction->icon() : action->icon();
        size = QSize(icon.isNull() ? 15 : 31, 22);
        break;
    }
    }
    if (action->minimalWidth() != -1)
        size.setWidth(qMax(size.width(), action->minimalWidth()));
    *result = size;
}

void RibbonCatMenuButtonBPriv::mouseMoveEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
}

void RibbonCatMenuButtonBPriv::enterEvent(QEvent *event)
{
    Q_UNUSED(event)
}

void RibbonCatMenuButtonBPriv::leaveEvent(QEvent *event)
{
    Q_UNUSED(event)
}

void RibbonCatMenuButtonBPriv::mousePressEvent(QMouseEvent *event)
{
    RibbonCatMenuAction *action = owner.action();
    if (!action || event->button() != Qt::LeftButton)
        return;
    const bool canOpen = action->isEnabled() && !popupShown;
    const RibbonAction *defaultAction = action->defaultAction();

    if (defaultAction && onCaption(event->pos())) {
        if (defaultAction->isEnabled() && !captionPressed)
            captionPressed = true;
        return;
    }
    if (canOpen) {
        menuPressed = true;
        openPopup();
    }
}

void RibbonCatMenuButtonBPriv::mouseReleaseEvent(QMouseEvent *event)
{
    RibbonCatMenuAction *action = owner.action();
    if (!action || event->button() != Qt::LeftButton)
        return;
    RibbonAction *defaultAction = action->defaultAction();
    // A press dragged off the button and released elsewhere runs nothing.
    const bool inside = owner.rect().contains(event->pos());

    if (defaultAction && onCaption(event->pos())) {
        if (captionPressed && inside) {
            RibbonAction *checked = isLarge() ? action->checkedAction() : nullptr;
            if (checked && checked->isEnabled())
                checked->trigger();
            else if (defaultAction->isEnabled())
                defaultAction->trigger();
        }
    }
    captionPressed = false;
    // A press that opened nothing leaves the button released.
    if (menuPressed && !popupShown)
        menuPressed = false;
}

void RibbonCatMenuButtonBPriv::openPopup()
{
    RibbonCatMenuAction *action = owner.action();
    savedFocus = QApplication::focusWidget();

    QWidget *popup = nullptr;
    switch (action->popupType()) {
    case RibbonCatMenuAction::PopupMenu:
        popup = openMenu();
        break;
    case RibbonCatMenuAction::PopupView:
        popup = openViewPopup();
        break;
    case RibbonCatMenuAction::PopupPalette:
        if (!isLarge() && !action->defaultAction())
            popup = openPalettePopup();
        break;
    default:
        break;
    }
    if (!popup) {
        menuPressed = false;
        return;
    }
    popupShown = true;
    m_popup = popup;
    ribbonAnnouncePopup(&owner, popup, true);
}

void RibbonCatMenuButtonBPriv::watchPopup(QWidget *popup)
{
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->installEventFilter(this);
    connect(popup, SIGNAL(aboutToHide()), popup, SLOT(close()));
    connect(popup, SIGNAL(aboutToHide()), this, SLOT(popupClosed()));
    // A popup deleted while open announces no hiding; the button must not stay locked.
    connect(popup, SIGNAL(destroyed()), this, SLOT(popupClosed()));
}

QWidget *RibbonCatMenuButtonBPriv::openMenu()
{
    RibbonCatMenuAction *action = owner.action();
    auto *menu = new QMenu;
    action->fillMenu(*menu);
    // A menu without entries would show as an empty frame.
    if (menu->actions().isEmpty()) {
        delete menu;
        return nullptr;
    }
    watchPopup(menu);

    const bool large = isLarge();
    const bool split = action->defaultAction() != nullptr;
    if (large && !split) {
        int widest = 0;
        const QFontMetrics fm(menu->font());
        for (const RibbonAction *item : action->menuActions()) {
            if (item && item->isSeparator())
                widest = qMax(widest, fm.horizontalAdvance(item->text()));
        }
        menu->setMinimumWidth(50 + widest);
    }

    const QPoint bottomLeft = owner.mapToGlobal(QPoint(0, owner.height()));
    if (large || split) {
        menu->popup(bottomLeft);
        return menu;
    }

    // A one-row drop-down near the bottom of the screen opens upwards, its last
    // entry just above the button.
    const QScreen *screen = owner.screen();
    const QRect available = screen ? screen->availableGeometry() : RibbonPlatform::availableGeometry();
    if (bottomLeft.y() + 100 > available.y() + available.height()) {
        // QMenu::popup(pos, action) leaves the menu's frame above the entry; place the
        // entry itself.
        const QList<QAction *> entries = menu->actions();
        const int entryTop = entries.isEmpty() ? 0 : menu->actionGeometry(entries.last()).top();
        menu->popup(owner.mapToGlobal(QPoint(0, 0)) - QPoint(0, 30 + entryTop));
    } else {
        menu->popup(bottomLeft);
    }
    return menu;
}

QWidget *RibbonCatMenuButtonBPriv::openViewPopup()
{
    RibbonViewPopup *popup = owner.action()->fillMenu();
    if (!popup)
        return nullptr;
    watchPopup(popup);
    popup->popup(owner.mapToGlobal(QPoint(0, owner.height())));
    return popup;
}

QWidget *RibbonCatMenuButtonBPriv::openPalettePopup()
{
    auto *popup = new RibbonCatMenuPalettePopup(*owner.action(), &owner);
    popup->installEventFilter(this);
    connect(popup, &RibbonCatMenuPalettePopup::closed, this, &RibbonCatMenuButtonBPriv::popupClosed);
    // A popup deleted while open announces no closing; the button must not stay locked.
    connect(popup, &QObject::destroyed, this, &RibbonCatMenuButtonBPriv::popupClosed);
    return popup;
}

bool RibbonCatMenuButtonBPriv::eventFilter(QObject *watched, QEvent *event)
{
    // A click on this button that closes its drop-down must not reach the button again
    // and reopen it.
    if (watched == m_popup)
        keepOpenerPressFromReopening(m_popup, owner, event);
    return RibbonCatMenuButtonPriv::eventFilter(watched, event);
}

void RibbonCatMenuButtonBPriv::popupClosed()
{
    if (!popupShown)
        return;
    menuPressed = false;
    popupShown = false;
    ribbonAnnouncePopup(&owner, m_popup, false);
    m_popup = nullptr;
    owner.update();
    if (savedFocus)
        savedFocus->setFocus(Qt::PopupFocusReason);
}

// Painting ------------------------------------------------------------------------------

void RibbonCatMenuButtonBPriv::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(&owner);
    if (isLarge())
        paintLarge(painter);
    else
        paintRow(painter);
}

void RibbonCatMenuButtonBPriv::splitButtonStates(int &captionState, int &arrowState) const
{
    RibbonCatMenuAction *action = owner.action();
    const RibbonAction *defaultAction = action->defaultAction();
    const bool hover = action->isEnabled() && isHovered();
    const bool hoverCaption = hover && onCaption(owner.mapFromGlobal(QCursor::pos()));
    const bool hoverArrow = hover && !hoverCaption;
    const bool checkMark = action->toBeToggled() && action->drawCheckedMarker();

    captionState = NoRow;
    if ((hover || menuPressed) && !defaultAction->isEnabled())
        captionState = MenuCaption::Framed;
    else if (captionPressed)
        captionState = MenuCaption::Pressed;
    else if (hoverCaption)
        captionState = checkMark ? MenuCaption::CheckedHover : MenuCaption::Hover;
    else if (menuPressed || hover)
        captionState = checkMark ? MenuCaption::Checked : MenuCaption::OtherPartHovered;
    else if (checkMark)
        captionState = MenuCaption::Checked;

    arrowState = NoRow;
    if (menuPressed)
        arrowState = MenuArrow::Open;
    else if (hoverArrow)
        arrowState = MenuArrow::Hover;
    else if (captionPressed || hover)
        arrowState = MenuArrow::OtherPartHovered;
}

void RibbonCatMenuButtonBPriv::paintRow(QPainter &painter)
{
    RibbonCatMenuAction *action = owner.action();
    const RibbonStyle &style = palette();
    const int w = owner.width();
    const int h = owner.height();
    const bool enabled = action->isEnabled();
    const bool hover = enabled && isHovered();
    const RibbonAction *defaultAction = action->defaultAction();
    const QPixmap &captionImage = style.horizontalMenuButtonCaption();
    const QPixmap &arrowImage = style.horizontalMenuButtonMenu();
    // S(22) for a medium button; a small one is 22 pixels high at every resolution and
    // its background must not be cut off.
    const int rowHeight = qMin(scaled(RowHeight), h);

    int captionState = NoRow;
    int arrowState = NoRow;
    if (defaultAction) {
        splitButtonStates(captionState, arrowState);
        if (enabled) {
            // Caption: 2-pixel left cap, stretched centre, 1-pixel right cap; the arrow
            // part keeps its width.
            if (captionState != NoRow)
                RibbonPaint::drawThreeSlice(painter, QRect(0, 0, w - 11, rowHeight), captionImage,
                                            QRect(0, RowHeight * captionState, 22, RowHeight), 2, 1);
            if (arrowState != NoRow)
                RibbonPaint::drawPart(painter, QRect(w - ArrowWidth, 0, ArrowWidth, rowHeight), arrowImage,
                                      QRect(0, RowHeight * arrowState, ArrowWidth, RowHeight));
        }
    } else {
        if (drawBorder) {
            captionState = MenuCaption::Framed;
            arrowState = MenuArrow::Framed;
        }
        if (enabled && menuPressed) {
            captionState = popupShown ? MenuCaption::Open : MenuCaption::Pressed;
            arrowState = popupShown ? MenuArrow::Open : MenuArrow::Pressed;
        } else if (hover) {
            captionState = MenuCaption::Hover;
            arrowState = MenuArrow::Hover;
        }
        RibbonPaint::drawDropDownRow(painter, w, rowHeight, captionState, arrowState);
    }

    // Icon: the menu's own, else that of the default action.
    QIcon icon = action->icon();
    if (icon.isNull() && defaultAction)
        icon = defaultAction->icon();
    const bool iconEnabled = defaultAction ? defaultAction->isEnabled() : enabled;
    const QPixmap pixmap = RibbonPaint::iconPixmap(icon, 16, iconEnabled, *painter.device());
    const QColor textColor = RibbonPaint::textColor(enabled);
    if (!pixmap.isNull()) {
        const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
        painter.drawPixmap((16 - ps.width()) / 2 + 2, scaled((16 - ps.height()) / 2 + 3), pixmap);
    }

    if (action->menuSize() == RibbonCatMenuAction::MenuSizeMedium) {
        const int left = pixmap.isNull() ? 2 : 18;
        const QRect textRect = QRect(left, 0, (w - 12) - left, h).adjusted(2, 2, -2, -2);
        painter.setFont(owner.font());
        painter.setPen(textColor);
        painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, action->text());
    }

    RibbonPaint::drawDropDownArrow(painter, w - 9, h / 2, textColor);
}

void RibbonCatMenuButtonBPriv::paintLarge(QPainter &painter)
{
    RibbonCatMenuAction *action = owner.action();
    const RibbonStyle &style = palette();
    const int w = owner.width();
    const bool enabled = action->isEnabled();
    const bool hover = enabled && isHovered();
    const RibbonAction *defaultAction = action->defaultAction();
    const QPixmap &captionImage = style.verticalMenuButtonCaption();
    const QPixmap &arrowImage = style.verticalMenuButtonMenu();
    const int captionHeight = scaled(LargeCaptionHeight);

    if (defaultAction) {
        int captionState = NoRow;
        int arrowState = NoRow;
        splitButtonStates(captionState, arrowState);
        if (enabled) {
            if (captionState != NoRow)
                drawVerticalRow(painter, captionImage, LargeCaptionHeight * captionState,
                                LargeCaptionHeight, 0, captionHeight, w);
            if (arrowState != NoRow)
                drawVerticalRow(painter, arrowImage, LargeArrowHeight * arrowState, LargeArrowHeight,
                                captionHeight, scaled(LargeArrowHeight), w);
        }
    } else {
        int captionState = NoRow;
        int arrowState = NoRow;
        if (enabled && menuPressed) {
            captionState = MenuCaption::Open;
            arrowState = MenuArrow::Open;
        } else if (hover) {
            captionState = MenuCaption::Hover;
            arrowState = MenuArrow::Hover;
        }
        if (captionState != NoRow) {
            // The two images join into one button: the arrow image's top overlaps
            // the caption's bottom edge.
            drawVerticalRow(painter, captionImage, LargeCaptionHeight * captionState, LargeCaptionHeight, 0,
                            captionHeight, w);
            drawVerticalRow(painter, arrowImage, LargeArrowHeight * arrowState, 25, scaled(37),
                            scaled(LargeArrowHeight), w);
            drawVerticalRow(painter, arrowImage, LargeArrowHeight * arrowState + 25, 2, scaled(64), 2, w);
        }
    }

    QIcon icon = action->icon();
    if (icon.isNull() && defaultAction)
        icon = defaultAction->icon();
    const bool iconEnabled = defaultAction ? defaultAction->isEnabled() : enabled;
    const QPixmap pixmap = RibbonPaint::iconPixmap(icon, 32, iconEnabled, *painter.device());
    if (!pixmap.isNull()) {
        const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
        painter.drawPixmap((w - ps.width()) / 2, scaled((32 - ps.height()) / 2 + 2), pixmap);
    }

    const QColor textColor = RibbonPaint::textColor(enabled);
    // A plain drop-down keeps its caption block centred when a minimal width widens it.
    const QRect textRect = defaultAction
        ? QRect(0, scaled(38), w, textSize.height())
        : QRect((w - textSize.width()) / 2, scaled(38), textSize.width(), textSize.height());
    painter.setFont(owner.font());
    painter.setPen(textColor);
    painter.drawText(textRect, Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, action->text());

    if (lineCount == 2)
        RibbonPaint::drawDropDownArrow(painter, w - 7, scaled(56), textColor);
    else
        RibbonPaint::drawDropDownArrow(painter, (w - 5) / 2, scaled(56), textColor);
}

} // namespace zel
