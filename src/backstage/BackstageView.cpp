#include "BackstageView.h"

#include "BackstageViewListWidgetDelegate.h"
#include "RibbonApplication.h"
#include "RibbonMainWindow.h"
#include "RibbonPaint_p.h"
#include "RibbonStyle.h"

#include <QFile>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QListWidget>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QPushButton>
#include <QSpacerItem>
#include <QStackedLayout>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace zel {

namespace {

const QString &entryIndent()
{
    static const QString indent = QStringLiteral("   ");
    return indent;
}

// The back button shows the host's images through its style sheet. A host without
// those images would get an invisible button, so the usual circled arrow is drawn then.
class BackButton : public QPushButton
{
public:
    explicit BackButton(QWidget *parent)
        : QPushButton(parent)
    {
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPushButton::paintEvent(event);
        if (QFile::exists(QStringLiteral(":/Icons/Backstage/main_normal.png")))
            return;

        QStyleOptionButton option;
        initStyleOption(&option);
        const bool hovered = option.state & QStyle::State_MouseOver;
        const bool pressed = option.state & QStyle::State_Sunken;

        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF circle = QRectF(rect()).adjusted(5.5, 5.5, -5.5, -5.5);
        QColor fill(Qt::white);
        fill.setAlpha(pressed ? 90 : hovered ? 50 : 0);
        p.setBrush(fill);
        p.setPen(QPen(Qt::white, 2));
        p.drawEllipse(circle);

        const QPointF c = circle.center();
        const qreal r = circle.width() / 4.0;
        QPainterPath arrow;
        arrow.moveTo(c.x() + r, c.y());
        arrow.lineTo(c.x() - r, c.y());
        arrow.moveTo(c.x() - r * 0.1, c.y() - r * 0.9);
        arrow.lineTo(c.x() - r, c.y());
        arrow.lineTo(c.x() - r * 0.1, c.y() + r * 0.9);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(arrow);
    }
};

QWidget *paneOf(const QListWidgetItem *item)
{
    return item ? static_cast<QWidget *>(item->data(Qt::UserRole).value<void *>()) : nullptr;
}

} // namespace

struct BackstageView::Priv
{
    QPointer<RibbonMainWindow> mainWindow;
    QStackedLayout *panes = nullptr;
    QVBoxLayout *navigationColumn = nullptr;
    QListWidget *list = nullptr;
    QPushButton *backButton = nullptr;
    BackstageViewListWidgetDelegate *separatorDelegate = nullptr;

    QListWidgetItem *find(const QString &name) const
    {
        const QList<QListWidgetItem *> found =
            list->findItems(entryIndent() + name, Qt::MatchFixedString);
        return found.isEmpty() ? nullptr : found.first();
    }
};

BackstageView::BackstageView(RibbonMainWindow *mainWindow)
    : QWidget(mainWindow)
    , d(new Priv)
{
    d->mainWindow = mainWindow;
    const double dy = RibbonApplication::theApp().dpiFactor().second;

    auto *pageLayout = new QHBoxLayout(this);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->setSpacing(0);

    d->navigationColumn = new QVBoxLayout;
    d->navigationColumn->setContentsMargins(0, 0, 0, 0);
    d->navigationColumn->setSpacing(0);
    pageLayout->addLayout(d->navigationColumn);

    d->backButton = new BackButton(this);
    d->backButton->setObjectName(QStringLiteral("backstageBackButton"));
    d->backButton->setAccessibleName(tr("Back"));
    d->backButton->setFixedSize(40, 40);
    d->backButton->setStyleSheet(QStringLiteral(
        "QPushButton { border: none; margin: 0px; padding: 0px; "
        "image: url(:/Icons/Backstage/main_normal.png); }"
        "QPushButton:hover { border: none; margin: 0px; padding: 0px; "
        "image: url(:/Icons/Backstage/main_hover.png); }"));

    d->list = new QListWidget(this);
    d->list->setObjectName(QStringLiteral("backstageNavigationList"));
    d->list->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
    d->list->setAttribute(Qt::WA_MacShowFocusRect, false);
    // Reachable with Tab after the back button; the arrows then move between the entries
    // (and so between the panes).
    d->list->setFocusPolicy(Qt::StrongFocus);
    d->list->setFrameShape(QFrame::NoFrame);
    d->list->setStyleSheet(RibbonApplication::theApp().ribbonStyle().backstageMainLeftListWidget());
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, d->list, [this] {
        d->list->setStyleSheet(RibbonApplication::theApp().ribbonStyle().backstageMainLeftListWidget());
    });

    d->navigationColumn->addSpacerItem(new QSpacerItem(5, 5, QSizePolicy::Fixed, QSizePolicy::Fixed));
    auto *backRow = new QHBoxLayout;
    backRow->addWidget(d->backButton);
    backRow->addSpacerItem(new QSpacerItem(75, 50, QSizePolicy::Fixed, QSizePolicy::Fixed));
    d->navigationColumn->addLayout(backRow);
    d->navigationColumn->addWidget(d->list);
    d->navigationColumn->addSpacerItem(
        new QSpacerItem(int(150 * dy), 10, QSizePolicy::Fixed, QSizePolicy::Fixed));
    d->navigationColumn->addSpacerItem(
        new QSpacerItem(5, 5, QSizePolicy::Fixed, QSizePolicy::MinimumExpanding));

    d->panes = new QStackedLayout;
    pageLayout->addLayout(d->panes);

    d->separatorDelegate = new BackstageViewListWidgetDelegate(this);

    connect(d->list, SIGNAL(currentRowChanged(int)), this, SLOT(onCurrentRowChanged(int)));
    connect(d->backButton, SIGNAL(clicked()), this, SLOT(onBackButtonClicked()));
}

