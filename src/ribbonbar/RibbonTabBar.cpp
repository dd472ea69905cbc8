#include "RibbonTabBar.h"

#include "RibbonApplication.h"
#include "RibbonMenuAction.h"
#include "RibbonPaint_p.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"
#include "RibbonSymbolButton.h"

#include <QActionEvent>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>

#include <cmath>

namespace zel {

namespace {

// The strip at the left that holds the navigation buttons; the tabs start after it.
constexpr int ButtonAreaWidth = 74;
constexpr int NavButtonWidth = 16;
constexpr int NavButtonX[4] = {5, 21, 37, 53};
constexpr int TextPadding = 20;
constexpr int TextInset = 8;
// A press must travel this far with the left button held before the tab is dragged.
constexpr int DragDistance = 10;
constexpr int InitialTabWidth = 112;

const char *const DragFormat = "action";
const QByteArray DragPayload = QByteArrayLiteral("tab-reordering");

// tabBarTabs: two 16-pixel rows, the normal tab and the current one, each a three-slice:
// a 4-pixel left piece, a 1-pixel column stretched over the middle (also over the button
// area), and a 16-pixel right piece that starts 5 pixels before the tab's end and so
// reaches 11 pixels into its right neighbour.
namespace TabImage {
constexpr int RowHeight = 16;
constexpr int NormalRow = 0;
constexpr int CurrentRow = 16;
constexpr int LeftWidth = 4;
constexpr int RightWidth = 16;
constexpr int Overhang = 11;
const QRect Row(0, 0, LeftWidth + 1 + RightWidth, RowHeight);
const QRect Middle(LeftWidth, 0, 1, RowHeight);
} // namespace TabImage

// The bar is 16 pixels high at 96 DPI and grows with the resolution, as the text does.
int barHeight()
{
    return scaled(TabImage::RowHeight);
}

bool isReorderingDrag(const QMimeData *data)
{
    return data && data->hasFormat(QLatin1String(DragFormat))
        && data->data(QLatin1String(DragFormat)) == DragPayload;
}

} // namespace

struct RibbonTabBar::Priv
{
    QPointer<QAction> action;
    QList<QSize> tabSizes;
    int firstVisible = 0;
    int tabWidth = InitialTabWidth;
    QPoint dragEnterPos;
    QPoint previousDragPos;
    QPoint pressPos; // also the point of the last reordering
    QPoint dragPos;

    RibbonMenuAction *menu() const { return qobject_cast<RibbonMenuAction *>(action.data()); }

    // The entries that have a computed size; the menu announces a removal after the
    // fact, so for a moment the two lists may differ in length.
    QList<RibbonAction *> entries() const
    {
        RibbonMenuAction *m = menu();
        return m ? m->menuActions().mid(0, tabSizes.size()) : QList<RibbonAction *>();
    }

    int clampFirst(int index) const
    {
        const int count = entries().size();
        return count == 0 ? 0 : qBound(0, index, count - 1);
    }

    // The first index from which the last tabs fill the width available to tabs: one
    // past the first tab, counted from the end, that no longer fits. The first tab
    // counts too, so that a last tab cut off by the edge can always be scrolled in.
    int lastFirst(int available) const
    {
        int sum = 0;
        for (int i = entries().size() - 1; i >= 0; --i) {
            sum += tabSizes.at(i).width();
            if (sum >= available)
                return clampFirst(i + 1);
        }
        return 0;
    }

    struct VisibleTab
    {
        QRect rect;
        RibbonAction *entry;
    };

