#include "RibbonKeyTips_p.h"

#include "IRibbonGroupWidget.h"
#include "RibbonAccessible_p.h"
#include "RibbonApplication.h"
#include "RibbonButtonMain.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategory.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace zel {

namespace {

// Room around the letters of a badge, and the least width of one.
constexpr int kBadgePadding = 4;
constexpr int kBadgeMinWidth = 16;
// From the left edge of a short control to its badge.
constexpr int kShortIndent = 4;
// Controls taller than this get their badge centred under them.
constexpr int kTallControl = 40;

// Whether keys can join taken without one tip's letters beginning another's.
bool fits(const QString &keys, const QStringList &taken)
{
    for (const QString &other : taken) {
        if (other.startsWith(keys) || keys.startsWith(other))
            return false;
    }
    return true;
}

// The letters and digits of a caption, upper case, mnemonic marks left out.
QString lettersOf(const QString &caption)
{
    QString letters;
    for (const QChar c : caption) {
        if (c.isLetterOrNumber())
            letters += c.toUpper();
    }
    return letters;
}

// Clicks widget at pos as the mouse would (for controls that act on press and release).
void clickAt(QWidget *widget, const QPoint &pos)
{
    QPointer<QWidget> guard(widget);
    QMouseEvent press(QEvent::MouseButtonPress, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    if (!guard)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

// What typing a command's letters does to the control made for it: what a click does,
// except that a drop-down opens its popup and a combo box takes the focus.
std::function<void()> activation(QWidget *control, RibbonAction *action)
{
    QPointer<QWidget> widget(control);
    QPointer<QAction> command(action);
    if (auto *combo = qobject_cast<QComboBox *>(control) ? qobject_cast<QComboBox *>(control)
                                                         : control->findChild<QComboBox *>()) {
        QPointer<QComboBox> box(combo);
        return [box] {
            if (box)
                box->setFocus(Qt::ShortcutFocusReason);
        };
    }
    if (IRibbonGroupWidget *group = IRibbonGroupWidget::groupWidget(control)) {
        // A gallery opens its full list through its own button.
        if (auto *more = control->findChild<QPushButton *>()) {
            QPointer<QPushButton> button(more);
            return [button] {
                if (button)
                    button->click();
            };
        }
        // A menu or colour button opens on a press on its drop-down part, which is at the
        // lower right in every size.
        return [widget, group] {
            if (!widget)
                return;
            const QPoint corner(widget->width() - 4, widget->height() - 4);
            QMouseEvent press(QEvent::MouseButtonPress, corner, widget->mapToGlobal(corner), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            group->processEvents(&press);
        };
    }
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        QPointer<QAbstractButton> guard(button);
        return [guard] {
            if (guard)
                guard->click();
        };
    }
    return [command] {
        if (command)
            command->trigger();
    };
}

// The badges of the folded categories and commands of a tab's page.
QList<RibbonKeyTip> tabKeyTips(RibbonMenuBar &bar, RibbonCategoriesPanelAction *tab)
{
    QList<RibbonKeyTip> tips;
    RibbonCategoryPanels *panels = bar.categoryPanels()->subject();
    RibbonCategoryPanel *page = panels && tab ? panels->panel(tab) : nullptr;
    if (!page)
        return tips;
    for (RibbonCategoryAction *category : tab->categories()) {
        RibbonCategoryWrapper *wrapper = page->wrapper(category);
        if (!wrapper)
            continue;
        if (!wrapper->isColapsed()) {
            tips += categoryKeyTips(wrapper->category());
            continue;
        }
        QPointer<RibbonCategoryWrapper> folded(wrapper);
        RibbonKeyTip tip;
        tip.wanted = wantedKeyTip(category);
        tip.caption = category->text();
        tip.widget = wrapper;
        tip.below = true;
        tip.dropDown = true;
        tip.activate = [folded] {
            if (folded)
                folded->setMyChecked(true);
        };
        tip.open = [folded] {
            RibbonCategoryWrapperPopup *popup = folded ? folded->popup() : nullptr;
            return popup ? categoryKeyTips(popup->category()) : QList<RibbonKeyTip>();
        };
        tip.close = [folded] {
            if (folded && folded->popup())
                folded->popup()->close();
        };
        tips.append(tip);
    }
    return tips;
}

// The badge of a button of the tab row or the title row, centred under it; typing its
// letters clicks it.
RibbonKeyTip titleRowTip(QAbstractButton *button, const QString &wanted, const QString &caption)
{
    QPointer<QAbstractButton> guard(button);
    RibbonKeyTip tip;
    tip.wanted = wanted;
    tip.caption = caption;
    tip.widget = button;
    tip.below = true;
    tip.activate = [guard] {
        if (guard)
            guard->click();
    };
    return tip;
}

// Paints the badges that stand in one top-level window, above its widgets.
class KeyTipOverlay : public QWidget
{
public:
    KeyTipOverlay(const RibbonKeyTips &keyTips, QWidget *window)
        : QWidget(window)
        , m_keyTips(keyTips)
    {
        setObjectName(QStringLiteral("keyTipOverlay"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window->rect());
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
        const QList<RibbonKeyTip> tips = m_keyTips.tips();
        const QVector<QRect> rects = m_keyTips.badgeRects(window());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < tips.size(); ++i) {
            if (rects.at(i).isNull())
                continue;
            const bool enabled = tips.at(i).widget->isEnabled();
            const QRectF badge = QRectF(rects.at(i)).adjusted(0.5, 0.5, -0.5, -0.5);
            painter.setPen(style.frameOutlineColor());
            painter.setBrush(style.mainMenuBgColor());
            painter.drawRoundedRect(badge, 2, 2);
            painter.setPen(enabled ? style.normalCategoryTextColor() : style.disabledCategoryTextColor());
            painter.drawText(rects.at(i), Qt::AlignCenter, tips.at(i).keys);
        }
        const QRect highlight = m_keyTips.highlightRect(window());
        if (!highlight.isNull()) {
            painter.setPen(style.frameBorderColor());
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(highlight).adjusted(0.5, 0.5, -0.5, -0.5));
        }
    }

private:
    const RibbonKeyTips &m_keyTips;
};

} // namespace

QString wantedKeyTip(const QAction *action)
{
    if (!action)
        return QString();
    const QString given = action->property("keyTip").toString().trimmed();
    if (!given.isEmpty())
        return given.toUpper();
    const QString text = action->text();
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) == QLatin1Char('&')) {
            ++i; // a literal "&"
            continue;
        }
        return text.at(i + 1).isLetterOrNumber() ? QString(text.at(i + 1).toUpper()) : QString();
    }
    return QString();
}

