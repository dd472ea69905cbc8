#pragma once

// Shared by the test programs: a main() that runs a QtTest class inside a
// RibbonApplication, since every widget of the library reaches its palette through it.

#include "RibbonApplication.h"
#include "RibbonPlatform.h"

#include <QWindow>
#include <QtTest>

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

#define ZEL_TEST_MAIN(TestObject)                                   \
    int main(int argc, char *argv[])                                \
    {                                                               \
        zel::RibbonApplication app(argc, argv);                     \
        TestObject tc;                                              \
        QTEST_SET_MAIN_SOURCE_PATH                                  \
        return QTest::qExec(&tc, argc, argv);                       \
    }
