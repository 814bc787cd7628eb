// Runs the GPS tests against a settings file of their own, so that switching the speed unit never
// touches the user's settings.
#include "GPSUtils.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    char pattern[] = "/tmp/dashtrack-gps-tests-XXXXXX";
    const char* home = mkdtemp(pattern);
    if (home == nullptr) return 1;
    const std::filesystem::path config = std::filesystem::path(home) / "dashtrack";
    std::filesystem::create_directories(config);
    std::ofstream(config / "Env.plist") << R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>UnitType</key><integer>0</integer></dict></plist>
)";
    setenv("XDG_CONFIG_HOME", home, 1);
    const int result = RUN_ALL_TESTS();
    // The settings are written in the background: done with them before their folder goes.
    GPSUtils::sharedUtils().flush();
    std::filesystem::remove_all(home);
    return result;
}
