#include "GPSUtils.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

namespace {

constexpr int32_t int32Max = std::numeric_limits<int32_t>::max();
constexpr int32_t int32Min = std::numeric_limits<int32_t>::min();

TEST(GPSUtils, MaxSpeedRoundsUpToTens) {
    const struct {
        float speed;
        int32_t mph;
        int32_t kmh;
    } cases[] = {{25.3f, 30, 50},
                 {0.5f, 10, 10},
                 {25.0f, 25, 50},
                 {0.0f, 0, 0},
                 {-5.5f, -5, -10},
                 {std::nanf(""), 0, 0},
                 {1e10f, int32Max, int32Max},
                 {-1e10f, int32Min, int32Min}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.speed);
        EXPECT_EQ(GPSUtils::MaxSpeedMPH(c.speed), c.mph);
        EXPECT_EQ(GPSUtils::MaxSpeedKMH(c.speed), c.kmh);
    }
}

std::string binaryPlist(uint64_t unitType, double volume) {
    PlistNode root(plist_new_dict());
    plist_dict_set_item(root.get(), "UnitType", plist_new_uint(unitType));
    plist_dict_set_item(root.get(), "Volume", plist_new_real(volume));
    char* bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(root.get(), &bytes, &length);
    std::string result(bytes, length);
    plist_to_bin_free(bytes);
    return result;
}

TEST(GPSUtils, ReadsNumbersOfTheExpectedTypeOnly) {
    const struct {
        std::string contents;
        uint64_t unitType;
        float volume;
        const char* unitName;
    } cases[] = {
        {plistDictionary("<key>UnitType</key><integer>1</integer><key>Volume</key><real>0.6</real>"), 1, 0.6f, "KM/H"},
        {binaryPlist(2, 0.25), 2, 0.25f, "KM/H"},
        {plistDictionary("<key>UnitType</key><real>1.9</real><key>Volume</key><integer>1</integer>"), 1, 1.0f, "KM/H"},
        {plistDictionary("<key>UnitType</key><real>-3.5</real><key>Volume</key><real>nan</real>"), 0, 0.0f, "MPH"},
        {plistDictionary("<key>UnitType</key><string>1</string><key>Volume</key><true/>"), 0, 0.0f, "MPH"},
    };
    TempDir directory;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.contents);
        writeFile(directory / "Env.plist", c.contents);
        const GPSUtils utils({.userFile = directory / "Env.plist", .shippedFile = {}});
        ASSERT_TRUE(utils.envInfo().isLoaded());
        EXPECT_EQ(utils.unitType(), c.unitType);
        EXPECT_EQ(utils.volume(), c.volume);
        EXPECT_EQ(utils.SpeedUnitName(), c.unitName);
    }
}

class GPSUtilsSettings : public testing::Test {
protected:
    SettingsLocation location() const { return {.userFile = user, .shippedFile = shipped}; }

    TempDir directory;
    std::filesystem::path user = directory / "config" / "dashtrack" / "Env.plist";
    std::filesystem::path shipped = directory / "shipped" / "Env.plist";
};

TEST_F(GPSUtilsSettings, NoFileGivesDefaultsAndWritesNothing) {
    GPSUtils utils(location());
    utils.setUnitType(1);
    EXPECT_EQ(std::tuple(utils.unitType(), utils.envURL()), std::tuple(0u, std::nullopt));
    EXPECT_FALSE(std::filesystem::exists(directory / "config"));
}

TEST_F(GPSUtilsSettings, ChangesGoToTheUserCopyAndReachTheNextRun) {
    const auto shippedContents = plistDictionary(
        "<key>UnitType</key><integer>0</integer><key>Volume</key><real>0.6</real>"
        "<key>Map</key><dict><key>Layers</key><array><string>hybrid</string></array></dict>");
    writeFile(shipped, shippedContents);
    {
        GPSUtils first(location());
        EXPECT_EQ(first.envURL(), shipped);
        first.setUnitType(1);
        first.setVolume(0.35f);
        EXPECT_EQ(first.SpeedUnitName(), "KM/H");
        EXPECT_EQ(first.volume(), 0.35f);
    }
    GPSUtils second(location());
    EXPECT_EQ(second.envURL(), user);
    EXPECT_EQ(second.unitType(), 1u);
    EXPECT_EQ(second.volume(), 0.35f);
    EXPECT_NE(readFile(user).find("<string>hybrid</string>"), std::string::npos);
    EXPECT_EQ(readFile(shipped), shippedContents);
    // Only the settings file: the temporary one was renamed into place.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(user.parent_path()), {}), 1);
}

TEST_F(GPSUtilsSettings, UnreadableUserCopyIsNeverOverwritten) {
    const struct {
        const char* name;
        void (*make)(const std::filesystem::path&);
    } cases[] = {
        {"garbage", [](const auto& f) { writeFile(f, std::string("\x00\xff<dict>\x01garbage", 16)); }},
        {"array",
         [](const auto& f) { writeFile(f, "<plist version=\"1.0\"><array><integer>1</integer></array></plist>"); }},
        {"truncated",
         [](const auto& f) { writeFile(f, plistDictionary("<key>UnitType</key><integer>1</integer>").substr(0, 80)); }},
        {"folder", [](const auto& f) { std::filesystem::create_directories(f); }},
        {"dangling link", [](const auto& f) { std::filesystem::create_symlink("nowhere.plist", f); }},
    };
    writeFile(shipped, plistDictionary("<key>UnitType</key><integer>1</integer>"));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove_all(user.parent_path());
        std::filesystem::create_directories(user.parent_path());
        c.make(user);
        const auto type = std::filesystem::symlink_status(user).type();
        const auto contents = readFile(user);

        GPSUtils utils(location());
        utils.setUnitType(1);
        utils.setVolume(0.5f);
        EXPECT_EQ(utils.envURL(), user);
        EXPECT_EQ(utils.unitType(), 0u);
        EXPECT_EQ(std::filesystem::symlink_status(user).type(), type);
        EXPECT_EQ(readFile(user), contents);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(user.parent_path()), {}), 1);
    }
}

TEST_F(GPSUtilsSettings, LinkedUserCopyStaysALink) {
    const auto target = directory / "dotfiles" / "Env.plist";
    writeFile(target, plistDictionary("<key>UnitType</key><integer>0</integer>"));
    std::filesystem::create_directories(user.parent_path());
    std::filesystem::create_symlink(target, user);
    GPSUtils(location()).setUnitType(1);
    EXPECT_TRUE(std::filesystem::is_symlink(user));
    EXPECT_EQ(GPSUtils({.userFile = target, .shippedFile = {}}).unitType(), 1u);
}

TEST_F(GPSUtilsSettings, FailedWriteKeepsTheValueForTheRun) {
    writeFile(shipped, plistDictionary("<key>UnitType</key><integer>0</integer>"));
    writeFile(directory / "config", "");  // a plain file where the user's folder should go
    GPSUtils utils(location());
    utils.setUnitType(1);
    EXPECT_EQ(utils.unitType(), 1u);
    EXPECT_EQ(GPSUtils({.userFile = {}, .shippedFile = shipped}).unitType(), 0u);
}

}  // namespace
