// The transport rules at the edges the controller tests do not reach: empty playlists, indexes at
// the ends of their range, steps of no size or no duration, and rates a hair from 1.0.

#include "PlaylistNavigation.h"
#include "SliderStep.h"
#include "TransportButtonStates.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace {

using IndexStep = PlaylistNavigation::IndexStep;

TEST(PlaylistNavigation, EdgesOfThePlaylistAndOfTheIndexRange) {
    // An empty playlist: count − 1 wraps, so next is curIndex + 1.
    EXPECT_EQ(PlaylistNavigation::nextIndex(-1, 0), 0);
    EXPECT_EQ(PlaylistNavigation::nextIndex(4, 0), 5);
    EXPECT_EQ(PlaylistNavigation::nextIndex(0, 1), 0);
    EXPECT_EQ(PlaylistNavigation::previousIndex(-1), 0);
    EXPECT_EQ(PlaylistNavigation::previousIndex(std::numeric_limits<int64_t>::min()), 0);
    EXPECT_LT(PlaylistNavigation::nextIndex(std::numeric_limits<int64_t>::max(), 0), 0)
        << "past the largest position: negative, and ignored by playWithIndex";
    struct Row {
        int64_t index;
        uint64_t count;
        bool ready;
        int64_t curIndex;
        IndexStep expected;
    };
    for (const Row& r : {Row{0, 0, false, -1, IndexStep::Ignore}, Row{3, 3, true, 2, IndexStep::Ignore},
                         Row{1, 3, false, 1, IndexStep::Load}, Row{0, 1, true, 0, IndexStep::Restart}})
        EXPECT_EQ(PlaylistNavigation::playWithIndex(r.index, r.count, r.ready, r.curIndex), r.expected)
            << r.index << " of " << r.count << " ready " << r.ready << " cur " << r.curIndex;
}

TEST(SliderStep, StepsOfNoSizeOrNoDuration) {
    struct Row {
        double value, step;
        std::optional<double> down, up;
    };
    const double nan = std::nan("");
    const std::array<Row, 5> rows{{
        {0.0, 0.1, std::nullopt, 0.1},  // at the start backward does nothing
        {0.05, SliderStep::kVolumeStep, 0.0, 0.15},
        {0.5, 0.0, 0.5, 0.5},  // a movie too short for a step
        {0.5, std::numeric_limits<double>::infinity(), 0.0, 1.0},
        {0.5, nan, std::nullopt, std::nullopt},  // no duration: nothing moves
    }};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.value << " by " << row.step);
        const auto down = SliderStep::down(row.value, row.step), up = SliderStep::up(row.value, row.step);
        ASSERT_EQ(down.has_value(), row.down.has_value());
        ASSERT_EQ(up.has_value(), row.up.has_value());
        EXPECT_DOUBLE_EQ(down.value_or(-1.0), row.down.value_or(-1.0));
        EXPECT_DOUBLE_EQ(up.value_or(-1.0), row.up.value_or(-1.0));
    }
    EXPECT_EQ(SliderStep::down(nan, 0.1), std::nullopt);
    EXPECT_EQ(SliderStep::up(nan, 0.1), std::nullopt);
}

std::array<bool, 7> flags(const ControlStates& s) {
    return {s.prevEnabled, s.backwardEnabled, s.forwardEnabled,       s.nextEnabled,
            s.stopEnabled, s.snapshotEnabled, s.durationSliderEnabled};
}

TEST(TransportButtonStates, ControlsAtTheEdgesOfThePlaylistAndTheProgress) {
    struct Row {
        const char* name;
        TransportInputs in;
        std::array<bool, 7> expected;  // prev, backward, forward, next, stop, snapshot, slider
    };
    const Row rows[] = {
        {"first of three at 0", {.ready = true, .curIndex = 0, .count = 3, .progress = 0.0}, {0, 0, 1, 1, 1, 1, 1}},
        {"only entry", {.ready = true, .curIndex = 0, .count = 1, .progress = 0.5}, {0, 1, 1, 0, 1, 1, 1}},
        {"loaded but no entry", {.ready = true, .curIndex = -1, .count = 3, .progress = 0.5}, {0, 1, 1, 0, 1, 1, 1}},
        {"progress not a number",
         {.ready = true, .curIndex = 1, .count = 3, .progress = std::nan("")},
         {1, 0, 0, 1, 1, 1, 1}},
        {"empty playlist wraps", {.ready = true, .curIndex = 0, .count = 0, .progress = 0.5}, {0, 1, 1, 1, 1, 1, 1}},
    };
    for (const auto& row : rows) EXPECT_EQ(flags(TransportButtonStates::controlsFor(row.in)), row.expected) << row.name;
}

TEST(TransportButtonStates, PlayingMeansReadyPlayingAndRateOneExactly) {
    struct Row {
        bool ready, isPlaying;
        double speed;
        bool playing;
    };
    for (const Row& row : {Row{true, true, 1.0, true}, Row{true, true, std::nextafter(1.0, 2.0), false},
                           Row{true, false, 1.0, false}, Row{false, true, 1.0, false}}) {
        const PlayingStates got = TransportButtonStates::playingStatusFor(
            {.ready = row.ready, .isPlaying = row.isPlaying, .speed = row.speed});
        EXPECT_EQ(got.pauseShown, row.playing) << row.ready << row.isPlaying << " at " << row.speed;
        EXPECT_EQ(got.playShown, !row.playing);
        EXPECT_EQ(got.stopEnabled, row.playing);
    }
}

}  // namespace
