#include "RibbonViewButton.h"

#include "RibbonApplication.h"
#include "RibbonImageRows_p.h"
#include "RibbonPaint_p.h"
#include "RibbonScale_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace zel {

namespace {

const int kRowHeight = 26;       // scaled: rows carry text
const int kRowExtraWidth = 56;   // gutter and text margins around the text
const QSize kTileSize(64, 56);
const int kGutterWidth = 32;
const int kRowIconExtent = 26;
const int kTileIconExtent = 56;
const int kTextLeft = 34;
const int kFontPointSize = 8;
const QColor kTextColor(21, 66, 139);
const QColor kDisabledTextColor(141, 141, 141);

// The hover marker is cut from the medium menu button's images, whose rows are 22 high:
// the left column from the caption part, the middle and the rounded right end from the
// arrow part.
const int kMarkerImageRowHeight = 22;
const int kMarkerBorder = 2;
const int kMarkerArrowWidth = 11;

const QString &checkMarkPath()
{
    static const QString path = QStringLiteral(":/zel/common/Resources/Check.ico");
    return path;
}

} // namespace

struct RibbonViewButton::Priv
{
    QPointer<QAction> action;
    bool listMode = true;
    bool showIcon = true;
    bool centred = false;
    bool pressed = false;
    mutable QSize sizeHint; // invalid until measured
    RibbonSlices markerLeft;
    RibbonSlices markerRest;

    RibbonSimpleAction *liveAction() const { return qobject_cast<RibbonSimpleAction *>(action); }
};

RibbonViewButton::RibbonViewButton(RibbonSimpleAction *action, bool listMode, bool showIcon, bool centred,
                                   QWidget *parent)
    : RibbonMainMenuItem(parent)
    , d(new Priv)
{
    d->action = action;
    d->listMode = listMode;
    d->showIcon = showIcon;
    d->centred = centred;
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    if (action)
        addAction(action);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

RibbonViewButton::~RibbonViewButton() = default;

RibbonSimpleAction *RibbonViewButton::action() const
{
    return d->liveAction();
}

bool RibbonViewButton::isListMode() const
{
    return d->listMode;
}

QSize RibbonViewButton::sizeHint() const
{
    if (!d->sizeHint.isValid()) {
        if (d->listMode) {
            const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
            d->sizeHint = QSize(textWidth + kRowExtraWidth, scaled(kRowHeight));
        } else {
            d->sizeHint = kTileSize;
        }
    }
    return d->sizeHint;
}

void RibbonViewButton::actionEvent(QActionEvent *event)
{
    RibbonMainMenuItem::actionEvent(event);
    RibbonSimpleAction *action = d->liveAction();
    if (!action || event->action() != action)
        return;
    if (event->type() != QEvent::ActionAdded && event->type() != QEvent::ActionChanged)
        return;
    QFont font = action->font();
    font.setPointSize(kFontPointSize);
    setFont(font);
    setIcon(action->icon());
    setText(action->text());
    setToolTip(ribbonScreenTip(action));
    setEnabled(action->isEnabled());
    d->sizeHint = QSize();
    updateGeometry();
    update();
}

void RibbonViewButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        d->sizeHint = QSize();
        updateGeometry();
    }
    RibbonMainMenuItem::changeEvent(event);
}

void RibbonViewButton::enterEvent(QEvent *event)
{
    RibbonMainMenuItem::enterEvent(event);
    update();
}

// Not only the popup's hover tracking repaints the entry the cursor left: leaving for a
// line or a gutter, where no other entry takes over, must clear the marker too.
void RibbonViewButton::leaveEvent(QEvent *event)
{
    RibbonMainMenuItem::leaveEvent(event);
    update();
}

void RibbonViewButton::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    emit mouseMoved();
    update();
}

void RibbonViewButton::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    d->pressed = true;
    update();
}

void RibbonViewButton::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    const bool wasPressed = d->pressed;
    d->pressed = false;
    if (event->button() == Qt::NoButton)
        return;
    clearFocus();
    update();
    // A press dragged off the entry is given up, as on any button.
    if (!wasPressed || !rect().contains(event->pos()))
        return;
    // Closing the popup comes first: the action may open a dialog of its own.
    QPointer<QAction> action = d->action;
    QPointer<RibbonViewButton> self(this);
    emit clicked();
    if (self)
        emit buttonClicked(d->liveAction());
    if (action)
        action->trigger();
}

void RibbonViewButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool hot = isEnabled() && (rect().contains(mapFromGlobal(QCursor::pos())) || hasFocus());
    if (d->listMode)
        paintRow(painter, hot);
    else
        paintTile(painter, hot);
}

void RibbonViewButton::drawMarker(QPainter &painter, int w, int h)
{
    using namespace RibbonImageRows;
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    d->markerLeft.set(QRect(0, 0, kMarkerBorder, h), QRect(0, 0, kMarkerBorder, kMarkerImageRowHeight),
                      QMargins(0, kMarkerBorder, 0, kMarkerBorder));
    d->markerRest.set(QRect(kMarkerBorder, 0, w - kMarkerBorder, h),
                      QRect(0, 0, kMarkerArrowWidth, kMarkerImageRowHeight),
                      QMargins(0, kMarkerBorder, kMarkerBorder, kMarkerBorder));
    d->markerLeft.draw(painter, style.horizontalMenuButtonCaption(), MenuCaption::Hover * kMarkerImageRowHeight);
    d->markerRest.draw(painter, style.horizontalMenuButtonMenu(), MenuArrow::Hover * kMarkerImageRowHeight);
}

void RibbonViewButton::paintRow(QPainter &painter, bool hot)
{
    const QAction *action = d->liveAction();
    const bool checked = action && action->isCheckable() && action->isChecked();
    if (hot)
        drawMarker(painter, width(), height());
    else if (checked)
        drawMarker(painter, kGutterWidth, height());

    QPixmap pixmap;
    if (checked && icon().isNull())
        pixmap = QIcon(checkMarkPath()).pixmap(QSize(kRowIconExtent, kRowIconExtent),
                                               isEnabled() ? QIcon::Normal : QIcon::Disabled, QIcon::Off);
    else if (d->showIcon)
        pixmap = RibbonPaint::iconPixmap(icon(), kRowIconExtent, isEnabled(), *this);
    RibbonPaint::drawCentred(painter, QRect(0, 0, kGutterWidth, height()), pixmap);

    const QRect textRect = QRect(kTextLeft, 0, width() - kTextLeft, height()).adjusted(6, 2, -6, -2);
    painter.setFont(font());
    painter.setPen(isEnabled() ? kTextColor : kDisabledTextColor);
    const int flags = Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::AlignVCenter
                      | (d->centred ? Qt::AlignHCenter : Qt::AlignLeft);
    painter.drawText(textRect, flags, text());
}

void RibbonViewButton::paintTile(QPainter &painter, bool hot)
{
    const QAction *action = d->liveAction();
    if (hot || (action && action->isCheckable() && action->isChecked()))
        drawMarker(painter, width(), height());
    RibbonPaint::drawCentred(painter, rect(), RibbonPaint::iconPixmap(icon(), kTileIconExtent, isEnabled(), *this));
}

} // namespace zel
