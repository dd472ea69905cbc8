// The soak: seeded random operations over a shown main window, as a host and a user
// would mix them in any order. Every kind of action and container the library has is
// built, shared, aliased, nested, changed, triggered and deleted, also while it is shown
// and while its popups are open; the window is resized through the folding widths,
// minimised, switched to the backstage; the user clicks, presses and types. No Qt
// message may appear, the action model's invariants hold after every step, and at the
// end of each round everything is deleted and no widget is left.
//
// Runs in rounds of RoundLength operations, each from an empty window and with its own
// generator seeded from (seed, round), so that one failing round replays on its own.
// Environment:
//   ZEL_SOAK_SEED   first seed (default 1)
//   ZEL_SOAK_SEEDS  number of seeds, each run in full (default 1)
//   ZEL_SOAK_OPS    operations per seed (default 3000, 2000 under the sanitizers)
//   ZEL_SOAK_ROUND  replay only this round of each seed
//   ZEL_SOAK_TRACE  1: print each operation as it runs
// A failure prints the seed, the round, its operations and the command that replays it.
//
// New classes join with a row: actions and containers in `makers`, widgets a host places
// itself in `hostWidgets`, class-specific interactions in `operations`.

#include "ZelTest.h"

#include "BackstageListModel.h"
#include "BackstageView.h"
#include "BackstageWelcomeScreen.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatFontFamilyComboBox.h"
#include "RibbonCatFontSizeAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonChildWindow.h"
#include "RibbonContextCategoryPanel.h"
#include "RibbonContextCategoryPanelAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuAction.h"
#include "RibbonMenuBar.h"
#include "RibbonMenuBarButton.h"
#include "RibbonOptionsDialog.h"
#include "RibbonOptionsPage.h"
#include "RibbonPercAction.h"
#include "RibbonProgressAction.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStackedWidget.h"
#include "RibbonStatusBar.h"
#include "RibbonStringAction.h"
#include "RibbonTabBar.h"
#include "RibbonTextAction.h"

#include <QActionGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QRandomGenerator>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QToolBar>

#include <csignal>
#include <cstdio>
#include <memory>
#include <string>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

using namespace zel;

namespace {

constexpr int RoundLength = 500;
#if defined(__SANITIZE_ADDRESS__)
constexpr int DefaultOperations = 2000; // within the test's time limit on a loaded machine
#else
constexpr int DefaultOperations = 3000;
#endif
// Objects alive at most: beyond it the soak deletes rather than makes.
constexpr int MaxPopulation = 160;

int envInt(const char *name, int fallback)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok ? value : fallback;
}

// The operations of the running round, kept where a crash handler can print them.
std::string crashReport;

void printCrashReport()
{
    if (crashReport.empty())
        return;
    const ssize_t written = ::write(STDERR_FILENO, crashReport.data(), crashReport.size());
    Q_UNUSED(written)
}

#if !defined(__SANITIZE_ADDRESS__)
void onFatalSignal(int signal)
{
    printCrashReport();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}
#endif

void installCrashReport()
{
#if defined(__SANITIZE_ADDRESS__)
    // The sanitizers report the fault, stack overflows included; the operations follow.
    __sanitizer_set_death_callback(printCrashReport);
#else
    // On an alternate stack, so that a stack overflow can still be reported.
    static char alternateStack[1 << 16];
    stack_t stack{};
    stack.ss_sp = alternateStack;
    stack.ss_size = sizeof(alternateStack);
    sigaltstack(&stack, nullptr);
    struct sigaction action{};
    action.sa_handler = onFatalSignal;
    action.sa_flags = SA_ONSTACK | SA_RESETHAND;
    for (int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        sigaction(signal, &action, nullptr);
#endif
}

QStringList &messages()
{
    static QStringList list;
    return list;
}

// Every message counts as a fault, except what the offscreen platform says about the
// window features it lacks.
void recordMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        messages() << message;
}

class Soak;

// Makes one object of a kind, owned by owner (which may be null: the soak deletes it).
struct Maker
{
    const char *name;
    QObject *(*make)(Soak &soak, QObject *owner);
};

// A widget the host makes and places itself (as the central widget, a backstage pane
// or a window of its own).
struct HostWidget
{
    const char *name;
    QWidget *(*make)(Soak &soak);
    // Shown only as a window of its own (a dialog of the main window).
    bool ownWindow;
};

struct Operation
{
    const char *name;
    int weight;
    // Returns false when it found nothing to act on; the soak then picks another.
    bool (*run)(Soak &soak);
};

extern const Maker makers[];
extern const int makerCount;
extern const HostWidget hostWidgets[];
extern const int hostWidgetCount;

class Soak
{
public:
    Soak(quint32 seedNumber, int roundNumber)
        : random(quint32(seedNumber * 7919u + quint32(roundNumber)))
        , seed(seedNumber)
        , round(roundNumber)
    {
    }

    QRandomGenerator random;
    const quint32 seed;
    const int round;
    std::unique_ptr<RibbonMainWindow> window;
    std::unique_ptr<QObject> owner{new QObject};
    QStringList log;
    QString failure;

    int bounded(int n) { return n > 0 ? int(random.bounded(quint32(n))) : 0; }
    int between(int low, int high) { return low + bounded(high - low + 1); }
    bool chance(int percent) { return bounded(100) < percent; }

    void note(const QString &line)
    {
        log << line;
        crashReport.append(QString(QLatin1String("  ") + line + QLatin1Char('\n')).toStdString());
        if (qEnvironmentVariableIntValue("ZEL_SOAK_TRACE"))
            std::fprintf(stderr, "[soak %u/%d] %s\n", seed, round, qPrintable(line));
    }

    void check(bool condition, const QString &what)
    {
        if (!condition && failure.isEmpty())
            failure = what;
    }

    // --- objects made by the soak, each with a short name for the log

    template<class T>
    T *track(T *object, const char *kind)
    {
        if (!object)
            return nullptr;
        object->setObjectName(QString(QLatin1String(kind) + QLatin1Char('#') + QString::number(++lastId)));
        objects << object;
        return object;
    }

    static QString name(const QObject *object)
    {
        return object ? object->objectName() : QStringLiteral("null");
    }

    template<class T>
    QList<T *> all()
    {
        QList<T *> found;
        for (const QPointer<QObject> &object : qAsConst(objects)) {
            if (T *typed = qobject_cast<T *>(object.data()))
                found << typed;
        }
        return found;
    }

