// The main of the tests that need no screen: one core application, Brazilian formats, and the watch on the
// log.
#include <gtest/gtest.h>
#include <QCoreApplication>
#include "tests/support/LogWatch.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    LogWatch::Install();
    return RUN_ALL_TESTS();
}
