#include "ResourceDirectory.h"
#include "SettingsLocation.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

void setOrClear(const char* name, const char* value) { value ? ::setenv(name, value, 1) : ::unsetenv(name); }

TEST(SettingsLocation, UserCopyFollowsTheXdgRules) {
    const struct {
        const char* xdgConfigHome;
        const char* home;
        std::optional<std::filesystem::path> userFile;
    } cases[] = {
        {"/xdg", "/home/driver", "/xdg/dashtrack/Env.plist"},
        {nullptr, "/home/driver", "/home/driver/.config/dashtrack/Env.plist"},
        {"", "/home/driver", "/home/driver/.config/dashtrack/Env.plist"},
        {"relative", "/home/driver", "/home/driver/.config/dashtrack/Env.plist"},
        {nullptr, nullptr, std::nullopt},
    };
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    for (const auto& c : cases) {
        SCOPED_TRACE(c.userFile.value_or("none"));
        setOrClear("XDG_CONFIG_HOME", c.xdgConfigHome);
        setOrClear("HOME", c.home);
        EXPECT_EQ(SettingsLocation::standard().userFile, c.userFile);
    }
    ::unsetenv("XDG_CONFIG_HOME");
    setOrClear("HOME", home.empty() ? nullptr : home.c_str());
}

TEST(SettingsLocation, ShippedFileComesFromTheBuildTreeWhenNotInstalled) {
    EXPECT_EQ(resourceDirectory(), std::filesystem::path(DASHTRACK_RESOURCE_BUILD_DIR));
    EXPECT_EQ(SettingsLocation::standard().shippedFile,
              std::filesystem::path(DASHTRACK_RESOURCE_BUILD_DIR) / "Env.plist");
}

}  // namespace