    // A random live object of class T; now and then null, which every call must ignore.
    template<class T>
    T *pick(int nullPercent = 3)
    {
        if (chance(nullPercent))
            return nullptr;
        const QList<T *> found = all<T>();
        return found.isEmpty() ? nullptr : found.at(bounded(found.size()));
    }

    QString text()
    {
        static const char *const words[] = {"Paste", "&Save", "Format Painter", "", "Ab",
                                            "Insert Table of Contents Here", "Zoom", "Ünïcødé",
                                            "a b c d e f g h i j", "X"};
        return QString::fromUtf8(words[bounded(int(sizeof(words) / sizeof(*words)))]);
    }

    QIcon icon()
    {
        if (chance(30))
            return QIcon();
        QPixmap pixmap(chance(50) ? 16 : 32, 16);
        pixmap.fill(QColor::fromHsv(bounded(360), 200, 200));
        return QIcon(pixmap);
    }

    int population() const
    {
        int alive = 0;
        for (const QPointer<QObject> &object : objects)
            alive += !object.isNull();
        return alive;
    }

    QObject *makeObject(const Maker &maker)
    {
        QObject *parent = chance(50) ? owner.get() : chance(50) ? window.get() : nullptr;
        return track(maker.make(*this, parent), maker.name);
    }

    // --- the window and what shows in it

    // In an order that depends on nothing but the operations (the application's own list
    // of windows is ordered by address): the main window, the soak's own windows in the
    // order made, the open popup.
    QList<QWidget *> visibleWidgets()
    {
        QList<QWidget *> tops{window.get()};
        for (const QPointer<QObject> &object : qAsConst(objects)) {
            auto *widget = qobject_cast<QWidget *>(object.data());
            if (widget && widget->isWindow())
                tops << widget;
        }
        if (QWidget *popup = QApplication::activePopupWidget())
            tops << popup;
        QList<QWidget *> found;
        for (QWidget *top : qAsConst(tops)) {
            if (!top || !top->isVisible() || found.contains(top))
                continue;
            found << top;
            for (QWidget *child : top->findChildren<QWidget *>()) {
                if (child->isVisible() && !child->size().isEmpty())
                    found << child;
            }
        }
        return found;
    }

    template<class W>
    W *visible()
    {
        QList<W *> found;
        for (QWidget *widget : visibleWidgets()) {
            if (W *typed = qobject_cast<W *>(widget))
                found << typed;
        }
        return found.isEmpty() ? nullptr : found.at(bounded(found.size()));
    }

    QPoint pointIn(const QWidget *widget) { return QPoint(bounded(widget->width()), bounded(widget->height())); }

    // Runs input of the user. Input that opens a modal menu (the quick-access customise
    // menu runs exec()) would wait for a user: the menu is closed from inside its own
    // event loop, each time one opens.
    template<class Input>
    void asUser(Input &&input)
    {
        QTimer closer;
        closer.setInterval(0);
        QObject::connect(&closer, &QTimer::timeout, [this] { closePopups(); });
        closer.start();
        input();
    }

    // A click or double click is sent event by event: a press may delete the widget.
    void mouse(QWidget *widget, QTest::MouseAction action, const QPoint &at)
    {
        QList<QTest::MouseAction> steps{action};
        if (action == QTest::MouseClick)
            steps = {QTest::MousePress, QTest::MouseRelease};
        else if (action == QTest::MouseDClick)
            steps = {QTest::MousePress, QTest::MouseRelease, QTest::MouseDClick, QTest::MouseRelease};
        QPointer<QWidget> target(widget);
        asUser([&] {
            for (QTest::MouseAction step : steps) {
                if (target)
                    QTest::mouseEvent(step, target.data(), Qt::LeftButton, Qt::NoModifier, at);
            }
        });
    }

    void key(QWidget *widget, Qt::Key key, const QString &text = QString())
    {
        QPointer<QWidget> target(widget);
        asUser([&] {
            if (target)
                QTest::sendKeyEvent(QTest::Click, target.data(), key, text, Qt::NoModifier);
        });
    }

    // Also a modal dialog a click opened (the colour picker's "More colors..."), which
    // would wait for a user as well.
    void closePopups()
    {
        for (int guard = 0; guard < 20 && QApplication::activePopupWidget(); ++guard)
            QApplication::activePopupWidget()->close();
        if (QWidget *modal = QApplication::activeModalWidget())
            modal->close();
    }

    void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // --- checks after each operation

    void checkMessages()
    {
        if (!messages().isEmpty()) {
            check(false, QStringLiteral("Qt message: ") + messages().join(QStringLiteral(" | ")));
            messages().clear();
        }
    }

    // Every member a container reports is alive, and no container holds itself.
    void checkModel()
    {
        QSet<const QObject *> alive;
        for (const QPointer<QObject> &object : qAsConst(objects)) {
            if (object)
                alive.insert(object.data());
        }
        for (const QPointer<QObject> &object : qAsConst(objects)) {
            QObject *container = object.data();
            if (!container)
                continue;
            const QList<const QObject *> members = membersOf(container);
            for (const QObject *member : members)
                check(alive.contains(member), name(container) + QStringLiteral(" holds a dead member"));
            if (!failure.isEmpty())
                return;
            check(!holds(container, container), name(container) + QStringLiteral(" holds itself"));
            if (auto *menu = qobject_cast<RibbonMenuAction *>(container)) {
                RibbonAction *checked = menu->checkedAction();
                check(!checked || menu->menuActions().contains(checked),
                      name(menu) + QStringLiteral(" has a checked item that is not an item"));
            }
            if (auto *group = qobject_cast<RibbonCatActionGroup *>(container)) {
                RibbonAction *checked = group->checkedAction();
                check(!checked || group->actions().contains(checked),
                      name(group) + QStringLiteral(" has a checked member that is not a member"));
            }
        }
    }

    static QList<const QObject *> membersOf(const QObject *container)
    {
        QList<const QObject *> members;
        if (auto *menu = qobject_cast<const RibbonMenuAction *>(container)) {
            for (RibbonAction *item : menu->menuActions())
                members << item;
            if (menu->defaultAction())
                members << menu->defaultAction();
        } else if (auto *category = qobject_cast<const RibbonCategoryAction *>(container)) {
            for (RibbonAction *action : category->actions())
                members << action;
        } else if (auto *group = qobject_cast<const RibbonCatActionGroup *>(container)) {
            for (RibbonAction *action : group->actions())
                members << action;
        } else if (auto *tab = qobject_cast<const RibbonCategoriesPanelAction *>(container)) {
            for (RibbonCategoryAction *member : tab->categories())
                members << member;
        } else if (auto *set = qobject_cast<const RibbonContextCategoryPanelAction *>(container)) {
            for (RibbonCategoriesPanelAction *member : set->panelActions())
                members << member;
        }
        return members;
    }

