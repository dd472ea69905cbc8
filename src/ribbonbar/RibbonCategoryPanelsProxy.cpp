#include "RibbonCategoryPanelsProxy.h"

#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryPanels.h"
#include "RibbonMenuBar.h"

#include <QActionEvent>
#include <QPointer>
#include <QTimer>

namespace zel {

namespace {
// Bits of the window flags that make the panel widget a window (Qt::Window | Qt::Popup).
constexpr int WindowBits = 0x9;
// A tab clicked within this time after its popup closed stays closed: the click that
// closed the popup must not open it again.
constexpr int ReopenGuardMs = 100;
} // namespace

struct RibbonCategoryPanelsProxy::Priv
{
    QPointer<RibbonCategoryPanels> subject;
    QPointer<QAction> lastHidden;
    // Runs while the tab of the popup just closed may not open it again. A named child,
    // so that tests can shorten or lengthen it.
    QTimer *reopenGuard = nullptr;
};

RibbonCategoryPanelsProxy::RibbonCategoryPanelsProxy(RibbonMenuBar &menuBar)
    : QWidget(&menuBar)
    , d(new Priv)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    d->subject = new RibbonCategoryPanels(menuBar);
    d->subject->setParent(this);
    d->subject->installEventFilter(this);
    d->reopenGuard = new QTimer(this);
    d->reopenGuard->setObjectName(QStringLiteral("reopenGuard"));
    d->reopenGuard->setSingleShot(true);
    d->reopenGuard->setInterval(ReopenGuardMs);
}

RibbonCategoryPanelsProxy::~RibbonCategoryPanelsProxy()
{
    if (d->subject)
        d->subject->removeEventFilter(this);
}

RibbonCategoryPanels *RibbonCategoryPanelsProxy::subject() const
{
    return d->subject.data();
}

bool RibbonCategoryPanelsProxy::isCollapsable() const
{
    return d->subject && (int(d->subject->windowFlags()) & WindowBits) != 0;
}

void RibbonCategoryPanelsProxy::setCollapsable(bool collapsable)
{
    RibbonCategoryPanels *subject = d->subject.data();
    if (!subject)
        return;
    if (collapsable) {
        // Turning it into a window hides it until a tab is clicked.
        subject->setWindowFlags(subject->windowFlags() | Qt::Popup);
        updateGeometry();
    } else {
        subject->setWindowFlags(Qt::WindowFlags(int(subject->windowFlags()) & ~WindowBits));
        subject->show();
        subject->move(0, 0);
        updateGeometry();
    }
}

void RibbonCategoryPanelsProxy::collapse()
{
    if (!isCollapsable())
        return;
    d->subject->hide();
    // Closed by the program, not by a click on its tab: the tab may open it again at once.
    d->reopenGuard->stop();
}

QSize RibbonCategoryPanelsProxy::sizeHint() const
{
    if (!d->subject || isCollapsable())
        return QSize(0, 0);
    // The panel's height is fixed, also while it has no page to ask.
    const QSize hint = d->subject->sizeHint();
    return QSize(hint.width(), qMax(hint.height(), d->subject->minimumHeight()));
}

QSize RibbonCategoryPanelsProxy::minimumSizeHint() const
{
    if (!d->subject || isCollapsable())
        return QSize(0, 0);
    const QSize hint = d->subject->minimumSizeHint();
    return QSize(hint.width(), qMax(hint.height(), d->subject->minimumHeight()));
}

bool RibbonCategoryPanelsProxy::event(QEvent *event)
{
    // The panel widget is not in a layout: pass its geometry changes on to the bar.
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QWidget::event(event);
}

bool RibbonCategoryPanelsProxy::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->subject && isCollapsable()) {
        if (event->type() == QEvent::KeyPress) {
            d->subject->close();
        } else if (event->type() == QEvent::Show) {
            if (QWidget *bar = parentWidget())
                d->subject->move(bar->mapToGlobal(bar->rect().bottomLeft()));
        }
    }
    return QWidget::eventFilter(watched, event);
}

void RibbonCategoryPanelsProxy::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Also while it is a popup: the popup is as wide as the ribbon.
    if (d->subject)
        d->subject->setFixedWidth(width());
}

void RibbonCategoryPanelsProxy::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    QAction *action = event->action();
    const bool changed = event->type() == QEvent::ActionChanged;

    if (changed && isCollapsable() && action == d->lastHidden && d->reopenGuard->isActive()) {
        action->setChecked(false);
        return;
    }

    if (d->subject) {
        d->subject->actionEvent(event);
        updateGeometry();
    }
    d->lastHidden = nullptr;

    if (changed && isCollapsable()) {
        auto *tab = qobject_cast<RibbonCategoriesPanelAction *>(action);
        // Only the tab whose page is shown closes the popup: a tab left checked from
        // before the ribbon was minimised is unchecked only once another tab has opened
        // the popup on its own page.
        if (tab && !tab->isChecked() && d->subject->action(d->subject->currentWidget()) == tab) {
            d->lastHidden = tab;
            d->reopenGuard->start();
            d->subject->hide();
        }
    }
}

} // namespace zel