void assignKeyTips(QList<RibbonKeyTip> &tips)
{
    QStringList taken;
    for (RibbonKeyTip &tip : tips) {
        tip.keys.clear();
        if (!tip.wanted.isEmpty() && fits(tip.wanted, taken)) {
            tip.keys = tip.wanted;
            taken << tip.keys;
        }
    }

    // A first letter that only one of the others begins with stands alone.
    QHash<QChar, int> starting;
    for (const RibbonKeyTip &tip : qAsConst(tips)) {
        const QString letters = lettersOf(tip.caption);
        if (tip.keys.isEmpty() && !letters.isEmpty())
            ++starting[letters.at(0)];
    }
    for (RibbonKeyTip &tip : tips) {
        const QString first = lettersOf(tip.caption).left(1);
        if (tip.keys.isEmpty() && !first.isEmpty() && starting.value(first.at(0)) == 1 && fits(first, taken)) {
            tip.keys = first;
            taken << first;
        }
    }

    // The rest get two letters: from their caption where possible.
    static const QString any = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    for (RibbonKeyTip &tip : tips) {
        if (!tip.keys.isEmpty())
            continue;
        const QString letters = lettersOf(tip.caption);
        const QString firsts = letters + any;
        for (int f = 0; f < firsts.size() && tip.keys.isEmpty(); ++f) {
            const QString seconds = letters.mid(f + 1) + any;
            for (const QChar second : seconds) {
                const QString candidate = QString(firsts.at(f)) + second;
                if (fits(candidate, taken)) {
                    tip.keys = candidate;
                    taken << candidate;
                    break;
                }
            }
        }
    }
}