    static bool holds(const QObject *container, const QObject *target)
    {
        QSet<const QObject *> seen;
        QList<const QObject *> pending = membersOf(container);
        while (!pending.isEmpty()) {
            const QObject *next = pending.takeLast();
            if (next == target)
                return true;
            if (!seen.contains(next)) {
                seen.insert(next);
                pending << membersOf(next);
            }
        }
        return false;
    }

    // The widgets agree with their actions.
    void checkWidgets()
    {
        if (!window)
            return;
        for (RibbonCatComboComboBox *box : window->findChildren<RibbonCatComboComboBox *>()) {
            auto *action = qobject_cast<RibbonCatComboAction *>(box->actions().value(0));
            if (!action)
                continue;
            QStringList items;
            for (int i = 0; i < box->count(); ++i)
                items << box->itemText(i);
            check(items == action->items(), name(action) + QStringLiteral(": its box lists ")
                                                 + items.join(QLatin1Char(',')) + QStringLiteral(", it ")
                                                 + action->items().join(QLatin1Char(',')));
        }
        int checkedTabs = 0;
        for (RibbonMenuBarButton *button : window->ribbonMenuBar().findChildren<RibbonMenuBarButton *>()) {
            QAction *tab = button->actions().value(0);
            checkedTabs += tab && tab->isChecked();
        }
        check(checkedTabs <= 1, QString::number(checkedTabs) + QStringLiteral(" tabs are current"));
    }

    // --- the round

    void start()
    {
        crashReport = QString(QStringLiteral("\n*** soak seed %1 round %2 crashed; its operations:\n")
                                  .arg(seed)
                                  .arg(round))
                          .toStdString();
        window.reset(new RibbonMainWindow);
        if (auto *guard = window->ribbonMenuBar().categoryPanels()->findChild<QTimer *>(QStringLiteral("reopenGuard")))
            guard->setInterval(60 * 60 * 1000); // ends when an operation says so
        window->resize(between(300, 1400), between(300, 700));
        window->show();
        check(QTest::qWaitForWindowExposed(window.get()), QStringLiteral("the window is not shown"));
        note(QStringLiteral("window shown at ") + QString::number(window->width()));
    }

    // Deletes what is left in a random order, then the window.
    void finish()
    {
        closePopups();
        settle();
        QList<QPointer<QObject>> left = objects;
        while (!left.isEmpty()) {
            QPointer<QObject> object = left.takeAt(bounded(left.size()));
            if (object && chance(70))
                delete object.data();
        }
        settle();
        window.reset();
        owner.reset();
        // What had no owner outlives the window, and goes last.
        for (const QPointer<QObject> &object : qAsConst(objects))
            delete object.data();
        settle();
        objects.clear();
    }

private:
    QList<QPointer<QObject>> objects;
    int lastId = 0;
};

// --- makers ---------------------------------------------------------------------------

RibbonCatSimpleAction::eSize simpleSize(Soak &s)
{
    return RibbonCatSimpleAction::eSize(s.bounded(3));
}

QPointer<QAction> someAlias(Soak &s)
{
    return QPointer<QAction>(s.pick<QAction>(10));
}

QObject *makeCombo(Soak &s, QObject *owner)
{
    auto *combo = s.chance(50) ? new RibbonCatComboAction(s.text(), owner) : new RibbonCatComboAction(owner);
    for (int i = s.bounded(4); i > 0; --i) {
        if (s.chance(30))
            combo->addItem(s.icon(), s.text());
        else
            combo->addItem(s.text());
    }
    combo->setEditable(s.chance(60));
    combo->setSearchable(s.chance(40));
    combo->setVerticalAligned(s.chance(30));
    combo->setWidth(s.between(-10, 160));
    return combo;
}

const Maker makers[] = {
    {"tab", [](Soak &s, QObject *o) -> QObject * { return new RibbonCategoriesPanelAction(s.icon(), s.text(), o); }},
    {"category", [](Soak &s, QObject *o) -> QObject * { return new RibbonCategoryAction(s.icon(), s.text(), o); }},
    {"group", [](Soak &s, QObject *o) -> QObject * { return new RibbonCatActionGroup(s.text(), o); }},
    {"set", [](Soak &s, QObject *o) -> QObject * {
         auto *set = new RibbonContextCategoryPanelAction(QColor::fromHsv(s.bounded(360), 80, 250), Qt::red,
                                                          Qt::black, o);
         set->setText(s.text());
         return set;
     }},
    {"simple", [](Soak &s, QObject *o) -> QObject * { return new RibbonSimpleAction(s.icon(), s.text(), o); }},
    {"button", [](Soak &s, QObject *o) -> QObject * {
         return new RibbonCatSimpleAction(s.icon(), s.text(), simpleSize(s), o);
     }},
    {"aliasButton", [](Soak &s, QObject *o) -> QObject * {
         if (s.chance(50))
             return new RibbonCatSimpleAction(someAlias(s), simpleSize(s), o);
         return new RibbonCatSimpleAction(someAlias(s), s.icon(), s.text(), simpleSize(s), o);
     }},
    {"catMenu", [](Soak &s, QObject *o) -> QObject * {
         return new RibbonCatMenuAction(s.icon(), s.text(), RibbonCatMenuAction::MenuTypeButton,
                                        RibbonCatMenuAction::eMenuSize(s.bounded(3)),
                                        RibbonCatMenuAction::ePopupType(s.bounded(4)), o);
     }},
    {"aliasMenu", [](Soak &s, QObject *o) -> QObject * {
         return new RibbonCatMenuAction(someAlias(s), RibbonCatMenuAction::MenuTypeButton,
                                        RibbonCatMenuAction::eMenuSize(s.bounded(3)),
                                        RibbonCatMenuAction::ePopupType(s.bounded(3)), o);
     }},
    {"menu", [](Soak &s, QObject *o) -> QObject * { return new RibbonMenuAction(s.icon(), s.text(), o); }},
    {"separator", [](Soak &, QObject *o) -> QObject * { return new RibbonSeparatorAction(o); }},
    {"textAction", [](Soak &s, QObject *o) -> QObject * {
         if (s.chance(50))
             return new RibbonTextAction(QPointer<RibbonAction>(s.pick<RibbonAction>(10)), o);
         return new RibbonTextAction(s.text(), o);
     }},
    {"string", [](Soak &s, QObject *o) -> QObject * { return new RibbonStringAction(s.text(), o); }},
    {"checkBox", [](Soak &s, QObject *o) -> QObject * { return new RibbonCatCheckBoxAction(s.text(), o); }},
    {"combo", makeCombo},
    {"fontFamily", [](Soak &s, QObject *o) -> QObject * {
         return new RibbonCatFontFamilyAction(QFont(s.chance(50) ? QStringLiteral("Sans") : QStringLiteral("Serif")), o);
     }},
    {"fontSize", [](Soak &s, QObject *o) -> QObject * { return new RibbonCatFontSizeAction(s.between(-2, 80), o); }},
    {"percentage", [](Soak &s, QObject *o) -> QObject * {
         return new RibbonPercAction(s.between(-10, 50), s.between(0, 500), s.between(-20, 600), o);
     }},
    {"progress", [](Soak &s, QObject *o) -> QObject * {
         return new RibbonProgressAction(s.between(-5, 5), s.between(-5, 200), s.between(-10, 210), s.text(), o);
     }},
    {"colorMenu", [](Soak &s, QObject *o) -> QObject * {
         const auto size = RibbonCatColorMenuAction::eSize(s.bounded(3));
         auto *color = s.chance(30) ? new RibbonCatColorMenuAction(someAlias(s), s.icon(), s.text(), size, o)
                                    : new RibbonCatColorMenuAction(s.icon(), s.text(), size, o);
         color->setHasAutomaticColor(s.chance(50));
         color->setHasNoneColor(s.chance(50));
         color->setHasGradient(s.chance(30));
         color->setKeepSelection(s.chance(70));
         return color;
     }},
    // Stays last: every row before it makes a RibbonAction.
    {"host", [](Soak &s, QObject *o) -> QObject * {
         auto *host = new QAction(s.icon(), s.text(), o);
         host->setCheckable(s.chance(40));
         host->setEnabled(s.chance(80));
         return host;
     }},
};
const int makerCount = int(sizeof(makers) / sizeof(*makers));

