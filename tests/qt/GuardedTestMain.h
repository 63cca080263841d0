#pragma once

#include "qt/GuardedApplication.h"

#include <QTest>

// QTEST_MAIN with the program's own application object, so that events in
// the test pass the same exception guard as in the program.
#define SW_GUARDED_TEST_MAIN(TestObject)                                                           \
    int main(int argc, char** argv) {                                                              \
        sw::qt::GuardedApplication app(argc, argv);                                                \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                   \
        TestObject test;                                                                           \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