BackstageView::~BackstageView()
{
    // Children die after the private data; their last signals must not reach it.
    disconnect(d->list, nullptr, this, nullptr);
    for (int row = 0; row < d->list->count(); ++row) {
        if (QWidget *pane = paneOf(d->list->item(row)))
            disconnect(pane, nullptr, this, nullptr);
    }
}

RibbonMainWindow *BackstageView::mainWindow() const
{
    return d->mainWindow;
}

void BackstageView::addItem(const QString &name, QWidget *pane)
{
    // The page itself or one of its ancestors cannot be one of its panes.
    if (pane && (pane == this || pane->isAncestorOf(this)))
        pane = nullptr;

    auto *item = new QListWidgetItem(entryIndent() + name);
    item->setData(Qt::UserRole, QVariant::fromValue(static_cast<void *>(pane)));
    d->list->addItem(item);

    const double dy = RibbonApplication::theApp().dpiFactor().second;
    d->list->setMinimumHeight(int(d->list->count() * 38 * dy));

    if (pane) {
        // Two entries may share a pane; it is in the stack once.
        if (d->panes->indexOf(pane) < 0)
            d->panes->addWidget(pane);
        // A pane the host deletes must not be shown or handed out afterwards.
        void *key = pane;
        connect(pane, &QObject::destroyed, this, [this, key] {
            for (int row = 0; row < d->list->count(); ++row) {
                QListWidgetItem *entry = d->list->item(row);
                if (entry->data(Qt::UserRole).value<void *>() == key)
                    entry->setData(Qt::UserRole, QVariant::fromValue(static_cast<void *>(nullptr)));
            }
        });
    }

    if (d->list->count() > 0)
        d->list->setCurrentRow(0);
}

void BackstageView::addSeparator()
{
    addItem(QString(), nullptr);
    d->list->setItemDelegateForRow(d->list->count() - 1, d->separatorDelegate);
}

void BackstageView::enableItem(const QString &name, bool enable)
{
    QListWidgetItem *item = d->find(name);
    if (!item)
        return;
    const Qt::ItemFlags flags = item->flags();
    item->setFlags(enable ? flags | Qt::ItemIsEnabled : flags & ~Qt::ItemIsEnabled);
}

void BackstageView::setCurrentItem(const QString &name)
{
    d->list->setCurrentItem(d->find(name));
}

QWidget *BackstageView::currentPane() const
{
    return paneOf(d->list->currentItem());
}

QWidget *BackstageView::pane(const QString &name) const
{
    return paneOf(d->find(name));
}

QRect BackstageView::leftPaneRect()
{
    const QRect column = d->navigationColumn->geometry();
    return QRect(mapToGlobal(column.topLeft()), mapToGlobal(column.bottomRight()));
}

QRect BackstageView::rightPaneRect()
{
    const QRect column = d->navigationColumn->geometry();
    return QRect(mapToGlobal(column.topRight()), mapToGlobal(rect().bottomRight()));
}

void BackstageView::hideEvent(QHideEvent *event)
{
    // The page opens on its first usable entry next time.
    QListWidgetItem *first = nullptr;
    for (int row = 0; row < d->list->count() && !first; ++row) {
        if (d->list->item(row)->flags() & Qt::ItemIsEnabled)
            first = d->list->item(row);
    }
    d->list->setCurrentItem(first);
    QWidget::hideEvent(event);
}

void BackstageView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), RibbonPaint::paneFill(Qt::white));
    p.fillRect(d->navigationColumn->geometry(),
               RibbonApplication::theApp().ribbonStyle().frameBorderColor());
}

void BackstageView::onCurrentRowChanged(int row)
{
    QListWidgetItem *item = d->list->item(row);
    if (QWidget *pane = paneOf(item)) {
        if (d->panes->indexOf(pane) >= 0)
            d->panes->setCurrentWidget(pane);
    }
    if (item)
        emit itemClicked(item->text().mid(3));
}

void BackstageView::onBackButtonClicked()
{
    emit itemClicked(QStringLiteral("Back"));
}

} // namespace zel