const Maker &makerNamed(const char *name)
{
    for (const Maker &maker : makers) {
        if (qstrcmp(maker.name, name) == 0)
            return maker;
    }
    Q_UNREACHABLE();
}

// A tool bar holding some of the soak's actions: they make their own widgets there.
QWidget *makeToolBar(Soak &s)
{
    auto *bar = new QToolBar;
    for (int i = s.between(1, 5); i > 0; --i) {
        if (QAction *action = s.pick<QAction>(0))
            bar->addAction(action);
    }
    return bar;
}

// A strip of tabs over the entries of a menu, a new one now and then.
QWidget *makeTabBar(Soak &s)
{
    auto *menu = s.chance(70) ? s.pick<RibbonMenuAction>(0) : nullptr;
    if (!menu)
        menu = static_cast<RibbonMenuAction *>(s.makeObject(makerNamed("menu")));
    return new RibbonTabBar(*menu);
}

QWidget *makeChildWindow(Soak &s)
{
    auto *child = new RibbonChildWindow(nullptr, s.chance(50));
    child->showDockingButton(s.chance(50));
    child->drawCaptionFrame(s.chance(50));
    auto *layout = new QVBoxLayout(child);
    layout->addWidget(new QTextEdit(s.text()));
    return child;
}

QWidget *makeStackedWidget(Soak &s)
{
    auto *stack = new RibbonStackedWidget;
    QList<QWidget *> pages;
    for (int i = s.bounded(4); i > 0; --i) {
        pages << new QLabel(s.text());
        stack->addItem(pages.last(), s.text());
    }
    if (!pages.isEmpty())
        stack->setCurrentWidget(pages.at(s.bounded(pages.size())));
    return stack;
}

// An options page with nothing to keep.
class SoakOptionsPage : public RibbonOptionsPage
{
public:
    SoakOptionsPage(RibbonOptionsDialog &dialog, const QString &title)
        : RibbonOptionsPage(dialog)
    {
        setWindowTitle(title);
    }
    void accept() override {}
    void reject() override {}
};

QWidget *makeOptionsDialog(Soak &s)
{
    auto *dialog = new RibbonOptionsDialog(*s.window);
    QList<RibbonOptionsPage *> pages;
    for (int i = s.bounded(4); i > 0; --i) {
        pages << new SoakOptionsPage(*dialog, s.text());
        dialog->addOptionsPage(pages.last());
    }
    if (!pages.isEmpty())
        dialog->setCurrentPage(pages.at(s.bounded(pages.size())));
    return dialog;
}

const HostWidget hostWidgets[] = {
    {"editor", [](Soak &s) -> QWidget * { return new QTextEdit(s.text()); }, false},
    {"toolBar", makeToolBar, false},
    {"tabBar", makeTabBar, false},
    {"childWindow", makeChildWindow, false},
    {"stackedWidget", makeStackedWidget, false},
    {"optionsDialog", makeOptionsDialog, true},
};
const int hostWidgetCount = int(sizeof(hostWidgets) / sizeof(*hostWidgets));

// --- operations -------------------------------------------------------------------------

#define NOTE(...) s.note(QString::asprintf(__VA_ARGS__))
#define N(object) qPrintable(Soak::name(object))

bool opMake(Soak &s)
{
    if (s.population() >= MaxPopulation)
        return false;
    const Maker &maker = makers[s.bounded(makerCount)];
    QObject *made = s.makeObject(maker);
    NOTE("make %s", N(made));
    return true;
}

// A host building a whole tab: categories of new and existing commands and groups, the
// tab on the ribbon bar (or in a contextual set).
bool opBuildTab(Soak &s)
{
    if (s.population() >= MaxPopulation)
        return false;
    auto *tab = static_cast<RibbonCategoriesPanelAction *>(s.makeObject(makers[0]));
    NOTE("build %s", N(tab));
    for (int c = s.between(1, 3); c > 0; --c) {
        auto *category = static_cast<RibbonCategoryAction *>(s.makeObject(makers[1]));
        for (int i = s.between(1, 6); i > 0; --i) {
            RibbonAction *action = s.chance(30) ? s.pick<RibbonAction>(0) : nullptr;
            if (!action)
                action = qobject_cast<RibbonAction *>(s.makeObject(makers[s.between(2, makerCount - 2)]));
            const int row = s.between(-1, 2);
            NOTE("  %s.addAction(%s, %d)", N(category), N(action), row);
            category->addAction(action, row);
        }
        NOTE("  %s.addCategory(%s)", N(tab), N(category));
        tab->addCategory(category);
    }
    RibbonContextCategoryPanelAction *set = s.chance(20) ? s.pick<RibbonContextCategoryPanelAction>(0) : nullptr;
    if (set) {
        NOTE("  %s.addPanelAction(%s)", N(set), N(tab));
        set->addPanelAction(tab);
    } else {
        NOTE("  ribbon bar addAction(%s)", N(tab));
        s.window->ribbonMenuBar().addAction(tab);
    }
    return true;
}