QList<RibbonKeyTip> categoryKeyTips(RibbonCategory *category)
{
    QList<RibbonKeyTip> tips;
    RibbonCategoryAction *categoryAction = category ? category->action() : nullptr;
    if (!categoryAction)
        return tips;
    for (RibbonAction *action : categoryAction->actions()) {
        QWidget *control = category->widget(action);
        if (!control || control->isHidden())
            continue;
        if (auto *strip = qobject_cast<RibbonCatActionGroupWidget *>(control)) {
            QPointer<RibbonCatActionGroupWidget> guard(strip);
            const QList<RibbonAction *> members = strip->group() ? strip->group()->actions() : QList<RibbonAction *>();
            for (int i = 0; i < members.size(); ++i) {
                RibbonKeyTip tip;
                tip.wanted = wantedKeyTip(members.at(i));
                tip.caption = members.at(i)->text();
                tip.widget = strip;
                tip.rect = strip->cellRect(i);
                tip.activate = [guard, i] {
                    if (guard)
                        clickAt(guard, guard->cellRect(i).center());
                };
                tips.append(tip);
            }
            continue;
        }
        RibbonKeyTip tip;
        tip.wanted = wantedKeyTip(action);
        tip.caption = action->text();
        tip.widget = control;
        tip.below = control->height() > kTallControl;
        tip.dropDown = IRibbonGroupWidget::groupWidget(control) != nullptr;
        tip.activate = activation(control, action);
        tips.append(tip);
    }
    return tips;
}

RibbonKeyTips::RibbonKeyTips(RibbonMainWindow &window)
    : QObject(&window)
    , m_window(window)
{
    setObjectName(QStringLiteral("keyTips"));
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive)
            hide();
    });
}

RibbonKeyTips::~RibbonKeyTips()
{
    qApp->removeEventFilter(this);
    // An overlay on a popup may outlive this object by a moment; it reads the badges here.
    for (const QPointer<QWidget> &overlay : qAsConst(m_overlays))
        delete overlay.data();
}

bool RibbonKeyTips::isShown() const
{
    return !m_levels.isEmpty();
}

int RibbonKeyTips::depth() const
{
    return m_levels.size();
}

QList<RibbonKeyTip> RibbonKeyTips::tips() const
{
    QList<RibbonKeyTip> shown;
    if (m_levels.isEmpty())
        return shown;
    for (const RibbonKeyTip &tip : m_levels.last().tips) {
        if (tip.widget && tip.widget->isVisible() && tip.keys.startsWith(m_typed))
            shown.append(tip);
    }
    return shown;
}

QVector<QRect> RibbonKeyTips::badgeRects(const QWidget *window) const
{
    const QList<RibbonKeyTip> shown = tips();
    QVector<QRect> rects(shown.size());
    if (!window)
        return rects;
    const QFontMetrics fm(window->font());
    QVector<QRect> placed;
    for (int i = 0; i < shown.size(); ++i) {
        const RibbonKeyTip &tip = shown.at(i);
        if (tip.widget->window() != window)
            continue;
        const QRect local = tip.rect.isNull() ? tip.widget->rect() : tip.rect;
        const QRect target = local.translated(tip.widget->mapTo(window, QPoint(0, 0)));
        QRect badge(0, 0, qMax(fm.horizontalAdvance(tip.keys) + 2 * kBadgePadding, kBadgeMinWidth),
                    fm.height() + 2);
        if (!tip.below) // short controls: at the left, over their lower edge
            badge.moveTopLeft(QPoint(target.left() + kShortIndent, target.center().y()));
        else // tall controls, tabs and title-row buttons: centred on their lower edge
            badge.moveCenter(QPoint(target.center().x(), target.bottom()));

        // Keep clear of the badges placed before: move right past the one in the way.
        for (int tries = 0; tries < shown.size(); ++tries) {
            const auto overlapping = std::find_if(placed.cbegin(), placed.cend(),
                                                  [&badge](const QRect &other) { return other.intersects(badge); });
            if (overlapping == placed.cend())
                break;
            badge.moveLeft(overlapping->right() + 2);
        }
        badge.moveRight(qMin(badge.right(), window->width() - 1));
        badge.moveBottom(qMin(badge.bottom(), window->height() - 1));
        placed.append(badge);
        rects[i] = badge;
    }
    return rects;
}

