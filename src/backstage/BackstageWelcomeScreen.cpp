#include "BackstageWelcomeScreen.h"

#include "BackstageListModel.h"
#include "RibbonApplication.h"
#include "RibbonMainWindow.h"
#include "RibbonPaint_p.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QAbstractItemDelegate>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

#include <functional>

namespace zel {

namespace {

constexpr int ColumnWidth = 300;
constexpr int PinAreaWidth = 30;

const RibbonStyle &ribbonPalette()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QSharedPointer<BackstageListItem> entryOf(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<QSharedPointer<BackstageListItem>>();
}

// A white copy of a glyph, for the blue column.
QPixmap whiteGlyph(const QString &path)
{
    QPixmap glyph(path);
    if (glyph.isNull())
        return glyph;
    QPainter p(&glyph);
    p.setCompositionMode(QPainter::CompositionMode_SourceIn);
    p.fillRect(glyph.rect(), Qt::white);
    return glyph;
}

// Rows of the recent list: the document's name above its folder, a pin at the right
// that shows when the entry is pinned or under the mouse.
class RecentDelegate : public QAbstractItemDelegate
{
public:
    std::function<void(const QModelIndex &, bool onPin)> activated;

    explicit RecentDelegate(QObject *parent)
        : QAbstractItemDelegate(parent)
        , m_pin(whiteGlyph(QStringLiteral(":/zel/common/Resources/pinIcon.png")))
        , m_unpin(whiteGlyph(QStringLiteral(":/zel/common/Resources/unpinIcon.png")))
    {
    }

    static QRect pinRect(const QRect &row)
    {
        return QRect(row.right() - PinAreaWidth + 1, row.top(), PinAreaWidth, row.height());
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const QSharedPointer<BackstageListItem> entry = entryOf(index);
        if (!entry)
            return;
        painter->save();
        if (entry->isSeparator()) {
            const int y = option.rect.top() + option.rect.height() / 2;
            painter->setPen(QPen(ribbonPalette().backstageWelcomeBluePressedColor(), 1));
            painter->drawLine(option.rect.left() + 24, y, option.rect.right() - 12, y);
            painter->restore();
            return;
        }

        // The row's back (hover, selection) comes from the list's style sheet.
        QStyleOptionViewItem back = option;
        QStyle *style = option.widget ? option.widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &back, painter, option.widget);

        const QFileInfo info(entry->path());
        const QString name = info.fileName().isEmpty() ? entry->path() : info.fileName();
        const QString folder = entry->isFixed() ? entry->folderName()
                                                : QDir::toNativeSeparators(info.path());
        QRect text = option.rect.adjusted(24, 0, -PinAreaWidth - 4, 0);
        if (!entry->icon().isNull()) {
            const int extent = 24;
            entry->icon().paint(painter, QRect(text.left(), text.center().y() - extent / 2, extent, extent));
            text.setLeft(text.left() + extent + 10);
        }

        QFont nameFont = ribbonPalette().backstageSmallFont();
        QFont folderFont = ribbonPalette().backstageXSmallFont();
        const QFontMetrics nameMetrics(nameFont);
        const QFontMetrics folderMetrics(folderFont);
        const int block = nameMetrics.height() + folderMetrics.height();
        const int top = text.top() + (text.height() - block) / 2;

