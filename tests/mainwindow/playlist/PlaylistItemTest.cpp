#include "PlaylistItem.h"
#include "PlaylistTestSupport.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace {

struct SizeCase {
    std::optional<uint64_t> bytes;
    const char* text;
};

TEST(PlaylistItem, SizeTextsUseBinaryUnitsAndRoundHalfToEven) {
    const SizeCase cases[] = {
        {std::nullopt, ""},
        {0, "0 B"},
        {1023, "1023 B"},
        {1024, "1.0 KB"},
        {1280, "1.2 KB"},  // 1.25: the half goes to the even digit
        {1536, "1.5 KB"},
        {1792, "1.8 KB"},  // 1.75: the half goes to the even digit
        {1048575, "1024.0 KB"},
        {1048576, "1.0 M"},
        {1073741823, "1024.0 M"},
        {1073741824, "1.0 G"},
        {3500000000, "3.3 G"},
        {1099511627775, "1024.0 G"},
        {1099511627776, ""},
        {UINT64_MAX, ""},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(PlaylistItem::FileSizeStringWithNumber(bytes), text) << (bytes ? std::to_string(*bytes) : "absent");
}

struct ClockCase {
    int hour, minute, second;
    const char* text;
};

TEST(PlaylistItem, CreationTextIsLocalTimeOnTheTwelveHourClockWithoutAmPm) {
    const TimeZoneGuard zone("JST-9");
    const ClockCase cases[] = {
        {13, 5, 9, "2016-05-03 01:05:09"}, {0, 30, 0, "2016-05-03 12:30:00"}, {12, 30, 0, "2016-05-03 12:30:00"},
        {23, 59, 59, "2016-05-03 11:59:59"}, {9, 0, 0, "2016-05-03 09:00:00"},
    };
    for (const auto& [hour, minute, second, text] : cases)
        EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(localTime(2016, 5, 3, hour, minute, second)), text);
    // The same instant in another zone reads in that zone's time.
    const auto instant = localTime(2016, 5, 3, 13, 5, 9);
    const TimeZoneGuard utc("UTC0");
    EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(instant), "2016-05-03 04:05:09");
    EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(std::nullopt), "");
}

TEST(PlaylistItem, SubsecondTimesBeforeTheEpochRoundDownToTheirSecond) {
    const TimeZoneGuard zone("UTC0");
    const auto justBefore = std::chrono::system_clock::from_time_t(0) - std::chrono::milliseconds(1);
    EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(justBefore), "1969-12-31 11:59:59");
}

TEST(PlaylistItem, TextsComeFromTheAttributesAndAreAbsentWithout) {
    const TimeZoneGuard zone("UTC0");
    const PlaylistItem described("/cam/clip.MP4", FileAttributes{.size = 1536, .creationTime = localTime(2016, 5, 3, 14, 0, 0)});
    EXPECT_EQ(described.URL(), std::filesystem::path("/cam/clip.MP4"));
    EXPECT_EQ(described.FilePath(), "/cam/clip.MP4");
    EXPECT_EQ(described.FileSize(), "1.5 KB");
    EXPECT_EQ(described.CreationTime(), "2016-05-03 02:00:00");

    const PlaylistItem bare("/cam/clip.MP4", std::nullopt);
    EXPECT_EQ(bare.FileSize(), std::nullopt);
    EXPECT_EQ(bare.CreationTime(), std::nullopt);
}

TEST(PlaylistItem, ReadsTheFileItNamesAndStillMakesAnEntryForAMissingOne) {
    const ScratchFolder folder;
    const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto file = folder.write("clip.mp4", 1536);
    const auto after = std::chrono::system_clock::now();

    const auto attributes = readFileAttributes(file);
    ASSERT_TRUE(attributes.has_value());
    EXPECT_EQ(attributes->size, 1536u);
    // Birth or modification time: either way the moment the test wrote it (file systems may keep
    // coarse stamps, hence the whole seconds).
    EXPECT_GE(attributes->creationTime, before - std::chrono::seconds(1));
    EXPECT_LE(attributes->creationTime, after + std::chrono::seconds(1));
    EXPECT_EQ(PlaylistItem(file).FileSize(), "1.5 KB");

    EXPECT_EQ(readFileAttributes(folder.path() / "missing.mp4"), std::nullopt);
    const PlaylistItem missing(folder.path() / "missing.mp4");
    EXPECT_EQ(missing.FilePath(), (folder.path() / "missing.mp4").native());
    EXPECT_EQ(missing.FileSize(), std::nullopt);
    EXPECT_EQ(missing.CreationTime(), std::nullopt);
}

}  // namespace
