#include "RibbonMenuBarButton.h"

#include "RibbonApplication.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonImageRows_p.h"
#include "RibbonMenuBar.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace zel {

namespace {
// Posted to itself on a double click; toggles between minimised and pinned.
constexpr QEvent::Type ToggleMinimizedEvent = QEvent::Type(1001);
} // namespace

struct RibbonMenuBarButton::Priv
{
    explicit Priv(RibbonMenuBar &b)
        : bar(b)
    {
    }

    RibbonMenuBar &bar;
    // Delays a click of the minimised ribbon until a double click can no longer follow.
    // A named child, so that tests can reach it; it leaves the children with Priv.
    QTimer timer;
    // Unchecking a button outside a group makes Qt search the parent's whole subtree for
    // sibling buttons, and the bar's subtree holds every control of every tab. The tab
    // buttons follow their actions' exclusive group; this group only spares the search.
    QButtonGroup ownGroup;
};

RibbonMenuBarButton::RibbonMenuBarButton(RibbonMenuBar &menuBar)
    : QAbstractButton(&menuBar)
    , d(new Priv(menuBar))
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setFixedHeight(24);
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    d->ownGroup.setExclusive(false);
    d->ownGroup.addButton(this);

    d->timer.setParent(this);
    d->timer.setObjectName(QStringLiteral("clickDelay"));
    d->timer.setInterval(200);
    d->timer.setSingleShot(true);
    connect(&d->timer, SIGNAL(timeout()), this, SLOT(onDoubleClickTimeout()));
}

RibbonMenuBarButton::~RibbonMenuBarButton() = default;

RibbonMenuBar &RibbonMenuBarButton::ribbonMenuBar() const
{
    return d->bar;
}

RibbonCategoriesPanelAction *RibbonMenuBarButton::panelAction() const
{
    const QList<QAction *> list = actions();
    return list.isEmpty() ? nullptr : qobject_cast<RibbonCategoriesPanelAction *>(list.first());
}

QSize RibbonMenuBarButton::sizeHint() const
{
    return QSize(fontMetrics().horizontalAdvance(text()) + 20, 0);
}

void RibbonMenuBarButton::onDoubleClickTimeout()
{
    if (isChecked())
        return;
    d->bar.setLastClickedAction(panelAction());
    // Toggles the button and triggers the tab, which becomes current through the
    // bar's exclusive group.
    click();
}

bool RibbonMenuBarButton::event(QEvent *event)
{
    if (event->type() == ToggleMinimizedEvent)
        d->bar.setMinimizeRibbon(!d->bar.isRibbonMinimized());
    return QAbstractButton::event(event);
}

void RibbonMenuBarButton::syncFromAction(RibbonCategoriesPanelAction *tab)
{
    if (text() != tab->text()) {
        setText(tab->text());
        updateGeometry();
    }
    setChecked(tab->isChecked());
    update();
}

void RibbonMenuBarButton::actionEvent(QActionEvent *event)
{
    QAbstractButton::actionEvent(event);
    RibbonCategoriesPanelAction *tab = panelAction();
    if (!tab || event->action() != tab) {
        if (event->type() == QEvent::ActionRemoved)
            disconnect(this, SIGNAL(clicked()), event->action(), SLOT(trigger()));
        return;
    }
    switch (event->type()) {
    case QEvent::ActionAdded:
        connect(this, SIGNAL(clicked()), tab, SLOT(trigger()));
        syncFromAction(tab);
        break;
    case QEvent::ActionChanged:
        syncFromAction(tab);
        break;
    default:
        break;
    }
}

void RibbonMenuBarButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QAbstractButton::mousePressEvent(event);
        return;
    }
    if (d->bar.isRibbonMinimized())
        d->timer.start();
    else
        onDoubleClickTimeout();
}

void RibbonMenuBarButton::mouseReleaseEvent(QMouseEvent *event)
{
    // The press already acted.
    if (event->button() != Qt::LeftButton)
        QAbstractButton::mouseReleaseEvent(event);
}

void RibbonMenuBarButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    QAbstractButton::mouseDoubleClickEvent(event);
    // Cancels the pending single click of the minimised state.
    d->timer.stop();
    QCoreApplication::postEvent(this, new QEvent(ToggleMinimizedEvent));
}

void RibbonMenuBarButton::enterEvent(QEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void RibbonMenuBarButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void RibbonMenuBarButton::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    QPainter painter(this);

    // Tabs of a contextual set stand on one band of the set's colour.
    if (RibbonContextCategoryPanelAction *set = d->bar.displayedContextPanel()) {
        QRect global;
        d->bar.displayedContextPanelRect(global);
        QRect band(mapFromGlobal(global.topLeft()), mapFromGlobal(global.bottomRight()));
        if (band.intersects(rect())) {
            band.adjust(2, 0, -2, 0);
            painter.fillRect(band, set->backgroundColor());
        }
    }

    const bool hover = rect().contains(mapFromGlobal(RibbonPlatform::cursorPos()));
    const bool checked = isChecked();
    using namespace RibbonImageRows;
    int row = NoRow;
    if (checked)
        row = hover ? TabButton::CurrentHover : TabButton::Current;
    else if (hover)
        row = TabButton::Hover;
    if (row != NoRow) {
        RibbonPaint::drawThreeSlice(painter, QRect(0, 0, width(), 24), style.menuBarButton(),
                                    QRect(0, row * 24, 57, 24), 5, 5);
    }

    painter.setPen(checked ? style.highlightedCategoryTextColor() : style.normalCategoryTextColor());
    painter.drawText(rect().adjusted(6, 0, -6, 0), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextHideMnemonic,
                     text().toUpper());
}

} // namespace zel