RibbonKeyTip RibbonKeyTips::highlighted() const
{
    if (m_levels.isEmpty())
        return RibbonKeyTip();
    const Level &level = m_levels.last();
    const RibbonKeyTip tip = level.tips.value(level.highlighted);
    return tip.widget && tip.widget->isVisible() ? tip : RibbonKeyTip();
}

QRect RibbonKeyTips::highlightRect(const QWidget *window) const
{
    const RibbonKeyTip tip = highlighted();
    if (!tip.widget || tip.widget->window() != window)
        return QRect();
    const QRect local = tip.rect.isNull() ? tip.widget->rect() : tip.rect;
    return local.translated(tip.widget->mapTo(window, QPoint(0, 0)));
}

void RibbonKeyTips::move(int step)
{
    Level &level = m_levels.last();
    m_typed.clear();
    const int count = level.tips.size();
    for (int tries = 0, at = level.highlighted; tries < count; ++tries) {
        // From no highlight, forwards starts at the first badge and backwards at the last.
        at = at < 0 ? (step > 0 ? 0 : count - 1) : (at + step + count) % count;
        const RibbonKeyTip &tip = level.tips.at(at);
        if (tip.widget && tip.widget->isVisible()) {
            level.highlighted = at;
            break;
        }
    }
    refresh();
}

void RibbonKeyTips::enterHighlighted()
{
    const RibbonKeyTip tip = highlighted();
    if (!tip.widget)
        return;
    const int depth = m_levels.size();
    enter(tip);
    // A level entered from the keyboard goes on with the keyboard.
    if (m_levels.size() > depth)
        move(1);
}

QList<RibbonKeyTip> RibbonKeyTips::topLevel() const
{
    QList<RibbonKeyTip> tips;
    RibbonMenuBar &bar = m_window.ribbonMenuBar();

    if (RibbonButtonMain *file = bar.mainMenuButton())
        tips.append(titleRowTip(file, QStringLiteral("F"), file->text()));

    for (QAction *action : bar.actions()) {
        auto *tab = qobject_cast<RibbonCategoriesPanelAction *>(action);
        RibbonMenuBarButton *button = tab ? bar.menuBarButton(tab) : nullptr;
        if (!button)
            continue;
        QPointer<RibbonMenuBarButton> guard(button);
        QPointer<RibbonCategoriesPanelAction> guardedTab(tab);
        RibbonMenuBar *barPtr = &bar;
        RibbonKeyTip tip = titleRowTip(button, wantedKeyTip(tab), tab->text());
        // What a single click does, in a pinned and in a minimised ribbon alike.
        tip.activate = [guard] {
            if (guard)
                guard->onDoubleClickTimeout();
        };
        tip.open = [barPtr, guardedTab] { return tabKeyTips(*barPtr, guardedTab); };
        // A minimised ribbon shows the tab in a popup, which stepping back closes.
        QPointer<RibbonMenuBar> guardedBar(barPtr);
        tip.close = [guardedBar] {
            if (guardedBar)
                guardedBar->collapse();
        };
        tips.append(tip);
    }

    // Quick-access commands are numbered unless the host names them.
    RibbonQuickAccessBar &quickAccess = m_window.quickAccessBar();
    QList<QAbstractButton *> buttons = quickAccess.findChildren<QAbstractButton *>();
    std::sort(buttons.begin(), buttons.end(), [](QAbstractButton *a, QAbstractButton *b) { return a->x() < b->x(); });
    int number = 0;
    for (QAbstractButton *button : qAsConst(buttons)) {
        QAction *command = button->actions().value(0);
        if (!command || !quickAccess.actions().contains(command))
            continue;
        ++number;
        QString wanted = wantedKeyTip(command);
        if (wanted.isEmpty() && number <= 9)
            wanted = QString::number(number);
        tips.append(titleRowTip(button, wanted, command->text()));
    }
    return tips;
}