    // The tabs from the first visible one up to the one that reaches the right edge.
    QList<VisibleTab> visibleTabs(int width) const
    {
        QList<VisibleTab> tabs;
        const QList<RibbonAction *> all = entries();
        int x = ButtonAreaWidth;
        for (int i = firstVisible; i < all.size() && x < width; ++i) {
            const QSize size = tabSizes.at(i);
            tabs.append({QRect(QPoint(x, 0), size), all.at(i)});
            x += size.width();
        }
        return tabs;
    }
};

RibbonTabBar::RibbonTabBar(RibbonMenuAction &action, QWidget *parent)
    : QWidget(parent)
    , d(new Priv)
{
    d->action = &action;
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    setFixedHeight(barHeight());
    setAcceptDrops(true);

    const eSymbolType symbols[4] = {SymbolFirst, SymbolPrevious, SymbolNext, SymbolLast};
    void (RibbonTabBar::*const handlers[4])() = {&RibbonTabBar::navFirst, &RibbonTabBar::navPrev,
                                              &RibbonTabBar::navNext, &RibbonTabBar::navLast};
    for (int i = 0; i < 4; ++i) {
        auto *button = new RibbonSymbolButton(symbols[i], this);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        button->setFixedSize(NavButtonWidth, barHeight());
        button->move(NavButtonX[i], 0);
        connect(button, &QAbstractButton::clicked, this, handlers[i]);
    }

    // Adding the menu sends the first ActionAdded event, which computes the tabs. An
    // entry destroyed while in the menu is announced by changed() alone, later.
    addAction(&action);
    connect(&action, &QAction::changed, this, [this] {
        updateTabSizes();
        update();
    });
}

RibbonTabBar::~RibbonTabBar() = default;

QSize RibbonTabBar::sizeHint() const
{
    return QSize(ButtonAreaWidth, barHeight());
}

int RibbonTabBar::tabWidth() const
{
    return d->tabWidth;
}

void RibbonTabBar::navFirst()
{
    d->firstVisible = 0;
    update();
}

void RibbonTabBar::navLast()
{
    d->firstVisible = d->lastFirst(width() - ButtonAreaWidth);
    update();
}

void RibbonTabBar::navNext()
{
    const int limit = d->lastFirst(width() - ButtonAreaWidth);
    d->firstVisible = qBound(0, d->firstVisible + 1, limit);
    update();
}

void RibbonTabBar::navPrev()
{
    d->firstVisible = d->clampFirst(d->firstVisible - 1);
    update();
}

void RibbonTabBar::toggleTab()
{
    activateTab(d->dragEnterPos);
}

void RibbonTabBar::ensureVisible(bool isLast)
{
    if (isLast) {
        d->firstVisible = 0;
        update();
    } else {
        navNext();
    }
}

void RibbonTabBar::updateTabSizes()
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    d->tabSizes.clear();
    if (RibbonMenuAction *menu = d->menu()) {
        for (RibbonAction *entry : menu->menuActions()) {
            d->tabWidth = metrics.horizontalAdvance(entry->text()) + TextPadding;
            d->tabSizes.append(QSize(d->tabWidth, barHeight()));
        }
    }
    d->firstVisible = d->clampFirst(d->firstVisible);
}

QRect RibbonTabBar::tabRect(const QPoint &pos) const
{
    for (const Priv::VisibleTab &tab : d->visibleTabs(width())) {
        if (tab.rect.contains(pos))
            return tab.rect;
    }
    return QRect();
}

RibbonAction *RibbonTabBar::actionByPoint(const QPoint &pos) const
{
    for (const Priv::VisibleTab &tab : d->visibleTabs(width())) {
        if (tab.rect.contains(pos))
            return tab.entry;
    }
    return nullptr;
}

void RibbonTabBar::activateTab(const QPoint &pos)
{
    RibbonAction *entry = actionByPoint(pos);
    RibbonMenuAction *menu = d->menu();
    if (entry && menu && entry != menu->checkedAction())
        entry->trigger();
}

bool RibbonTabBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        RibbonAction *entry = actionByPoint(help->pos());
        if (entry && !entry->toolTip().isEmpty())
            QToolTip::showText(help->globalPos(), entry->toolTip(), this, tabRect(help->pos()));
        else
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

void RibbonTabBar::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionChanged:
    case QEvent::ActionRemoved:
        updateTabSizes();
        update();
        break;
    default:
        break;
    }
}

void RibbonTabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const QPixmap &sheet = style.tabBarTabs();
    const int h = barHeight();
    RibbonPaint::drawPart(painter, QRect(0, 0, ButtonAreaWidth, h), sheet, TabImage::Middle);

    RibbonMenuAction *menu = d->menu();
    if (!menu)
        return;
    const RibbonAction *current = menu->checkedAction();
    painter.setPen(style.highlightedCategoryTextColor());
    const int textFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextHideMnemonic;

    auto drawTab = [&](const QRect &r, const QString &text, int row) {
        RibbonPaint::drawThreeSlice(painter, QRect(r.left(), 0, r.width() + TabImage::Overhang, h), sheet,
                                    TabImage::Row.translated(0, row), TabImage::LeftWidth, TabImage::RightWidth);
        painter.drawText(r.adjusted(TextInset, 0, -TextInset, 0), textFlags, text);
    };

    const QList<Priv::VisibleTab> tabs = d->visibleTabs(width());
    // Right to left, so that each tab's right piece lies under its left neighbour.
    const Priv::VisibleTab *currentTab = nullptr;
    for (int i = tabs.size() - 1; i >= 0; --i) {
        if (tabs.at(i).entry == current) {
            currentTab = &tabs.at(i);
            continue;
        }
        drawTab(tabs.at(i).rect, tabs.at(i).entry->text(), TabImage::NormalRow);
    }
    if (currentTab) {
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        drawTab(currentTab->rect, currentTab->entry->text(), TabImage::CurrentRow);
    }
}

void RibbonTabBar::mousePressEvent(QMouseEvent *event)
{
    activateTab(event->pos());
    QWidget::mousePressEvent(event);
    d->pressPos = event->pos();
}

void RibbonTabBar::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint travel = event->pos() - d->pressPos;
    const bool farEnough = std::hypot(double(travel.x()), double(travel.y())) > DragDistance;
    if (event->buttons() == Qt::LeftButton && actionByPoint(event->pos()) && farEnough) {
        auto *mime = new QMimeData;
        mime->setData(QLatin1String(DragFormat), DragPayload);
        auto *drag = new QDrag(this); // Qt deletes it when the drag is over
        drag->setMimeData(mime);
        QPointer<RibbonTabBar> alive(this);
        drag->exec(Qt::MoveAction);
        if (!alive)
            return;
    }
    update();
}

void RibbonTabBar::mouseDoubleClickEvent(QMouseEvent *)
{
    // Deliberately nothing: the base class would treat the second press as a new press.
}

void RibbonTabBar::contextMenuEvent(QContextMenuEvent *event)
{
    // Selects the tab under the mouse; there is no menu.
    activateTab(event->pos());
    event->accept();
}

void RibbonTabBar::dragEnterEvent(QDragEnterEvent *event)
{
    QToolTip::hideText();
    d->dragEnterPos = event->pos();
    d->previousDragPos = d->dragPos = event->pos();
    // A drag from another widget of this program (another tab bar, say) would move this
    // bar's current tab; only the bar's own drags, or ones whose origin is unknown, count.
    const bool foreign = event->source() && event->source() != this;
    if (isReorderingDrag(event->mimeData()) && !foreign) {
        event->acceptProposedAction();
    } else {
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
    update();
}

void RibbonTabBar::dragMoveEvent(QDragMoveEvent *event)
{
    if (!isReorderingDrag(event->mimeData()) || (event->source() && event->source() != this)) {
        event->ignore();
        return;
    }
    QToolTip::hideText();
    QPointer<RibbonTabBar> alive(this);
    QCoreApplication::processEvents();
    if (!alive)
        return;
    d->previousDragPos = d->dragPos;
    d->dragPos = event->pos();
    event->accept();
    moveTab();
    update();
}

void RibbonTabBar::dragLeaveEvent(QDragLeaveEvent *event)
{
    event->accept();
}

void RibbonTabBar::moveTab()
{
    RibbonMenuAction *menu = d->menu();
    RibbonAction *target = actionByPoint(d->dragPos);
    RibbonAction *current = menu ? menu->checkedAction() : nullptr;
    if (!target || !current)
        return;
    const int targetIndex = menu->menuActions().indexOf(target);
    const int currentIndex = menu->menuActions().indexOf(current);
    if (targetIndex == currentIndex || currentIndex < 0)
        return;
    const int middle = tabRect(d->dragPos).center().x();
    const int x = d->dragPos.x();
    const int previousX = d->previousDragPos.x();
    // The dragged tab walks one place at a time towards the cursor.
    if (x < middle && targetIndex < currentIndex && x < previousX) {
        menu->insertAction(currentIndex - 1, current);
        d->pressPos = d->dragPos;
    } else if (x > middle && targetIndex > currentIndex && x > previousX) {
        menu->insertAction(currentIndex + 1, current);
        d->pressPos = d->dragPos;
    }
}

} // namespace zel
