#include "RibbonCatListPreview.h"

#include "OfficeListDelegate.h"
#include "OfficePopupButton.h"
#include "OfficeScrollBar.h"
#include "RibbonCatMenuAction.h"
#include "RibbonViewPopup.h"

#include <QActionEvent>
#include <QActionGroup>
#include <QApplication>
#include <QPointer>

namespace zel {

namespace {

const int kTile = 60;
const int kScrollBarWidth = 17;

} // namespace

struct RibbonCatListPreview::Priv
{
    // Guarded as a QAction and read through qobject_cast: a QPointer of the menu action's
    // own class would cast it down while it is being destroyed.
    QPointer<QAction> action;
    QPointer<QWidget> savedFocus;
    OfficePopupButton *button = nullptr;

    RibbonCatMenuAction *menu() const { return qobject_cast<RibbonCatMenuAction *>(action); }

    QList<QAction *> groupActions() const
    {
        RibbonCatMenuAction *menu = this->menu();
        QActionGroup *group = menu ? menu->iconActionGroup() : nullptr;
        return group ? group->actions() : QList<QAction *>();
    }
};

RibbonCatListPreview::RibbonCatListPreview(RibbonCatMenuAction &action, QWidget *parent)
    : QListWidget(parent)
    , d(new Priv)
{
    d->action = &action;
    setItemDelegate(new OfficeListDelegate(this));
    addAction(&action);
    setViewMode(QListView::IconMode);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
    // The delegate frames the tile under the mouse.
    viewport()->setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto *scrollBar = new OfficeScrollBar(this);
    scrollBar->setMouseTracking(true);
    scrollBar->setFixedWidth(kScrollBarWidth);
    setVerticalScrollBar(scrollBar);
    d->button = new OfficePopupButton(scrollBar);
    d->button->setMouseTracking(true);
    d->button->setFixedWidth(kScrollBarWidth);
    // Clicking the button must leave the focus where it was, to be given back when the
    // full menu closes.
    d->button->setFocusPolicy(Qt::NoFocus);
    addScrollBarWidget(d->button, Qt::AlignBottom);

    setFixedHeight(kTile);
    d->button->setFixedHeight(height() / 3);
    setListWidth(action.listPreviewVisibleIconsCount());
    setStyleSheet(QStringLiteral("QListWidget{ border: 0px; margin: 0px 0px 0px 0px;}"));
    setDragEnabled(false);
    // Tiles stay where the gallery puts them.
    setMovement(QListView::Static);

    connect(d->button, &QAbstractButton::clicked, this, &RibbonCatListPreview::onButtonClicked);
    connect(this, &QListWidget::itemClicked, this, &RibbonCatListPreview::onItemClicked);
    connect(this, &QListWidget::itemEntered, this, &RibbonCatListPreview::onItemEntered);
    fillContent();
}

RibbonCatListPreview::~RibbonCatListPreview() = default;

RibbonCatMenuAction *RibbonCatListPreview::action() const
{
    return d->menu();
}

OfficePopupButton *RibbonCatListPreview::popupButton() const
{
    return d->button;
}

void RibbonCatListPreview::setListWidth(int count)
{
    const int n = qMax(count, 1);
    if (n < d->groupActions().size()) {
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        setFixedWidth(kTile * n + kScrollBarWidth + 1);
    } else {
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFixedWidth(kTile * n + 1);
    }
}

QSize RibbonCatListPreview::sizeHint() const
{
    return QSize();
}

void RibbonCatListPreview::processEvents(QEvent *event)
{
    if (!event || event->type() != QEvent::MouseButtonPress)
        return;
    if (auto *mouse = dynamic_cast<QMouseEvent *>(event)) {
        QListWidget::mousePressEvent(mouse);
        viewport()->update();
    }
}

void RibbonCatListPreview::actionEvent(QActionEvent *event)
{
    QListWidget::actionEvent(event);
    RibbonCatMenuAction *menu = d->menu();
    if (!menu || event->action() != menu)
        return;
    if (event->type() != QEvent::ActionAdded && event->type() != QEvent::ActionChanged)
        return;
    setEnabled(menu->isEnabled());
    const RibbonAction *defaultAction = menu->defaultAction();
    setToolTip(defaultAction ? defaultAction->toolTip() : menu->toolTip());
    updateGeometry();
}

void RibbonCatListPreview::mouseMoveEvent(QMouseEvent *event)
{
    QListWidget::mouseMoveEvent(event);
    viewport()->update();
}

void RibbonCatListPreview::mousePressEvent(QMouseEvent *event)
{
    QListWidget::mousePressEvent(event);
    viewport()->update();
}

void RibbonCatListPreview::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    viewport()->update();
}

