#include "Playlist.h"
#include "PlaylistOrder.h"
#include "PlaylistTestSupport.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> paths(const std::vector<PlaylistItem>& items) {
    std::vector<std::string> result;
    for (const auto& item : items) result.push_back(item.FilePath());
    return result;
}

TEST(PlaylistItem, SizeTextsUseBinaryUnitsAndRoundHalfToEven) {
    const std::pair<std::optional<uint64_t>, const char*> cases[] = {
        {std::nullopt, ""},  {1023, "1023 B"},       {1024, "1.0 KB"},   {1280, "1.2 KB"},
        {1792, "1.8 KB"},    {1048575, "1024.0 KB"}, {1048576, "1.0 M"}, {1099511627775, "1024.0 G"},
        {1099511627776, ""}, {UINT64_MAX, ""},
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(PlaylistItem::FileSizeStringWithNumber(bytes), text) << text;
}

TEST(PlaylistItem, CreationTextIsLocalTimeOnTheTwelveHourClockWithoutAmPm) {
    const TimeZoneGuard zone("JST-9");
    const std::pair<std::array<int, 3>, const char*> cases[] = {
        {{13, 5, 9}, "2016-05-03 01:05:09"},
        {{0, 30, 0}, "2016-05-03 12:30:00"},
        {{12, 30, 0}, "2016-05-03 12:30:00"},
        {{23, 59, 59}, "2016-05-03 11:59:59"},
    };
    for (const auto& [clock, text] : cases)
        EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(localTime(3, clock[0], clock[1], clock[2])), text);
    const auto instant = localTime(3, 13, 5, 9);
    const TimeZoneGuard utc("UTC0");
    EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(instant), "2016-05-03 04:05:09");
    EXPECT_EQ(PlaylistItem::CreationTimetringWithDate(std::nullopt), "");
}

TEST(PlaylistItem, ReadsItsFileAndAMissingFileStillMakesAnEntryWithoutTexts) {
    const ScratchFolder folder;
    const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto file = folder.write("clip.mp4", 1536);
    const auto attributes = readFileAttributes(file);
    ASSERT_TRUE(attributes.has_value());
    EXPECT_EQ(attributes->size, 1536u);
    EXPECT_GE(attributes->creationTime, before - std::chrono::seconds(1));  // not some other stamp
    EXPECT_EQ(PlaylistItem(file).FileSize(), "1.5 KB");

    const PlaylistItem missing(folder.path() / "gone.mp4");
    EXPECT_EQ(missing.FilePath(), (folder.path() / "gone.mp4").native());
    EXPECT_EQ(missing.FileSize(), std::nullopt);
    EXPECT_EQ(missing.CreationTime(), std::nullopt);
}

TEST(PlaylistOrder, ReadsTheKeyBackWithTwelveAsZeroAndRejectsOtherShapes) {
    EXPECT_EQ(PlaylistOrder::sortKey("2016-05-03 12:30:09"), (PlaylistOrder::Key{2016, 5, 3, 0, 30, 9}));
    EXPECT_EQ(PlaylistOrder::sortKey("2016-05-03 11:59:59"), (PlaylistOrder::Key{2016, 5, 3, 11, 59, 59}));
    for (const char* text :
         {"", "2016-05-03 13:00:00", "2016-05-03 00:00:00", "2016-05-03 01:05:09 ", "+016-05-03 01:05:09"})
        EXPECT_EQ(PlaylistOrder::sortKey(text), std::nullopt) << text;
}

TEST(PlaylistOrder, SortsByTheTwelveHourReadingThenByNameAndPutsEntriesWithoutTimeLast) {
    const TimeZoneGuard zone("UTC0");
    std::vector<PlaylistItem> items{
        {"no-time-1", std::nullopt},  {"03:00", madeAt(3)},         {"14:00", madeAt(14)},
        {"00:30", madeAt(0, 30)},     {"no-time-2", std::nullopt},  {"day-before", madeAt(23, 0, 2)},
        {"12:30", madeAt(12, 30)},                                   // the same text as 00:30: the name decides
        {"clip_0002.MOV", madeAt(5)}, {"clip_0001.MOV", madeAt(5)},  // copied in one second
    };
    PlaylistOrder::sortByCreationTime(items);
    EXPECT_EQ(paths(items), (std::vector<std::string>{"day-before", "00:30", "12:30", "14:00", "03:00", "clip_0001.MOV",
                                                      "clip_0002.MOV", "no-time-1", "no-time-2"}));
}

}  // namespace
