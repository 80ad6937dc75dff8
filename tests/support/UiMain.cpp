// The main of the tests of screens: no display, the package's looks, boxes answered, and the watch on the
// log.
#include <gtest/gtest.h>
#include <QApplication>

#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "tests/support/LogWatch.h"
#include "tests/support/Screen.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ApplyLooks(app);
    LogWatch::Install();
    // What the platform without a display says of itself.
    LogWatch::Tolerate(QStringLiteral("This plugin does not support"));
    TApplication application;
    WatchScreen();
    return RUN_ALL_TESTS();
}