void RibbonCatListPreview::enterEvent(QEvent *event)
{
    QListWidget::enterEvent(event);
    viewport()->update();
}

void RibbonCatListPreview::leaveEvent(QEvent *event)
{
    QListWidget::leaveEvent(event);
    viewport()->update();
}

void RibbonCatListPreview::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    // Tiles laid out before the gallery got its final size wrap at the wrong width: lay
    // them out again, then bring the checked one back into view.
    doItemsLayout();
    scrollToChecked();
}

void RibbonCatListPreview::fillContent()
{
    clear();
    for (QAction *action : d->groupActions()) {
        if (!action)
            continue;
        // Each rebuild watches the group's current members; Qt::UniqueConnection keeps
        // one connection per member.
        connect(action, &QAction::changed, this, &RibbonCatListPreview::fillContent, Qt::UniqueConnection);
        connect(action, &QObject::destroyed, this, &RibbonCatListPreview::fillContent, Qt::UniqueConnection);
        if (!action->isEnabled())
            continue;
        auto *item = new QListWidgetItem(action->icon(), QString());
        item->setSizeHint(QSize(kTile, kTile));
        item->setData(Qt::UserRole, QVariant::fromValue(qint64(quintptr(action))));
        item->setCheckState(action->isChecked() ? Qt::Checked : Qt::Unchecked);
        // Not user-checkable: a click anywhere on a tile triggers its action, and the
        // check state only mirrors the action's.
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        // The tiles show no text; the tool tip names them.
        item->setToolTip(action->toolTip());
        addItem(item);
    }
    scrollToChecked();
    viewport()->update();
}

void RibbonCatListPreview::scrollToChecked()
{
    for (int row = count() - 1; row >= 0; --row) {
        QListWidgetItem *tile = item(row);
        if (tile->checkState() == Qt::Checked) {
            scrollToItem(tile, QAbstractItemView::EnsureVisible);
            return;
        }
    }
}

void RibbonCatListPreview::onItemClicked(QListWidgetItem *item)
{
    if (!item)
        return;
    // The tile stores its action by address; trigger it only while it is still a member
    // of the group, never through an address that may have been reused.
    const quintptr address = quintptr(item->data(Qt::UserRole).toLongLong());
    for (QAction *action : d->groupActions()) {
        if (quintptr(action) == address) {
            action->trigger();
            return;
        }
    }
}

void RibbonCatListPreview::onItemEntered(QListWidgetItem *)
{
}

void RibbonCatListPreview::onButtonClicked()
{
    RibbonCatMenuAction *menu = d->menu();
    if (!menu)
        return;
    d->savedFocus = QApplication::focusWidget();
    RibbonViewPopup *popup = menu->fillMenu();
    popup->setAttribute(Qt::WA_DeleteOnClose);
    connect(popup, SIGNAL(aboutToHide()), popup, SLOT(close()));
    connect(popup, SIGNAL(aboutToHide()), this, SLOT(popupClosed()));
    // A popup deleted while open (with its menu action) announces no hiding.
    connect(popup, SIGNAL(destroyed()), this, SLOT(popupClosed()));
    // The popup covers the gallery, one pixel wider to include the frame around it; a
    // narrow gallery does not squeeze the popup below what its entries need.
    popup->setFixedWidth(qMax(width() + 1, popup->sizeHint().width()));
    popup->popup(mapToGlobal(QPoint(0, 0)) - QPoint(1, 1));
}

void RibbonCatListPreview::popupClosed()
{
    if (QWidget *focus = d->savedFocus) {
        d->savedFocus = nullptr;
        focus->setFocus(Qt::PopupFocusReason);
    }
}

} // namespace zel
