// How what mpv reports reads as status, rate and current time.

#include "MovieProbe.h"
#include "MpvPlaybackState.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

MpvPlaybackState playing() {
    MpvPlaybackState state;
    state.loaded = true;
    state.paused = false;
    state.coreIdle = false;
    state.position = 3.0;
    return state;
}

TEST(MpvPlaybackStateTest, StatusFollowsPauseLoadingSeekingAndFailure) {
    struct Case {
        const char* what;
        void (*change)(MpvPlaybackState&);
        PlayerStatus status;
        float rate;
    };
    const Case cases[] = {
        {"playing", [](MpvPlaybackState&) {}, PlayerStatus::Playing, 1.0f},
        {"paused",
         [](MpvPlaybackState& s) {
             s.paused = true;
             s.coreIdle = true;
         },
         PlayerStatus::Paused, 0.0f},
        {"still loading", [](MpvPlaybackState& s) { s.loaded = false; }, PlayerStatus::Waiting, 1.0f},
        {"seeking", [](MpvPlaybackState& s) { s.seeking = true; }, PlayerStatus::Waiting, 1.0f},
        {"held by the cache", [](MpvPlaybackState& s) { s.coreIdle = true; }, PlayerStatus::Waiting, 1.0f},
        {"failed",
         [](MpvPlaybackState& s) {
             s.failed = true;
             s.loaded = false;
         },
         PlayerStatus::Paused, 0.0f},
        {"double rate", [](MpvPlaybackState& s) { s.speed = 2.0; }, PlayerStatus::Playing, 2.0f},
        {"backward",
         [](MpvPlaybackState& s) {
             s.speed = 2.0;
             s.backward = true;
         },
         PlayerStatus::Playing, -2.0f},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        MpvPlaybackState state = playing();
        c.change(state);
        EXPECT_EQ(state.status(), c.status);
        EXPECT_EQ(state.rate(), c.rate);
    }
}

TEST(MpvPlaybackStateTest, CurrentTimeIsExactlyTheDurationOnlyAtRestAtTheEnd) {
    const MediaTime duration = MediaTime::make(9'976'000, kMicrosecondsPerSecond);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Case {
        const char* what;
        bool paused;
        bool eof;
        bool backward;
        std::optional<double> position;
        double seconds;
        bool seekInFlight = false;
    };
    const Case cases[] = {
        // mpv rests on the last frame's time, or past the duration on the end of the audio.
        {"at rest on the last frame", true, true, false, 9.9333, duration.seconds()},
        {"at rest after the audio", true, true, false, 10.02, duration.seconds()},
        {"at the end, not yet paused", false, true, false, 9.9333, 9.9333},
        {"paused before the end", true, false, false, 9.9333, 9.9333},
        {"backward at the start", true, true, true, 0.0, 0.0},
        {"at the end, seeking back to the start", true, true, false, 0.0, 0.0, true},
        {"past the duration while playing", false, false, false, 10.5, duration.seconds()},
        {"before the first frame", true, false, false, std::nullopt, 0.0},
        {"negative", false, false, false, -0.02, 0.0},
        {"not a number", false, false, false, nan, 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        MpvPlaybackState state = playing();
        state.paused = c.paused;
        state.eofReached = c.eof;
        state.backward = c.backward;
        state.position = c.position;
        state.seekInFlight = c.seekInFlight;
        const MediaTime time = state.currentTime(duration);
        EXPECT_EQ(time.seconds(), c.seconds);
        EXPECT_EQ(time == duration, c.seconds == duration.seconds());
    }
}

TEST(MpvPlaybackStateTest, WithoutAKnownDurationTheEndReadsAsThePosition) {
    MpvPlaybackState state = playing();
    state.paused = true;
    state.eofReached = true;
    state.position = 12.5;
    EXPECT_EQ(state.currentTime(MediaTime::invalid()).seconds(), 12.5);
}

}  // namespace