void RibbonKeyTips::show()
{
    if (isShown() || m_window.activeView() != RibbonMainWindow::MainView)
        return;
    Level top;
    top.tips = topLevel();
    assignKeyTips(top.tips);
    m_levels.append(top);
    m_typed.clear();
    refresh();
}

void RibbonKeyTips::hide()
{
    m_altAlone = false;
    if (!isShown())
        return;
    m_levels.clear();
    m_typed.clear();
    refresh();
}

void RibbonKeyTips::refresh()
{
    const RibbonKeyTip current = highlighted();
    int cell = -1;
    if (auto *strip = qobject_cast<RibbonCatActionGroupWidget *>(current.widget.data())) {
        for (int i = 0; !current.rect.isNull() && strip->cellRect(i).isValid(); ++i) {
            if (strip->cellRect(i) == current.rect)
                cell = i;
        }
    }
    ribbonSetKeyboardHighlight(current.widget, cell);

    QList<const QWidget *> windows;
    for (const RibbonKeyTip &tip : tips()) {
        if (!windows.contains(tip.widget->window()))
            windows.append(tip.widget->window());
    }
    for (auto it = m_overlays.begin(); it != m_overlays.end();) {
        if (!it.value() || !windows.contains(it.key())) {
            delete it.value();
            it = m_overlays.erase(it);
        } else {
            it.value()->raise();
            it.value()->update();
            ++it;
        }
    }
    for (const QWidget *window : qAsConst(windows)) {
        if (!m_overlays.contains(window))
            m_overlays.insert(window, new KeyTipOverlay(*this, const_cast<QWidget *>(window)));
    }
}

void RibbonKeyTips::enter(const RibbonKeyTip &tip)
{
    if (!tip.widget || !tip.widget->isEnabled()) {
        // Nothing to do: start the letters afresh.
        m_typed.clear();
        refresh();
        return;
    }
    if (!tip.open) {
        // A command closes the popups its levels opened (the popup of a minimised ribbon
        // would stay); a drop-down opens its own from where it stands, which must stay.
        QList<std::function<void()>> closes;
        for (const Level &level : qAsConst(m_levels)) {
            if (level.close && !tip.dropDown)
                closes.prepend(level.close);
        }
        hide();
        tip.activate();
        for (const std::function<void()> &close : qAsConst(closes))
            close();
        return;
    }
    tip.activate();
    // The page just shown lays itself out (and folds its categories) first.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    Level level;
    level.tips = tip.open();
    level.close = tip.close;
    assignKeyTips(level.tips);
    m_levels.append(level);
    m_typed.clear();
    refresh();
}

bool RibbonKeyTips::type(QChar letter)
{
    const QString typed = m_typed + letter.toUpper();
    const QList<RibbonKeyTip> current = m_levels.last().tips;
    for (const RibbonKeyTip &tip : current) {
        if (tip.keys == typed && tip.widget && tip.widget->isVisible()) {
            enter(tip);
            return true;
        }
    }
    for (const RibbonKeyTip &tip : current) {
        if (tip.keys.startsWith(typed) && tip.widget && tip.widget->isVisible()) {
            m_typed = typed;
            refresh();
            return true;
        }
    }
    return false;
}

void RibbonKeyTips::back()
{
    if (!m_typed.isEmpty()) {
        m_typed.clear();
    } else if (m_levels.size() > 1) {
        const Level left = m_levels.takeLast();
        if (left.close)
            left.close();
    } else {
        hide();
        return;
    }
    refresh();
}