bool opCategoryAdd(Soak &s)
{
    RibbonCategoryAction *category = s.pick<RibbonCategoryAction>();
    RibbonAction *action = s.pick<RibbonAction>();
    const int row = s.between(-1, 2);
    NOTE("%s.addAction(%s, %d)", N(category), N(action), row);
    if (category)
        category->addAction(action, row);
    return true;
}

bool opCategoryRemove(Soak &s)
{
    RibbonCategoryAction *category = s.pick<RibbonCategoryAction>(0);
    if (!category || category->actions().isEmpty())
        return false;
    RibbonAction *action = category->actions().at(s.bounded(category->actions().size()));
    NOTE("%s.removeAction(%s)", N(category), N(action));
    category->removeAction(action);
    return true;
}

bool opTabCategory(Soak &s)
{
    RibbonCategoriesPanelAction *tab = s.pick<RibbonCategoriesPanelAction>();
    RibbonCategoryAction *category = s.pick<RibbonCategoryAction>();
    if (!tab)
        return false;
    if (s.chance(70)) {
        NOTE("%s.addCategory(%s)", N(tab), N(category));
        tab->addCategory(category);
    } else {
        NOTE("%s.removeCategory(%s)", N(tab), N(category));
        tab->removeCategory(category);
    }
    return true;
}

bool opGroup(Soak &s)
{
    RibbonCatActionGroup *group = s.pick<RibbonCatActionGroup>();
    if (!group)
        return false;
    switch (s.bounded(4)) {
    case 0:
    case 1: {
        RibbonAction *action = s.pick<RibbonAction>();
        const bool wide = s.chance(30);
        NOTE("%s.addAction(%s, %d)", N(group), N(action), wide);
        group->addAction(action, wide);
        break;
    }
    case 2: {
        RibbonAction *action = group->actions().value(s.bounded(group->actions().size() + 1));
        NOTE("%s.removeAction(%s)", N(group), N(action));
        group->removeAction(action);
        break;
    }
    default: {
        const bool exclusive = s.chance(50);
        NOTE("%s.setExclusive(%d)", N(group), exclusive);
        group->setExclusive(exclusive);
    }
    }
    return true;
}

bool opMenu(Soak &s)
{
    RibbonMenuAction *menu = s.pick<RibbonMenuAction>();
    if (!menu)
        return false;
    auto *catMenu = qobject_cast<RibbonCatMenuAction *>(menu);
    RibbonAction *action = s.pick<RibbonAction>();
    auto *simple = qobject_cast<RibbonSimpleAction *>(action);
    const bool flag = s.chance(50);
    switch (s.bounded(10)) {
    case 0:
    case 1:
        NOTE("%s.addAction(%s, %d)", N(menu), N(action), flag);
        menu->addAction(action, flag);
        break;
    case 2: {
        const int index = s.between(-1, menu->menuActions().size() + 1);
        NOTE("%s.insertAction(%d, %s)", N(menu), index, N(action));
        menu->insertAction(index, action);
        break;
    }
    case 3:
        action = menu->menuActions().value(s.bounded(menu->menuActions().size() + 1));
        NOTE("%s.removeAction(%s)", N(menu), N(action));
        menu->removeAction(action);
        break;
    case 4:
        NOTE("%s.setDefaultAction(%s)", N(menu), N(action));
        menu->setDefaultAction(action);
        break;
    case 5:
        NOTE("%s.setExclusive(%d)", N(menu), flag);
        menu->setExclusive(flag);
        break;
    case 6:
        NOTE("%s.setToBeToggled(%d), autoChangeEnableSubActions(%d)", N(menu), flag, !flag);
        menu->setToBeToggled(flag);
        menu->autoChangeEnableSubActions(!flag);
        break;
    case 7:
        NOTE("%s.setShowToggledIndicator(%d)", N(menu), flag);
        menu->setShowToggledIndicator(flag);
        break;
    default:
        if (!catMenu)
            return false;
        if (s.chance(40)) {
            NOTE("%s.addTopAction(%s)", N(catMenu), N(simple));
            catMenu->addTopAction(simple);
        } else if (s.chance(60)) {
            NOTE("%s.addBottomAction(%s)", N(catMenu), N(simple));
            catMenu->addBottomAction(simple);
        } else if (catMenu->iconActionGroup() && action) {
            NOTE("%s.iconActionGroup().addAction(%s)", N(catMenu), N(action));
            catMenu->iconActionGroup()->addAction(action);
        }
    }
    return true;
}

bool opContextSet(Soak &s)
{
    RibbonContextCategoryPanelAction *set = s.pick<RibbonContextCategoryPanelAction>();
    if (!set)
        return false;
    RibbonMenuBar &bar = s.window->ribbonMenuBar();
    RibbonCategoriesPanelAction *tab = s.pick<RibbonCategoriesPanelAction>();
    switch (s.bounded(6)) {
    case 0:
        NOTE("%s.addPanelAction(%s)", N(set), N(tab));
        set->addPanelAction(tab);
        break;
    case 1:
        NOTE("%s.removePanelAction(%s)", N(set), N(tab));
        set->removePanelAction(tab);
        break;
    case 2:
        NOTE("register %s", N(set));
        bar.ribbonContextCategoryPanel().addContextPanelAction(set);
        break;
    case 3:
        NOTE("unregister %s", N(set));
        bar.ribbonContextCategoryPanel().removeContextPanelAction(set);
        break;
    case 4:
        NOTE("show %s", N(set));
        bar.showContextPanelAction(set);
        break;
    default:
        NOTE("hide %s", N(set));
        bar.hideContextPanelAction(set);
    }
    return true;
}

