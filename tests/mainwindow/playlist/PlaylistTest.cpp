#include "Playlist.h"
#include "PlaylistOrder.h"
#include "PlaylistTestSupport.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> paths(const Playlist& playlist) {
    std::vector<std::string> result;
    for (const auto& item : playlist.items()) result.push_back(item.FilePath());
    return result;
}

struct KeyCase {
    const char* text;
    std::optional<PlaylistOrder::Key> key;
};

TEST(PlaylistOrder, ReadsTheKeyBackFromTheTextWithTwelveAsZero) {
    const KeyCase cases[] = {
        {"2016-05-03 01:05:09", PlaylistOrder::Key{2016, 5, 3, 1, 5, 9}},
        {"2016-05-03 12:30:00", PlaylistOrder::Key{2016, 5, 3, 0, 30, 0}},
        {"2016-05-03 11:59:59", PlaylistOrder::Key{2016, 5, 3, 11, 59, 59}},
        {"", std::nullopt},
        {"2016-05-03 13:00:00", std::nullopt},  // no such hour on a 12-hour clock
        {"2016-05-03 00:00:00", std::nullopt},
        {"2016-13-03 01:00:00", std::nullopt},
        {"2016-05-03 01:60:00", std::nullopt},
        {"2016-05-03T01:05:09", std::nullopt},
        {"2016-05-03 01:05:09 ", std::nullopt},
        {"2016-05-03 1:05:09", std::nullopt},
        {"20x6-05-03 01:05:09", std::nullopt},
        {"+016-05-03 01:05:09", std::nullopt},
    };
    for (const auto& [text, key] : cases) EXPECT_EQ(PlaylistOrder::sortKey(text), key) << '"' << text << '"';
}

TEST(PlaylistOrder, SortsByTheTwelveHourReadingAndPutsEntriesWithoutTimeLast) {
    const TimeZoneGuard zone("UTC0");
    std::vector<PlaylistItem> items{
        {"no-time-1", std::nullopt},
        {"03:00", madeAt(3)},
        {"14:00", madeAt(14)},       // reads 02:00:00, so before 03:00
        {"00:30", madeAt(0, 30)},    // reads 12:30:00, the earliest hour of its day
        {"no-time-2", std::nullopt},
        {"day-before-23:00", madeAt(23, 0, 0, 2)},
        {"12:30", madeAt(12, 30)},   // the same text as 00:30: keeps its place after it
        {"03:00:01", madeAt(3, 0, 1)},
    };
    PlaylistOrder::sortByCreationTime(items);
    std::vector<std::string> order;
    for (const auto& item : items) order.push_back(item.FilePath());
    EXPECT_EQ(order, (std::vector<std::string>{"day-before-23:00", "00:30", "12:30", "14:00", "03:00", "03:00:01",
                                               "no-time-1", "no-time-2"}));
}

TEST(Playlist, AddSaysToPlayOnlyWhenAnEmptyListGetsEntries) {
    const ScratchFolder folder;
    const auto a = folder.write("a.mp4"), b = folder.write("b.mp4");
    Playlist playlist;
    EXPECT_FALSE(playlist.add(std::vector<std::filesystem::path>{}));
    EXPECT_TRUE(playlist.empty());
    EXPECT_TRUE(playlist.add({a}));
    EXPECT_FALSE(playlist.add({b}));
    EXPECT_FALSE(playlist.add(std::vector<std::filesystem::path>{}));
    EXPECT_EQ(playlist.size(), 2u);

    playlist.removeAt(0);
    playlist.removeAt(0);
    ASSERT_TRUE(playlist.empty());
    EXPECT_TRUE(playlist.add({b, a}));
}

TEST(Playlist, TheSameFileTwiceGivesTwoEntriesAndUnreadableFilesStillJoin) {
    const ScratchFolder folder;
    const auto clip = folder.write("clip.mp4", 2048);
    Playlist playlist;
    playlist.add({clip, folder.path() / "gone.mp4", clip});
    ASSERT_EQ(playlist.size(), 3u);
    // The two readable ones have a time; the missing one goes last.
    EXPECT_EQ(paths(playlist), (std::vector<std::string>{clip, clip, folder.path() / "gone.mp4"}));
    EXPECT_EQ(playlist.at(0).FileSize(), "2.0 KB");
    EXPECT_EQ(playlist.at(2).FileSize(), std::nullopt);
}

TEST(Playlist, EveryAddSortsTheWholeListAndRemovalKeepsTheOrder) {
    const TimeZoneGuard zone("UTC0");
    Playlist playlist;
    playlist.add(std::vector<PlaylistItem>{{"09:00", madeAt(9)}, {"05:00", madeAt(5)}});
    playlist.add(std::vector<PlaylistItem>{{"07:00", madeAt(7)}, {"01:00", madeAt(1)}});
    EXPECT_EQ(paths(playlist), (std::vector<std::string>{"01:00", "05:00", "07:00", "09:00"}));
    playlist.removeAt(1);
    EXPECT_EQ(paths(playlist), (std::vector<std::string>{"01:00", "07:00", "09:00"}));
    playlist.removeAt(2);
    EXPECT_EQ(paths(playlist), (std::vector<std::string>{"01:00", "07:00"}));
}

}  // namespace
