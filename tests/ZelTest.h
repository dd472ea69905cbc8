#pragma once

// Shared by the test programs: a main() that runs a QtTest class inside a
// RibbonApplication, since every widget of the library reaches its palette through it.

#include "RibbonApplication.h"
#include "RibbonPlatform.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QStackedWidget>
#include <QWindow>
#include <QtTest>

#include <algorithm>

// The number of widgets alive once the popups a test left open are closed and what was
// deleted later is gone: cleanup() compares it with the number init() took.
inline int zelWidgetsLeft()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return QApplication::allWidgets().size();
}

// A window holding a line edit (which has the focus) and one control made for an action.
template<class Control>
struct ZelControlHost
{
    template<class Action>
    explicit ZelControlHost(Action &action)
    {
        auto *layout = new QHBoxLayout(&window);
        edit = new QLineEdit(&window);
        button = new Control(action, &window);
        layout->addWidget(edit);
        layout->addWidget(button);
        layout->addStretch();
        window.show();
        QApplication::setActiveWindow(&window);
        edit->setFocus();
    }

    bool exposed() { return QTest::qWaitForWindowExposed(&window); }

    QWidget window;
    QLineEdit *edit = nullptr;
    Control *button = nullptr;
};

// Plays, while it lives, a window system that takes every move and resize it is asked
// for and leaves the window where it is (the mouse would move it). Records the requests
// by their edges, empty for a move.
struct ZelAcceptingWindowSystem
{
    QList<Qt::Edges> requests;

    ZelAcceptingWindowSystem()
    {
        zel::RibbonPlatform::setSystemDragHandler([this](QWidget *, Qt::Edges edges) {
            requests.append(edges);
            return true;
        });
    }
    ~ZelAcceptingWindowSystem() { zel::RibbonPlatform::setSystemDragHandler({}); }
    Q_DISABLE_COPY(ZelAcceptingWindowSystem)
};

// Waits until the window system has shown popup (true) or gives up (false). The
// offscreen platform activates a window it shows; handled only after the popup has
// closed, that activation would take the active window away from the test's window.
inline bool zelPopupShown(QWidget *popup)
{
    if (!popup)
        return false;
    QCoreApplication::processEvents(); // usually enough, and much faster than a wait
    return (popup->windowHandle() && popup->windowHandle()->isExposed()) || QTest::qWaitForWindowExposed(popup);
}

// The page buttons of class B in parent, top to bottom; those checked; the page shown.
template<class B>
QList<B *> zelButtonsTopDown(const QObject *parent)
{
    QList<B *> list = parent->findChildren<B *>();
    std::sort(list.begin(), list.end(), [](QWidget *a, QWidget *b) { return a->y() < b->y(); });
    return list;
}

template<class B>
QList<B *> zelCheckedButtons(const QObject *parent)
{
    QList<B *> checked;
    for (B *button : zelButtonsTopDown<B>(parent)) {
        if (button->isChecked())
            checked << button;
    }
    return checked;
}

inline QWidget *zelCurrentPage(const QObject *parent)
{
    auto *stack = parent->findChild<QStackedWidget *>();
    return stack ? stack->currentWidget() : nullptr;
}

#define ZEL_TEST_MAIN(TestObject)                                   \
    int main(int argc, char *argv[])                                \
    {                                                               \
        /* English whatever the locale the tests run in */       \
        zel::RibbonApplication::setAutoLoadTranslations(false);     \
        zel::RibbonApplication app(argc, argv);                     \
        TestObject tc;                                              \
        QTEST_SET_MAIN_SOURCE_PATH                                  \
        return QTest::qExec(&tc, argc, argv);                       \
    }