bool opRibbonBar(Soak &s)
{
    RibbonMenuBar &bar = s.window->ribbonMenuBar();
    switch (s.bounded(6)) {
    case 0:
    case 1: {
        QAction *action = s.chance(70) ? s.pick<RibbonCategoriesPanelAction>() : s.pick<QAction>();
        NOTE("ribbon bar addAction(%s)", N(action));
        if (action)
            bar.addAction(action);
        break;
    }
    case 2: {
        QAction *action = bar.actions().value(s.bounded(bar.actions().size() + 1));
        NOTE("ribbon bar removeAction(%s)", N(action));
        bar.removeAction(action);
        break;
    }
    case 3: {
        RibbonAction *action = s.pick<RibbonAction>(20);
        NOTE("ribbon bar setHelpAction(%s)", N(action));
        bar.setHelpAction(action);
        break;
    }
    case 4: {
        RibbonAction *action = s.chance(70) ? s.pick<RibbonCatComboAction>(20) : s.pick<RibbonAction>(20);
        NOTE("ribbon bar setFindComboAction(%s)", N(action));
        bar.setFindComboAction(action);
        break;
    }
    default: {
        RibbonAction *action = s.chance(70) ? s.pick<RibbonCatMenuAction>(20) : s.pick<RibbonAction>(20);
        NOTE("ribbon bar setFindAction(%s)", N(action));
        bar.setFindAction(action);
    }
    }
    return true;
}

bool opStatusBar(Soak &s)
{
    RibbonStatusBar &bar = s.window->ribbonStatusBar();
    if (s.chance(65)) {
        QAction *action = s.pick<QAction>(0);
        NOTE("status bar addAction(%s)", N(action));
        if (action)
            bar.addAction(action);
    } else if (s.chance(70)) {
        QAction *action = bar.actions().value(s.bounded(bar.actions().size() + 1));
        NOTE("status bar removeAction(%s)", N(action));
        bar.removeAction(action);
    } else if (s.chance(50)) {
        NOTE("status bar addLoginStatusIcon");
        bar.addLoginStatusIcon(new QLabel(s.text()));
    } else {
        QLabel *icon = bar.findChild<QLabel *>();
        NOTE("status bar removeLoginStatusIcon(%s)", icon ? "a label" : "null");
        bar.removeLoginStatusIcon(icon);
    }
    return true;
}

bool opQuickAccess(Soak &s)
{
    RibbonQuickAccessBar &bar = s.window->quickAccessBar();
    switch (s.bounded(5)) {
    case 0:
    case 1: {
        QAction *action = s.pick<QAction>(0);
        if (action && s.chance(50))
            action->setData(s.text());
        NOTE("quick access addAction(%s)", N(action));
        if (action)
            bar.addAction(action);
        break;
    }
    case 2: {
        QAction *action = bar.actions().value(s.bounded(bar.actions().size() + 1));
        NOTE("quick access removeAction(%s)", N(action));
        bar.removeAction(action);
        break;
    }
    case 3: {
        QStringList names;
        for (int i = s.bounded(3); i > 0; --i)
            names << s.text();
        NOTE("quick access setQuickAccessBarItems(%s)", qPrintable(names.join(QLatin1Char(','))));
        bar.setQuickAccessBarItems(names);
        break;
    }
    default: {
        // The user picks an entry of the customise menu.
        auto *menu = bar.findChild<QMenu *>();
        QAction *entry = menu ? menu->actions().value(s.bounded(menu->actions().size())) : nullptr;
        NOTE("quick access menu entry %s", entry ? qPrintable(entry->text()) : "none");
        if (entry)
            entry->trigger();
    }
    }
    return true;
}

bool opAlias(Soak &s)
{
    RibbonAction *action = s.pick<RibbonAction>(0);
    QAction *alias = s.pick<QAction>(15);
    NOTE("%s.setAliasAction(%s)", N(action), N(alias));
    if (action)
        action->setAliasAction(QPointer<QAction>(alias));
    return true;
}

bool opState(Soak &s)
{
    QAction *action = s.pick<QAction>(0);
    if (!action)
        return false;
    const bool flag = s.chance(50);
    switch (s.bounded(9)) {
    case 0:
        NOTE("%s.setEnabled(%d)", N(action), flag);
        action->setEnabled(flag);
        break;
    case 1:
        if (auto *ribbon = qobject_cast<RibbonAction *>(action)) {
            NOTE("%s.enableAction(%d)", N(action), flag);
            ribbon->enableAction(flag);
        }
        break;
    case 2:
        NOTE("%s.setCheckable(%d)", N(action), flag || action->isCheckable());
        action->setCheckable(flag || action->isCheckable());
        break;
    case 3:
        NOTE("%s.setChecked(%d)", N(action), flag);
        action->setChecked(flag);
        break;
    case 4: {
        const QString text = s.text();
        NOTE("%s.setText(%s)", N(action), qPrintable(text));
        action->setText(text);
        break;
    }
    case 5:
        NOTE("%s.setIcon", N(action));
        action->setIcon(s.icon());
        break;
    case 6: {
        const bool visible = flag || s.chance(50); // drawn once, so that the log says what was done
        NOTE("%s.setVisible(%d)", N(action), visible);
        action->setVisible(visible);
        break;
    }
    case 7:
        NOTE("%s.hover()", N(action));
        action->hover();
        break;
    default:
        NOTE("%s.trigger()", N(action));
        action->trigger();
    }
    return true;
}

