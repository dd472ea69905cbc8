#include "RibbonButtonNormal.h"

#include "RibbonAction.h"
#include "RibbonPaint_p.h"
#include "RibbonScreenTip_p.h"

#include <QActionEvent>
#include <QPainter>

namespace zel {

struct RibbonButtonNormal::Priv
{
    RibbonSlices background;
};

RibbonButtonNormal::RibbonButtonNormal(QWidget *parent)
    : QAbstractButton(parent)
    , d(new Priv)
{
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
}

RibbonButtonNormal::~RibbonButtonNormal() = default;

void RibbonButtonNormal::actionEvent(QActionEvent *event)
{
    QAbstractButton::actionEvent(event);
    const bool added = event->type() == QEvent::ActionAdded;
    if (added || event->type() == QEvent::ActionChanged) {
        // During ActionAdded the action is already the list's entry.
        const QList<QAction *> list = actions();
        RibbonAction *action = qobject_cast<RibbonAction *>(event->action());
        if (action && !list.isEmpty() && list.first() == action) {
            setCheckable(action->isCheckable());
            setIcon(action->icon());
            setText(action->text());
            setToolTip(ribbonScreenTip(action));
            setAccessibleName(ribbonAccessibleName(action));
            setEnabled(action->isEnabled());
            if (added) {
                connect(this, SIGNAL(clicked()), action, SLOT(trigger()));
                connect(action, SIGNAL(toggled(bool)), this, SLOT(setChecked(bool)));
                setChecked(action->isChecked());
            }
        }
    }
    if (event->type() == QEvent::ActionRemoved) {
        // A removed action is no longer run by the button. Also reached while the action
        // is being destroyed; the disconnection only needs its QObject part.
        disconnect(this, nullptr, event->action(), nullptr);
        disconnect(event->action(), nullptr, this, nullptr);
    }
    update();
}

void RibbonButtonNormal::enterEvent(QEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void RibbonButtonNormal::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void RibbonButtonNormal::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    RibbonPaint::drawSmallButtonBackground(painter, *this, d->background);
    if (icon().isNull())
        return;
    const int extent = qMin(width() - 4, height() - 4);
    if (extent <= 0)
        return;
    const QPixmap pixmap = RibbonPaint::iconPixmap(icon(), extent, isEnabled(), *this);
    const QSize ps = pixmap.size() / pixmap.devicePixelRatio();
    painter.drawPixmap((width() - 4 - ps.width()) / 2 + 2, (height() - 4 - ps.height()) / 2 + 2, pixmap);
}

} // namespace zel
