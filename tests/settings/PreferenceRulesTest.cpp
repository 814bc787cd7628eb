#include "ClockCorrection.h"
#include "GPSUtils.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

namespace {

TEST(ClockCorrectionTest, ParsesSignedHoursAndMinutes) {
    const struct {
        const char* text;
        std::optional<int> minutes;
    } cases[] = {
        {"+01:30", 90},       {"-00:45", -45},     {"2:00", 120},       {" +0:05 ", 5},
        {"+23:59", 1439},     {"-23:59", -1439},   {"+00:00", 0},       {"-0:00", 0},
        {"+24:00", std::nullopt},  // a whole day is no correction
        {"+1:60", std::nullopt},   {"+1:5", std::nullopt},   {"+123:00", std::nullopt},
        {"90", std::nullopt},      {"", std::nullopt},       {"+", std::nullopt},
        {"+:30", std::nullopt},    {"1:30x", std::nullopt},  {"--1:30", std::nullopt},
        {"+1:-3", std::nullopt},   {"+ 1:30", std::nullopt},
    };
    for (const auto& c : cases) EXPECT_EQ(parseClockCorrection(c.text), c.minutes) << '"' << c.text << '"';
}

TEST(ClockCorrectionTest, TextReadsBackAsTheSameMinutes) {
    const struct {
        int minutes;
        const char* text;
    } cases[] = {{0, "+00:00"}, {90, "+01:30"}, {-45, "-00:45"}, {1439, "+23:59"}, {-1439, "-23:59"}, {600, "+10:00"}};
    for (const auto& c : cases) {
        EXPECT_EQ(clockCorrectionText(c.minutes), c.text);
        EXPECT_EQ(parseClockCorrection(clockCorrectionText(c.minutes)), c.minutes);
    }
}

class PreferenceSettings : public testing::Test {
protected:
    SettingsLocation location() const { return {.userFile = user, .shippedFile = {}}; }

    TempDir directory;
    std::filesystem::path user = directory / "Env.plist";
};

TEST_F(PreferenceSettings, ValuesOutOfRangeInTheFileReadAsDefaultsAndStayInTheFile) {
    const struct {
        const char* entries;
        int64_t cacheMegabytes;
        int clockMinutes;
        RendererPreference renderer;
    } cases[] = {
        {"<key>TileCacheMegabytes</key><integer>500</integer><key>ClockCorrection</key><string>-02:30</string>"
         "<key>VideoRenderer</key><string>sw</string>",
         500, -150, RendererPreference::Software},
        {"<key>TileCacheMegabytes</key><integer>5</integer><key>ClockCorrection</key><string>+25:00</string>"
         "<key>VideoRenderer</key><string>vulkan</string>",
         300, 0, RendererPreference::Automatic},
        {"<key>TileCacheMegabytes</key><integer>18446744073709551615</integer>"
         "<key>ClockCorrection</key><integer>90</integer>",
         300, 0, RendererPreference::Automatic},
        {"<key>TileCacheMegabytes</key><string>400</string><key>ClockCorrection</key><string>soon</string>", 300, 0,
         RendererPreference::Automatic},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entries);
        const std::string contents = plistDictionary(c.entries);
        writeFile(user, contents);
        {
            GPSUtils utils(location());
            EXPECT_EQ(std::tuple(utils.tileCacheMegabytes(), utils.clockCorrectionMinutes(), utils.videoRenderer()),
                      std::tuple(c.cacheMegabytes, c.clockMinutes, c.renderer));
            utils.flush();
        }
        EXPECT_EQ(readFile(user), contents);
    }
}

TEST_F(PreferenceSettings, SettersRefuseValuesOutOfRange) {
    writeFile(user, plistDictionary(""));
    GPSUtils utils(location());
    EXPECT_TRUE(utils.setTileCacheMegabytes(750));
    EXPECT_FALSE(utils.setTileCacheMegabytes(9));
    EXPECT_FALSE(utils.setTileCacheMegabytes(2001));
    EXPECT_TRUE(utils.setClockCorrectionMinutes(-90));
    EXPECT_FALSE(utils.setClockCorrectionMinutes(1440));
    utils.setVideoRenderer(RendererPreference::OpenGL);
    ASSERT_TRUE(utils.flush());

    const GPSUtils next(location());
    EXPECT_EQ(std::tuple(next.tileCacheMegabytes(), next.clockCorrectionMinutes(), next.videoRenderer()),
              std::tuple(750, -90, RendererPreference::OpenGL));
    EXPECT_NE(readFile(user).find("<string>-01:30</string>"), std::string::npos);
}

}  // namespace