bool opValue(Soak &s)
{
    switch (s.bounded(7)) {
    case 6:
        if (RibbonCatColorMenuAction *color = s.pick<RibbonCatColorMenuAction>(0)) {
            switch (s.bounded(4)) {
            case 0: {
                const QColor chosen = QColor::fromHsv(s.bounded(360), s.bounded(256), s.bounded(256));
                NOTE("%s.setColor(%s)", N(color), qPrintable(chosen.name()));
                color->setColor(chosen);
                break;
            }
            case 1:
                NOTE("%s.setAutomatic()", N(color));
                color->setAutomatic();
                break;
            case 2:
                NOTE("%s.setNone()", N(color));
                color->setNone();
                break;
            default: {
                const bool gradient = s.chance(50);
                NOTE("%s.setGradient(%d)", N(color), gradient);
                color->setGradient(gradient);
            }
            }
            return true;
        }
        return false;
    case 0:
        if (RibbonCatComboAction *combo = s.pick<RibbonCatComboAction>(0)) {
            const QString item = s.text();
            NOTE("%s.addItem(%s)", N(combo), qPrintable(item));
            if (s.chance(30))
                combo->addItem(s.icon(), item);
            else
                combo->addItem(item);
            return true;
        }
        return false;
    case 1:
        if (RibbonCatComboAction *combo = s.pick<RibbonCatComboAction>(0)) {
            const int index = s.between(-1, combo->items().size());
            NOTE("%s.setSelectionIndex(%d)", N(combo), index);
            combo->setSelectionIndex(index);
            const QString text = s.text();
            NOTE("%s.setSelectionText(%s)", N(combo), qPrintable(text));
            combo->setSelectionText(text);
            return true;
        }
        return false;
    case 2:
        if (RibbonCatComboAction *combo = s.pick<RibbonCatComboAction>(0)) {
            const bool flag = s.chance(50);
            NOTE("%s.setEditable(%d), setWidth", N(combo), flag);
            combo->setEditable(flag);
            combo->setWidth(s.between(-5, 200));
            combo->setIconWidth(s.between(-5, 30));
            return true;
        }
        return false;
    case 3:
        if (RibbonCatFontSizeAction *size = s.pick<RibbonCatFontSizeAction>(0)) {
            const int value = s.between(-1, 100);
            NOTE("%s.updateFontSize(%d)", N(size), value);
            size->updateFontSize(value);
            return true;
        } else if (RibbonCatFontFamilyAction *family = s.pick<RibbonCatFontFamilyAction>(0)) {
            NOTE("%s.setFontFamily", N(family));
            family->setFontFamily(QFont(s.chance(50) ? QStringLiteral("Monospace") : QStringLiteral("Sans")));
            return true;
        }
        return false;
    case 4:
        if (RibbonPercAction *perc = s.pick<RibbonPercAction>(0)) {
            const int value = s.between(-50, 700);
            NOTE("%s.setPercentage(%d)", N(perc), value);
            perc->setPercentage(value);
            return true;
        }
        return false;
    case 5:
        if (RibbonProgressAction *progress = s.pick<RibbonProgressAction>(0)) {
            const int a = s.between(-10, 200), b = s.between(-10, 200);
            NOTE("%s.setRange(%d, %d), setProgressValue, setProgress", N(progress), a, b);
            progress->setRange(a, b);
            progress->setProgressValue(s.between(-20, 220));
            progress->setProgress(s.between(-3, 30), s.between(-3, 30));
            progress->setProgressText(s.text());
            progress->enableGrab(s.chance(50));
            return true;
        }
        return false;
    }
    return false;
}

// The user types into a combo box shown somewhere, or picks one of its entries.
bool opType(Soak &s)
{
    QComboBox *box = s.visible<QComboBox>();
    if (!box)
        return false;
    if (s.chance(40) && box->count() > 0) {
        const int index = s.bounded(box->count());
        NOTE("choose entry %d of a %s", index, box->metaObject()->className());
        box->setCurrentIndex(index);
        emit box->activated(index);
        return false;
    }
    const QString typed = s.text();
    NOTE("type '%s' into a %s", qPrintable(typed), box->metaObject()->className());
    QPointer<QComboBox> guard(box);
    for (const QChar c : typed)
        s.key(guard.data(), Qt::Key_unknown, QString(c));
    s.key(guard.data(), s.chance(80) ? Qt::Key_Return : Qt::Key_Escape);
    return true;
}

bool opWindow(Soak &s)
{
    RibbonMainWindow &window = *s.window;
    switch (s.bounded(10)) {
    case 0:
    case 1:
    case 2: {
        // Through the folding widths, both ways.
        const int width = s.between(120, 1600), height = s.between(150, 800);
        NOTE("resize %d x %d", width, height);
        window.resize(width, height);
        break;
    }
    case 3: {
        const bool minimize = s.chance(50);
        NOTE("ribbon setMinimizeRibbon(%d)", minimize);
        window.ribbonMenuBar().setMinimizeRibbon(minimize);
        break;
    }
    case 4:
        NOTE("the reopen guard runs out");
        if (auto *guard = window.ribbonMenuBar().categoryPanels()->findChild<QTimer *>(QStringLiteral("reopenGuard")))
            guard->stop();
        break;
    case 5: {
        const int view = s.bounded(3);
        NOTE("setActiveView(%d)", view);
        window.setActiveView(RibbonMainWindow::View(view));
        break;
    }
    case 6:
        switch (s.bounded(4)) {
        case 0:
            NOTE("window showMinimized");
            window.showMinimized();
            break;
        case 1:
            NOTE("window showMaximizedRestored");
            window.showMaximizedRestored();
            break;
        case 2:
            NOTE("window show");
            window.showNormal();
            window.activateWindow();
            break;
        default:
            NOTE("window setShowTitleBar");
            window.setShowTitleBar(s.chance(70));
        }
        break;
    case 7: {
        BackstageView &backstage = window.backstageView();
        const QString name = s.text();
        if (s.chance(50)) {
            NOTE("backstage addItem(%s)", qPrintable(name));
            backstage.addItem(name, s.chance(80) ? new QLabel(name) : nullptr);
        } else if (s.chance(50)) {
            NOTE("backstage setCurrentItem(%s)", qPrintable(name));
            backstage.setCurrentItem(name);
        } else {
            NOTE("backstage enableItem(%s)", qPrintable(name));
            backstage.enableItem(name, s.chance(50));
        }
        break;
    }
    case 8: {
        const HostWidget &host = hostWidgets[s.bounded(hostWidgetCount)];
        const int place = host.ownWindow ? 2 : s.bounded(3);
        if (place == 0) {
            NOTE("setCentralWidget(%s)", host.name);
            QWidget *old = window.centralWidget();
            window.setCentralWidget(s.track(host.make(s), host.name));
            delete old;
        } else if (place == 1) {
            const QString name = s.text();
            NOTE("backstage addItem(%s, %s)", qPrintable(name), host.name);
            window.backstageView().addItem(name, s.track(host.make(s), host.name));
        } else {
            QWidget *made = s.track(host.make(s), host.name);
            NOTE("show %s as a window", N(made));
            made->resize(s.between(50, 500), s.between(30, 400));
            made->show();
        }
        break;
    }
    default: {
        BackstageWelcomeScreen &welcome = window.welcomeScreen();
        NOTE("welcome screen template and recent list");
        welcome.addTemplate(s.text(), QPixmap());
        if (!welcome.recentModel())
            welcome.setRecentModel(new BackstageListModel(&welcome, s.between(-1, 6)));
        welcome.recentModel()->addItem(s.text(), s.chance(50));
    }
    }
    return true;
}