        painter->setPen(Qt::white);
        painter->setFont(nameFont);
        painter->drawText(QRect(text.left(), top, text.width(), nameMetrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          nameMetrics.elidedText(name, Qt::ElideMiddle, text.width()));
        QColor faint(Qt::white);
        faint.setAlpha(190);
        painter->setPen(faint);
        painter->setFont(folderFont);
        painter->drawText(QRect(text.left(), top + nameMetrics.height(), text.width(), folderMetrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          folderMetrics.elidedText(folder, Qt::ElideMiddle, text.width()));

        const bool hovered = option.state & QStyle::State_MouseOver;
        if (entry->isPinnable() && (entry->isPinned() || hovered)) {
            const QPixmap &glyph = entry->isPinned() ? m_pin : m_unpin;
            if (!glyph.isNull()) {
                const QRect area = pinRect(option.rect);
                const QSize size = glyph.size() / glyph.devicePixelRatio();
                painter->drawPixmap(QRect(QPoint(area.center().x() - size.width() / 2,
                                                 area.center().y() - size.height() / 2), size),
                                    glyph);
            }
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        const QSharedPointer<BackstageListItem> entry = entryOf(index);
        return QSize(ColumnWidth, entry && entry->isSeparator() ? scaled(9) : scaled(52));
    }

    bool editorEvent(QEvent *event, QAbstractItemModel *, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override
    {
        if (event->type() != QEvent::MouseButtonRelease)
            return false;
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton || !option.rect.contains(mouse->pos()))
            return false;
        if (activated)
            activated(QPersistentModelIndex(index), pinRect(option.rect).contains(mouse->pos()));
        return true;
    }

private:
    QPixmap m_pin;
    QPixmap m_unpin;
};

// A large document tile: a page preview above its caption.
class Tile : public QAbstractButton
{
public:
    Tile(const QString &caption, const QPixmap &preview, QWidget *parent)
        : QAbstractButton(parent)
        , m_preview(preview)
    {
        setText(caption);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setFixedSize(150, scaled(236));
    }

protected:
    // Reached with Tab, a tile shows it is the one Enter or Space opens.
    void focusInEvent(QFocusEvent *event) override
    {
        m_keyboardFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        QAbstractButton::focusInEvent(event);
    }
    void focusOutEvent(QFocusEvent *event) override
    {
        m_keyboardFocus = false;
        QAbstractButton::focusOutEvent(event);
    }
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        const RibbonStyle &style = ribbonPalette();
        QPainter p(this);
        const bool hot = underMouse() || isDown() || (m_keyboardFocus && hasFocus());
        const QRect frame(0, 0, width(), scaled(196));
        if (hot)
            p.fillRect(frame, isDown() ? style.backstageBluePressedColor() : style.backstageBlueHoverColor());
        const QRect page = frame.adjusted(6, scaled(6), -6, -scaled(6));
        p.fillRect(page, Qt::white);
        if (!m_preview.isNull())
            p.drawPixmap(page, m_preview);
        p.setPen(hot ? style.backstageBlueBorderHoverColor() : style.backstageGrayBorderColor());
        p.drawRect(page.adjusted(0, 0, -1, -1));

        p.setFont(style.backstageSmallFont());
        p.setPen(style.backstageBlackTextColor());
        const QRect caption(0, frame.bottom() + scaled(4), width(), height() - frame.height() - scaled(4));
        p.drawText(caption, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text());
    }

private:
    QPixmap m_preview;
    bool m_keyboardFocus = false;
};

} // namespace

struct BackstageWelcomeScreen::Priv
{
    QPointer<RibbonMainWindow> mainWindow;
    QPointer<BackstageListModel> model;
    QWidget *column = nullptr;
    QLabel *titleLabel = nullptr;
    QListView *recentList = nullptr;
    QLabel *emptyLabel = nullptr;
    QHBoxLayout *tiles = nullptr;
    int templates = 0;
    QMetaObject::Connection modelConnections[4];

    void updateEmptyHint()
    {
        const bool empty = !model || model->rowCount() == 0;
        emptyLabel->setVisible(empty);
        recentList->setVisible(!empty);
    }
};

BackstageWelcomeScreen::BackstageWelcomeScreen(RibbonMainWindow *mainWindow)
    : QWidget(mainWindow)
    , d(new Priv)
{
    d->mainWindow = mainWindow;

    auto *page = new QHBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(0);

    d->column = new QWidget(this);
    d->column->setObjectName(QStringLiteral("welcomeRecentColumn"));
    d->column->setFixedWidth(ColumnWidth);
    auto *columnLayout = new QVBoxLayout(d->column);
    columnLayout->setContentsMargins(0, scaled(40), 0, scaled(16));
    columnLayout->setSpacing(0);

    d->titleLabel = new QLabel(QApplication::applicationDisplayName(), d->column);
    d->titleLabel->setContentsMargins(24, 0, 16, 0);
    columnLayout->addWidget(d->titleLabel);
    columnLayout->addSpacing(scaled(28));

    auto *recentTitle = new QLabel(tr("Recent"), d->column);
    recentTitle->setContentsMargins(24, 0, 16, 0);
    columnLayout->addWidget(recentTitle);
    columnLayout->addSpacing(scaled(10));

    d->recentList = new QListView(d->column);
    d->recentList->setObjectName(QStringLiteral("welcomeRecentList"));
    d->recentList->setFrameShape(QFrame::NoFrame);
    d->recentList->setFocusPolicy(Qt::NoFocus);
    d->recentList->setMouseTracking(true);
    d->recentList->viewport()->setAttribute(Qt::WA_Hover);
    d->recentList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->recentList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *delegate = new RecentDelegate(d->recentList);
    delegate->activated = [this](const QModelIndex &index, bool onPin) {
        const QSharedPointer<BackstageListItem> entry = entryOf(index);
        if (!d->model || !entry || entry->isSeparator())
            return;
        if (onPin && entry->isPinnable()) {
            d->model->pinItem(index);
            return;
        }
        const QString text = entry->untranslatedText().isEmpty() ? entry->path()
                                                                 : entry->untranslatedText();
        d->model->selectItem(index);
        emit recentDocumentSelected(text);
    };
    d->recentList->setItemDelegate(delegate);
    columnLayout->addWidget(d->recentList, 1);

    d->emptyLabel = new QLabel(tr("Documents you open recently appear here."), d->column);
    d->emptyLabel->setObjectName(QStringLiteral("welcomeEmptyHint"));
    d->emptyLabel->setWordWrap(true);
    d->emptyLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    d->emptyLabel->setContentsMargins(24, 0, 24, 0);
    columnLayout->addWidget(d->emptyLabel, 1);
    page->addWidget(d->column);

    auto *right = new QVBoxLayout;
    right->setContentsMargins(40, scaled(40), 40, scaled(20));
    right->setSpacing(0);
    auto *newTitle = new QLabel(tr("New"), this);
    right->addWidget(newTitle);
    right->addSpacing(scaled(24));
    d->tiles = new QHBoxLayout;
    d->tiles->setSpacing(24);
    auto *blank = new Tile(tr("Blank document"), QPixmap(), this);
    blank->setObjectName(QStringLiteral("welcomeBlankDocument"));
    connect(blank, &QAbstractButton::clicked, this, &BackstageWelcomeScreen::blankDocumentSelected);
    d->tiles->addWidget(blank);
    d->tiles->addStretch(1);
    right->addLayout(d->tiles);
    right->addStretch(1);
    page->addLayout(right, 1);

    // The sheets come from the palette and are set again when it changes.
    const auto applyPalette = [this, recentTitle, newTitle] {
        const RibbonStyle &style = ribbonPalette();
        d->titleLabel->setStyleSheet(style.backstageLabelXLargeWhiteStyle());
        recentTitle->setStyleSheet(style.backstageLabelLargeRecentWhiteStyle());
        d->recentList->setStyleSheet(style.backstageWelcomeRecentListWidgetStyle() + style.backstageScrollBarStyleBlue());
        d->emptyLabel->setStyleSheet(style.backstageLabelXSmallWhiteStyle());
        newTitle->setStyleSheet(style.backstageLabelXLargeStyle());
    };
    applyPalette();
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, applyPalette);

