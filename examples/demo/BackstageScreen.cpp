// The backstage page with a host's panes (an Open pane with a pinned recent list), and
// the welcome screen with recent documents and a template.

#include "DemoScreens.h"

#include "BackstageListModel.h"
#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QAbstractItemDelegate>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QVBoxLayout>

namespace {

using zel::BackstageListItem;
using zel::BackstageListModel;

const zel::RibbonStyle &ribbonPalette()
{
    return zel::RibbonApplication::theApp().ribbonStyle();
}

BackstageListModel *sampleModel(QObject *parent)
{
    auto *model = new BackstageListModel(parent, 20);
    model->addItem(QStringLiteral("/home/anna/Documents/Budget 2027.doc"));
    model->addItem(QStringLiteral("/home/anna/Documents/Letters/Landlord.doc"));
    model->addItem(QStringLiteral("/home/anna/Projects/Harbour/Proposal draft.doc"));
    model->addItem(QStringLiteral("/home/anna/Documents/Meeting notes.doc"));
    model->addItem(QStringLiteral("/home/anna/Projects/Harbour/Timeline.doc"));
    model->pinItem(model->index(2, 0)); // "Landlord.doc" after the reordering above
    return model;
}

// The host's own recent-list rows on the white Open pane: name, folder and pin.
class OpenPaneDelegate : public QAbstractItemDelegate
{
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    void paint(QPainter *p, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto entry = index.data(Qt::UserRole).value<QSharedPointer<BackstageListItem>>();
        if (!entry)
            return;
        p->save();
        if (entry->isSeparator()) {
            const int y = option.rect.center().y();
            p->setPen(ribbonPalette().backstageSeparatorColor());
            p->drawLine(option.rect.left() + 8, y, option.rect.right() - 8, y);
            p->restore();
            return;
        }
        if (option.state & QStyle::State_Selected)
            p->fillRect(option.rect, ribbonPalette().backstageBlueHoverColor());
        const QFileInfo info(entry->path());
        QRect text = option.rect.adjusted(12, 6, -40, -6);
        p->setFont(ribbonPalette().backstageSmallFont());
        p->setPen(ribbonPalette().backstageBlackTextColor());
        p->drawText(text, Qt::AlignLeft | Qt::AlignTop, info.fileName());
        p->setFont(ribbonPalette().backstageXSmallFont());
        p->setPen(QColor(110, 110, 110));
        p->drawText(text, Qt::AlignLeft | Qt::AlignBottom, QDir::toNativeSeparators(info.path()));
        const QPixmap pin(entry->isPinned() ? QStringLiteral(":/zel/common/Resources/pinIcon.png")
                                            : QStringLiteral(":/zel/common/Resources/unpinIcon.png"));
        if (entry->isPinned() || (option.state & QStyle::State_Selected))
            p->drawPixmap(option.rect.right() - 28, option.rect.center().y() - pin.height() / 2, pin);
        p->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        const auto entry = index.data(Qt::UserRole).value<QSharedPointer<BackstageListItem>>();
        return QSize(400, entry && entry->isSeparator() ? 9 : 52);
    }
};

QWidget *titledPane(const QString &title, QWidget *body = nullptr)
{
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(40, 30, 40, 20);
    auto *label = new QLabel(title, pane);
    label->setStyleSheet(ribbonPalette().backstageLabelXLargeStyle());
    layout->addWidget(label);
    layout->addSpacing(16);
    if (body)
        layout->addWidget(body, 1);
    else
        layout->addStretch(1);
    return pane;
}

QWidget *openPane()
{
    auto *body = new QWidget;
    auto *layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *recent = new QLabel(QStringLiteral("Recent Documents"), body);
    recent->setStyleSheet(ribbonPalette().backstageLabelLargeStyle());
    layout->addWidget(recent);
    auto *list = new QListView(body);
    list->setFrameShape(QFrame::NoFrame);
    list->setMaximumWidth(520);
    list->setModel(sampleModel(list));
    list->setItemDelegate(new OpenPaneDelegate(list));
    list->setCurrentIndex(list->model()->index(3, 0));
    layout->addWidget(list, 1);
    return titledPane(QStringLiteral("Open"), body);
}

QWidget *makeBackstage()
{
    auto *view = new zel::BackstageView;
    view->addItem(QStringLiteral("Info"), titledPane(QStringLiteral("Info")));
    view->addItem(QStringLiteral("New"), titledPane(QStringLiteral("New")));
    view->addItem(QStringLiteral("Open"), openPane());
    view->addItem(QStringLiteral("Save"), nullptr);
    view->addItem(QStringLiteral("Save As"), titledPane(QStringLiteral("Save As")));
    view->addSeparator();
    view->addItem(QStringLiteral("Options"), nullptr);
    view->addItem(QStringLiteral("Exit"), nullptr);
    view->enableItem(QStringLiteral("Save"), false);
    view->setCurrentItem(QStringLiteral("open"));
    view->resize(1200, 700);
    return view;
}

QPixmap letterPreview()
{
    QPixmap page(138, 178);
    page.fill(Qt::white);
    QPainter p(&page);
    p.fillRect(QRect(14, 16, 70, 8), QColor(43, 87, 154));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(200, 200, 200));
    for (int y = 40; y < 160; y += 10)
        p.drawRect(QRect(14, y, y % 30 ? 110 : 80, 3));
    return page;
}

QWidget *makeWelcome()
{
    auto *screen = new zel::BackstageWelcomeScreen;
    screen->setTitle(QStringLiteral("Writer"));
    screen->setRecentModel(sampleModel(screen));
    screen->addTemplate(QStringLiteral("Business letter"), letterPreview());
    screen->resize(1200, 700);
    return screen;
}

const bool registeredBackstage = registerDemoScreen(
    {QStringLiteral("backstage"), QStringLiteral("Backstage page"), makeBackstage, 60});
const bool registeredWelcome = registerDemoScreen(
    {QStringLiteral("welcome"), QStringLiteral("Welcome screen"), makeWelcome, 61});

} // namespace
