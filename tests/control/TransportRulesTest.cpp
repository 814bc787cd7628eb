// The transport rules the controller applies: previous and next entry with their unsigned
// comparison, the choice of playWithIndex and OnPlay, the slider steps, and the enabled and shown
// states of the buttons. The sound rules are tested through the controller (ControllerTest).

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
using PlayStep = PlaylistNavigation::PlayStep;

TEST(PlaylistNavigation, PreviousAndNextStayInsideThePlaylist) {
    struct Row {
        int64_t curIndex;
        uint64_t count;
        int64_t previous;
        int64_t next;
    };
    const std::array<Row, 7> rows{{
        {0, 3, 0, 1},  // Prev on the first entry restarts it
        {1, 3, 0, 2},
        {2, 3, 1, 2},   // Next on the last entry restarts it
        {-1, 3, 0, 0},  // after Stop both start the first entry
        {0, 1, 0, 0},
        {-1, 0, 0, 0},  // empty playlist: count − 1 wraps, so next is curIndex + 1
        {4, 0, 3, 5},
    }};
    for (const auto& row : rows) {
        EXPECT_EQ(PlaylistNavigation::previousIndex(row.curIndex), row.previous) << row.curIndex << " of " << row.count;
        EXPECT_EQ(PlaylistNavigation::nextIndex(row.curIndex, row.count), row.next)
            << row.curIndex << " of " << row.count;
    }
    // No overflow at the ends of the range.
    EXPECT_EQ(PlaylistNavigation::previousIndex(std::numeric_limits<int64_t>::min()), 0);
    EXPECT_LT(PlaylistNavigation::nextIndex(std::numeric_limits<int64_t>::max(), 0), 0)
        << "past the largest position: negative, and ignored by playWithIndex";
}

TEST(PlaylistNavigation, PlayWithIndexIgnoresRestartsOrLoads) {
    struct Row {
        int64_t index;
        uint64_t count;
        bool ready;
        int64_t curIndex;
        IndexStep expected;
    };
    const std::array<Row, 8> rows{{
        {-1, 3, false, -1, IndexStep::Ignore},  // no row selected
        {0, 0, false, -1, IndexStep::Ignore},   // empty playlist
        {3, 3, true, 2, IndexStep::Ignore},     // past the end
        {1, 3, true, 1, IndexStep::Restart},    // the loaded movie again
        {1, 3, false, 1, IndexStep::Load},      // same index, but nothing loaded
        {2, 3, true, 1, IndexStep::Load},
        {0, 3, false, -1, IndexStep::Load},
        {0, 1, true, 0, IndexStep::Restart},
    }};
    for (const auto& row : rows) {
        EXPECT_EQ(PlaylistNavigation::playWithIndex(row.index, row.count, row.ready, row.curIndex), row.expected)
            << row.index << " of " << row.count << " ready " << row.ready << " cur " << row.curIndex;
    }
}

TEST(SliderStep, StepsStopAtTheEndsAndDoNothingThere) {
    struct Row {
        double value;
        double step;
        std::optional<double> down;
        std::optional<double> up;
    };
    const double nan = std::nan("");
    const std::array<Row, 8> rows{{
        {0.95, 0.1, 0.85, 1.0},         // forward to the end
        {1.0, 0.1, 0.9, std::nullopt},  // a second forward does nothing
        {0.03, 0.1, 0.0, 0.13},         // backward to the start
        {0.0, 0.1, std::nullopt, 0.1},
        {0.05, SliderStep::kVolumeStep, 0.0, 0.15},
        {0.5, 0.0, 0.5, 0.5},  // a movie too short for a step
        {0.5, std::numeric_limits<double>::infinity(), 0.0, 1.0},
        {0.5, nan, std::nullopt, std::nullopt},  // no duration: nothing moves
    }};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.value << " by " << row.step);
        const auto down = SliderStep::down(row.value, row.step);
        const auto up = SliderStep::up(row.value, row.step);
        ASSERT_EQ(down.has_value(), row.down.has_value());
        ASSERT_EQ(up.has_value(), row.up.has_value());
        EXPECT_DOUBLE_EQ(down.value_or(-1.0), row.down.value_or(-1.0));
        EXPECT_DOUBLE_EQ(up.value_or(-1.0), row.up.value_or(-1.0));
    }
    EXPECT_EQ(SliderStep::down(nan, 0.1), std::nullopt);
    EXPECT_EQ(SliderStep::up(nan, 0.1), std::nullopt);
}

TEST(TransportButtonStates, UpdateControlsFollowsTheLoadedEntryAndTheProgress) {
    struct Row {
        const char* name;
        TransportInputs in;
        ControlStates expected;
    };
    // prev, backward, forward, next, stop, snapshot, slider
    const std::array<Row, 8> rows{{
        {"nothing loaded", {.ready = false, .curIndex = 1, .count = 3, .progress = 0.5}, {}},
        {"first of three at 0",
         {.ready = true, .curIndex = 0, .count = 3, .progress = 0.0},
         {false, false, true, true, true, true, true}},
        {"middle",
         {.ready = true, .curIndex = 1, .count = 3, .progress = 0.5},
         {true, true, true, true, true, true, true}},
        {"last at the end",
         {.ready = true, .curIndex = 2, .count = 3, .progress = 1.0},
         {true, true, false, false, true, true, true}},
        {"only entry",
         {.ready = true, .curIndex = 0, .count = 1, .progress = 0.5},
         {false, true, true, false, true, true, true}},
        {"loaded but no entry",
         {.ready = true, .curIndex = -1, .count = 3, .progress = 0.5},
         {false, true, true, false, true, true, true}},
        {"progress not a number",
         {.ready = true, .curIndex = 1, .count = 3, .progress = std::nan("")},
         {true, false, false, true, true, true, true}},
        {"empty playlist wraps",
         {.ready = true, .curIndex = 0, .count = 0, .progress = 0.5},
         {false, true, true, true, true, true, true}},
    }};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ControlStates got = TransportButtonStates::controlsFor(row.in);
        EXPECT_EQ(got.prevEnabled, row.expected.prevEnabled);
        EXPECT_EQ(got.backwardEnabled, row.expected.backwardEnabled);
        EXPECT_EQ(got.forwardEnabled, row.expected.forwardEnabled);
        EXPECT_EQ(got.nextEnabled, row.expected.nextEnabled);
        EXPECT_EQ(got.stopEnabled, row.expected.stopEnabled);
        EXPECT_EQ(got.snapshotEnabled, row.expected.snapshotEnabled);
        EXPECT_EQ(got.durationSliderEnabled, row.expected.durationSliderEnabled);
    }
}

TEST(TransportButtonStates, PlayingMeansReadyPlayingAndRateOneExactly) {
    struct Row {
        bool ready;
        bool isPlaying;
        double speed;
        bool playing;
    };
    const std::array<Row, 7> rows{{
        {true, true, 1.0, true},
        {true, true, 2.0, false},  // fast forward: play shows, to go back to 1.0
        {true, true, -2.0, false},
        {true, true, 0.5, false},
        {true, true, std::nextafter(1.0, 2.0), false},
        {true, false, 1.0, false},
        {false, true, 1.0, false},
    }};
    for (const auto& row : rows) {
        const PlayingStates got = TransportButtonStates::playingStatusFor(
            {.ready = row.ready, .isPlaying = row.isPlaying, .speed = row.speed});
        EXPECT_EQ(got.pauseShown, row.playing) << row.ready << row.isPlaying << " at " << row.speed;
        EXPECT_EQ(got.playShown, !row.playing);
        EXPECT_EQ(got.stopEnabled, row.playing);
    }
}

}  // namespace