// The user clicks, presses or double-clicks somewhere, or presses a key.
bool opUser(Soak &s)
{
    QList<QWidget *> widgets = s.visibleWidgets();
    if (widgets.isEmpty())
        return false;
    QWidget *widget = widgets.at(s.bounded(widgets.size()));
    const QPoint at = s.pointIn(widget);
    static const struct
    {
        const char *verb;
        QTest::MouseAction action;
    } mice[] = {{"click", QTest::MouseClick}, {"click", QTest::MouseClick}, {"press", QTest::MousePress},
                {"release on", QTest::MouseRelease}, {"double-click", QTest::MouseDClick}};
    const int choice = s.bounded(6);
    if (choice < 5) {
        NOTE("%s a %s at %d,%d", mice[choice].verb, widget->metaObject()->className(), at.x(), at.y());
        s.mouse(widget, mice[choice].action, at);
        return true;
    }
    static const Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Down, Qt::Key_Space, Qt::Key_A};
    const Qt::Key key = keys[s.bounded(5)];
    QWidget *target = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : widget;
    NOTE("key %d on a %s", int(key), target->metaObject()->className());
    s.key(target, key, key == Qt::Key_A ? QStringLiteral("a") : QString());
    return true;
}

// Opens a popup the ribbon has: a menu button's drop-down, a folded category, a combo's
// list, the system menu.
bool opPopup(Soak &s)
{
    switch (s.bounded(4)) {
    case 0:
        if (RibbonCatMenuButton *button = s.visible<RibbonCatMenuButton>()) {
            NOTE("open the drop-down of %s", N(button->action()));
            s.mouse(button, QTest::MousePress, QPoint(button->width() - 2, button->height() - 2));
            return true;
        }
        return false;
    case 1:
        if (RibbonCategoryWrapper *wrapper = s.visible<RibbonCategoryWrapper>()) {
            NOTE("click the group %s (%s)", qPrintable(wrapper->categoryAction().objectName()),
                 wrapper->isColapsed() ? "folded" : "open");
            s.mouse(wrapper, QTest::MouseClick, s.pointIn(wrapper));
            return true;
        }
        return false;
    case 2:
        if (QComboBox *box = s.visible<QComboBox>()) {
            NOTE("open the list of a %s", box->metaObject()->className());
            box->showPopup();
            return true;
        }
        return false;
    default:
        if (QMenu *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            QAction *entry = popup->actions().value(s.bounded(popup->actions().size() + 1));
            NOTE("choose %s in the open menu", N(entry));
            if (entry && !entry->menu())
                entry->trigger();
            popup->close();
        } else {
            NOTE("close popups");
            s.closePopups();
        }
    }
    return true;
}

bool opDelete(Soak &s)
{
    QObject *object = s.pick<QObject>(0);
    NOTE("delete %s%s", N(object), QApplication::activePopupWidget() ? " while a popup is open" : "");
    delete object;
    return true;
}

const Operation operations[] = {
    {"make", 14, opMake},
    {"build tab", 3, opBuildTab},
    {"category", 10, opCategoryAdd},
    {"category remove", 3, opCategoryRemove},
    {"tab", 6, opTabCategory},
    {"group", 5, opGroup},
    {"menu", 8, opMenu},
    {"context set", 3, opContextSet},
    {"ribbon bar", 5, opRibbonBar},
    {"status bar", 3, opStatusBar},
    {"quick access", 3, opQuickAccess},
    {"alias", 3, opAlias},
    {"state", 12, opState},
    {"value", 5, opValue},
    {"type", 3, opType},
    {"window", 6, opWindow},
    {"user", 8, opUser},
    {"popup", 5, opPopup},
    {"delete", 6, opDelete},
};

const Operation &pickOperation(Soak &s)
{
    int total = 0;
    for (const Operation &op : operations)
        total += op.weight;
    int at = s.bounded(total);
    for (const Operation &op : operations) {
        if (at < op.weight)
            return op;
        at -= op.weight;
    }
    return operations[0];
}

} // namespace

class tst_Soak : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { installCrashReport(); }
    void randomOperations();
};

void tst_Soak::randomOperations()
{
    const quint32 firstSeed = quint32(envInt("ZEL_SOAK_SEED", 1));
    const int seeds = qMax(1, envInt("ZEL_SOAK_SEEDS", 1));
    const int operationsPerSeed = qMax(1, envInt("ZEL_SOAK_OPS", DefaultOperations));
    const int onlyRound = envInt("ZEL_SOAK_ROUND", -1);
    const int rounds = (operationsPerSeed + RoundLength - 1) / RoundLength;

    const int widgetsAtStart = QApplication::allWidgets().size();
    QtMessageHandler previousHandler = qInstallMessageHandler(recordMessage);
    QElapsedTimer clock;
    clock.start();
    qint64 done = 0;

    for (quint32 seed = firstSeed; seed < firstSeed + quint32(seeds); ++seed) {
        for (int round = 0; round < rounds; ++round) {
            if (onlyRound >= 0 && round != onlyRound)
                continue;
            Soak s(seed, round);
            s.start();
            const int length = qMin(RoundLength, operationsPerSeed - round * RoundLength);
            for (int i = 0; i < length && s.failure.isEmpty(); ++i) {
                for (int attempt = 0; attempt < 20 && !pickOperation(s).run(s); ++attempt) {
                }
                s.settle();
                s.checkMessages();
                s.checkModel();
                s.checkWidgets();
                ++done;
            }
            if (s.failure.isEmpty()) {
                s.note(QStringLiteral("delete everything: %1 objects, %2 widgets")
                           .arg(s.population())
                           .arg(QApplication::allWidgets().size() - widgetsAtStart));
                s.finish();
                s.checkMessages();
                const int left = QApplication::allWidgets().size() - widgetsAtStart;
                s.check(left == 0, QString::number(left) + QStringLiteral(" widgets left after the round"));
            }
            if (!s.failure.isEmpty()) {
                qInstallMessageHandler(previousHandler);
                std::fprintf(stderr, "\n*** soak seed %u round %d failed after %d operations: %s\n%s\n"
                                     "Replay: ZEL_SOAK_SEED=%u ZEL_SOAK_OPS=%d ZEL_SOAK_ROUND=%d %s\n",
                             seed, round, s.log.size(), qPrintable(s.failure),
                             qPrintable(QStringLiteral("  ") + s.log.join(QStringLiteral("\n  "))), seed,
                             operationsPerSeed, round, qPrintable(QCoreApplication::applicationFilePath()));
                crashReport.clear();
                QFAIL(qPrintable(s.failure));
            }
        }
    }
    crashReport.clear();
    qInstallMessageHandler(previousHandler);
    qInfo("soak: %lld operations, seeds %u..%u, %.1f s", done, firstSeed, firstSeed + quint32(seeds) - 1,
          clock.elapsed() / 1000.0);
}

ZEL_TEST_MAIN(tst_Soak)
#include "tst_soak.moc"
