#pragma once

// Shared by the test programs: a main() that runs a QtTest class inside a
// RibbonApplication, since every widget of the library reaches its palette through it.

#include "RibbonApplication.h"
#include "RibbonPlatform.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QtTest>

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

#define ZEL_TEST_MAIN(TestObject)                                   \
    int main(int argc, char *argv[])                                \
    {                                                               \
        zel::RibbonApplication app(argc, argv);                     \
        TestObject tc;                                              \
        QTEST_SET_MAIN_SOURCE_PATH                                  \
        return QTest::qExec(&tc, argc, argv);                       \
    }
