// The transport rules: the dispatch of play control codes against a controller that records what
// it is asked to do, and the navigation, step and button rules at the edges the controller tests do
// not reach (empty playlists, index range ends, steps of no size, rates a hair from 1.0).

#include "GPSPlayControl.h"
#include "PlayControlDispatch.h"
#include "PlaylistNavigation.h"
#include "SliderStep.h"
#include "TransportButtonStates.h"
#include "TransportCommands.h"

#include <QObject>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

class RecordingCommands final : public TransportCommands {
public:
    void OnPrev(QObject* sender) override { record("OnPrev", sender); }
    void OnBackward(QObject* sender) override { record("OnBackward", sender); }
    void OnPlay(QObject* sender) override { record("OnPlay", sender); }
    void OnPause(QObject* sender) override { record("OnPause", sender); }
    void OnForward(QObject* sender) override { record("OnForward", sender); }
    void OnNext(QObject* sender) override { record("OnNext", sender); }
    void OnStop(QObject* sender) override { record("OnStop", sender); }
    void OnToggleFullscreen(QObject* sender) override { record("OnToggleFullscreen", sender); }
    void VolumeDown() override { record("VolumeDown", nullptr); }
    void VolumeUp() override { record("VolumeUp", nullptr); }
    void SpeedDown() override { record("SpeedDown", nullptr); }
    void SpeedUp() override { record("SpeedUp", nullptr); }
    void StepFrame(bool forward) override { record(forward ? "StepFrameForward" : "StepFrameBackward", nullptr); }
    void MarkSpanEdge(bool start) override { record(start ? "MarkStart" : "MarkEnd", nullptr); }
    void UpdatePlayingStatus() override { record("UpdatePlayingStatus", nullptr); }

    bool isButtonEnabled(TransportButton button) const override { return !disabled.contains(button); }
    bool isButtonHidden(TransportButton button) const override { return hidden.contains(button); }

    std::set<TransportButton> disabled, hidden;
    std::vector<std::string> calls;
    std::vector<QObject*> senders;

private:
    void record(const char* name, QObject* sender) {
        calls.emplace_back(name);
        senders.push_back(sender);
    }
};

using Calls = std::vector<std::string>;

TEST(PlayControlDispatch, RunsEachCodesHandlerWithTheSendingViewUnlessItsButtonIsDisabled) {
    struct Route {
        uint64_t code;
        std::optional<TransportButton> guard;
        Calls calls;
    };
    const Route routes[] = {
        {GPSPlayControlPrev, TransportButton::Prev, {"OnPrev"}},
        {GPSPlayControlBackward, TransportButton::Backward, {"OnBackward"}},
        {GPSPlayControlPlayPause, std::nullopt, {"OnPlay", "UpdatePlayingStatus"}},
        {GPSPlayControlForward, TransportButton::Forward, {"OnForward"}},
        {GPSPlayControlNext, TransportButton::Next, {"OnNext"}},
        {GPSPlayControlStop, TransportButton::Stop, {"OnStop"}},
        {GPSPlayControlToggleFullscreen, TransportButton::ToggleFullscreen, {"OnToggleFullscreen"}},
        {GPSPlayControlVolumeDown, std::nullopt, {"VolumeDown"}},
        {GPSPlayControlVolumeUp, std::nullopt, {"VolumeUp"}},
        {GPSPlayControlSpeedDown, std::nullopt, {"SpeedDown"}},
        {GPSPlayControlSpeedUp, std::nullopt, {"SpeedUp"}},
        {GPSPlayControlStepFrameBackward, TransportButton::Snapshot, {"StepFrameBackward"}},
        {GPSPlayControlStepFrameForward, TransportButton::Snapshot, {"StepFrameForward"}},
        {GPSPlayControlMarkStart, TransportButton::Snapshot, {"MarkStart"}},
        {GPSPlayControlMarkEnd, TransportButton::Snapshot, {"MarkEnd"}},
        {16, std::nullopt, {}},
        {0, std::nullopt, {}},
        {~uint64_t{0}, std::nullopt, {}},
    };
    QObject view;
    for (const auto& route : routes) {
        SCOPED_TRACE(route.code);
        EXPECT_EQ(PlayControlDispatch::guardOf(route.code), route.guard);
        RecordingCommands commands;
        PlayControlDispatch::perform(commands, &view, route.code);
        EXPECT_EQ(commands.calls, route.calls);
        // Handlers that take a sender get the view, so OnPlay acts and OnNext plays.
        if (!route.calls.empty() && route.calls.front().starts_with("On")) {
            EXPECT_EQ(commands.senders.front(), &view);
        }
        // Every button disabled: only the unguarded codes still run.
        RecordingCommands disabled;
        for (const auto button : {TransportButton::Prev, TransportButton::Backward, TransportButton::Play,
                                  TransportButton::Pause, TransportButton::Forward, TransportButton::Next,
                                  TransportButton::Stop, TransportButton::Snapshot, TransportButton::ToggleFullscreen})
            disabled.disabled.insert(button);
        PlayControlDispatch::perform(disabled, &view, route.code);
        EXPECT_EQ(disabled.calls, route.guard ? Calls{} : route.calls);
    }
}

TEST(PlayControlDispatch, PlayPausePausesOnlyWhileThePlayButtonIsHidden) {
    QObject view;
    RecordingCommands playing;
    playing.hidden.insert(TransportButton::Play);
    PlayControlDispatch::perform(playing, &view, GPSPlayControlPlayPause);
    EXPECT_EQ(playing.calls, (Calls{"OnPause", "UpdatePlayingStatus"}));
}

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
        // A clip whose file went: only Previous and Next, to step past it.
        {"failed middle entry", {.entryFailed = true, .curIndex = 1, .count = 3, .progress = 0.0}, {1, 0, 0, 1, 0, 0, 0}},
        {"failed last entry", {.entryFailed = true, .curIndex = 2, .count = 3, .progress = 0.0}, {1, 0, 0, 0, 0, 0, 0}},
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
