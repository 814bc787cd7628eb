// The read-outs' tests need a QApplication for their labels, and never a screen. The shared
// settings (which the samples ask for their unit) come from an empty folder, never the user's.

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
    // The unit changes are written in the background: done before the folder goes.
    GPSUtils::sharedUtils().flush();
    return status;
}