    d->updateEmptyHint();
}

BackstageWelcomeScreen::~BackstageWelcomeScreen()
{
    for (const QMetaObject::Connection &c : d->modelConnections)
        disconnect(c);
}

RibbonMainWindow *BackstageWelcomeScreen::mainWindow() const
{
    return d->mainWindow;
}

QString BackstageWelcomeScreen::title() const
{
    return d->titleLabel->text();
}

void BackstageWelcomeScreen::setTitle(const QString &title)
{
    d->titleLabel->setText(title);
}

BackstageListModel *BackstageWelcomeScreen::recentModel() const
{
    return d->model;
}

void BackstageWelcomeScreen::setRecentModel(BackstageListModel *model)
{
    if (d->model == model)
        return;
    for (const QMetaObject::Connection &c : d->modelConnections)
        disconnect(c);
    d->model = model;
    d->recentList->setModel(model);
    if (model) {
        auto update = [this] { d->updateEmptyHint(); };
        d->modelConnections[0] = connect(model, &QAbstractItemModel::rowsInserted, this, update);
        d->modelConnections[1] = connect(model, &QAbstractItemModel::rowsRemoved, this, update);
        d->modelConnections[2] = connect(model, &QAbstractItemModel::modelReset, this, update);
        // The model may go before the screen: show the empty hint then.
        d->modelConnections[3] = connect(model, &QObject::destroyed, this, [this] {
            d->model = nullptr;
            d->updateEmptyHint();
        });
    }
    d->updateEmptyHint();
}

void BackstageWelcomeScreen::addTemplate(const QString &name, const QPixmap &preview)
{
    auto *tile = new Tile(name, preview, this);
    connect(tile, &QAbstractButton::clicked, this, [this, name] { emit templateSelected(name); });
    // Before the trailing stretch.
    d->tiles->insertWidget(d->tiles->count() - 1, tile);
    ++d->templates;
}

int BackstageWelcomeScreen::templateCount() const
{
    return d->templates;
}

QRect BackstageWelcomeScreen::leftPaneRect()
{
    const QRect column = d->column->geometry();
    return QRect(mapToGlobal(column.topLeft()), mapToGlobal(column.bottomRight()));
}

QRect BackstageWelcomeScreen::rightPaneRect()
{
    const QRect column = d->column->geometry();
    return QRect(mapToGlobal(column.topRight()), mapToGlobal(rect().bottomRight()));
}

void BackstageWelcomeScreen::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), RibbonPaint::paneFill(Qt::white));
    p.fillRect(d->column->geometry(), ribbonPalette().frameBorderColor());
}

} // namespace zel