bool RibbonKeyTips::filterKey(QWidget *receiver, QKeyEvent *event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;

    if (!isShown()) {
        const bool ours = receiver->window() == &m_window && m_window.isActiveWindow()
            && m_window.activeView() == RibbonMainWindow::MainView;
        if (!ours || event->type() == QEvent::ShortcutOverride) {
            if (!ours)
                m_altAlone = false;
            return false;
        }
        if (event->type() == QEvent::KeyRelease) {
            if (key == Qt::Key_Alt && m_altAlone && !event->isAutoRepeat()) {
                m_altAlone = false;
                show();
                return true;
            }
            return false;
        }
        // The press of Alt itself may or may not carry the Alt modifier yet.
        if (key == Qt::Key_Alt && (modifiers & ~Qt::AltModifier) == 0) {
            m_altAlone = !event->isAutoRepeat() || m_altAlone;
            return false;
        }
        const bool wasAlone = m_altAlone;
        m_altAlone = false;
        if (key == Qt::Key_F10 && modifiers == Qt::NoModifier) {
            show();
            return true;
        }
        if (key == Qt::Key_F6 && modifiers == Qt::NoModifier) {
            // Into the ribbon, on the current tab.
            show();
            if (isShown()) {
                Level &top = m_levels.last();
                for (int i = 0; i < top.tips.size(); ++i) {
                    auto *button = qobject_cast<RibbonMenuBarButton *>(top.tips.at(i).widget);
                    if (button && button->isChecked())
                        top.highlighted = i;
                }
                refresh();
            }
            return true;
        }
        // Alt with a tab's letter goes straight to the tab (a host's own Alt shortcuts
        // have had their turn before the key reaches here).
        const bool letter = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
        if (wasAlone && letter && modifiers == Qt::AltModifier) {
            show();
            if (isShown() && type(QChar(key)))
                return true;
            hide();
        }
        return false;
    }

    // Shown: the keys are the badges', not the host's shortcuts.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyRelease)
        return true;
    switch (key) {
    case Qt::Key_Escape:
        back();
        return true;
    case Qt::Key_Alt:
    case Qt::Key_F10:
        hide();
        return true;
    case Qt::Key_Backspace:
        m_typed.chop(1);
        refresh();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        move(-1);
        return true;
    case Qt::Key_Down: {
        const RibbonKeyTip tip = highlighted();
        if (tip.dropDown || (tip.open && m_levels.size() == 1))
            enterHighlighted();
        else
            move(1);
        return true;
    }
    case Qt::Key_Right:
    case Qt::Key_Tab:
        move(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        enterHighlighted();
        return true;
    case Qt::Key_F6:
        hide();
        return true;
    default:
        break;
    }
    const QString text = event->text();
    if (text.size() == 1 && text.at(0).isLetterOrNumber()) {
        type(text.at(0));
        return true;
    }
    const bool letter = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
    if (letter) {
        type(QChar(key));
        return true;
    }
    // Any other key leaves the badges and does what it does.
    hide();
    return false;
}

bool RibbonKeyTips::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        if (watched->isWidgetType())
            return filterKey(static_cast<QWidget *>(watched), static_cast<QKeyEvent *>(event));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
        m_altAlone = false;
        if (isShown() && watched->isWidgetType())
            hide();
        break;
    case QEvent::Resize:
        if (isShown() && watched->isWidgetType()) {
            if (QWidget *overlay = m_overlays.value(static_cast<QWidget *>(watched)))
                overlay->setGeometry(static_cast<QWidget *>(watched)->rect());
        }
        break;
    case QEvent::WindowDeactivate:
        if (watched == &m_window && isShown()) {
            // A popup of the ribbon takes the keyboard without taking the focus away.
            QTimer::singleShot(0, this, [this] {
                if (!QApplication::activePopupWidget() && !m_window.isActiveWindow())
                    hide();
            });
        }
        break;
    default:
        break;
    }
    return false;
}

} // namespace zel
