#pragma once

// Shared by the test programs: a main() that runs a QtTest class inside a
// RibbonApplication, since every widget of the library reaches its palette through it.

#include "RibbonApplication.h"

#include <QtTest>

#define ZEL_TEST_MAIN(TestObject)                                   \
    int main(int argc, char *argv[])                                \
    {                                                               \
        zel::RibbonApplication app(argc, argv);                     \
        TestObject tc;                                              \
        QTEST_SET_MAIN_SOURCE_PATH                                  \
        return QTest::qExec(&tc, argc, argv);                       \
    }
