// The widget tests' main: a QApplication on no screen, numbers printed with a point, and the
// shared settings (read by samples for their unit, by the player for its volume) in an empty
// folder, never the user's own.

#include "GPSUtils.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QTemporaryDir config;
    setenv("XDG_CONFIG_HOME", config.path().toLocal8Bit().constData(), 1);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    ::testing::InitGoogleTest(&argc, argv);
    const int status = RUN_ALL_TESTS();
    // Settings are written in the background: done before their folder goes.
    GPSUtils::sharedUtils().flush();
    return status;
}
