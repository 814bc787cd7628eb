// How what mpv reports reads as status, rate and current time.

#include "MovieProbe.h"
#include "MpvPlaybackState.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

MpvPlaybackState playing() {
    return MpvPlaybackState{.loaded = true, .paused = false, .coreIdle = false, .position = 3.0};
}

TEST(MpvPlaybackStateTest, StatusFollowsPauseLoadingSeekingAndFailure) {
    constexpr auto Playing = PlayerStatus::Playing, Paused = PlayerStatus::Paused, Waiting = PlayerStatus::Waiting;
    const struct {
        const char* what;
        bool loaded, failed, paused, coreIdle, seeking, backward;
        double speed;
        PlayerStatus status;
        float rate;
    } cases[] = {
        {"playing", true, false, false, false, false, false, 1.0, Playing, 1.0f},
        {"paused", true, false, true, true, false, false, 1.0, Paused, 0.0f},
        {"still loading", false, false, false, false, false, false, 1.0, Waiting, 1.0f},
        {"seeking", true, false, false, false, true, false, 1.0, Waiting, 1.0f},
        {"held by the cache", true, false, false, true, false, false, 1.0, Waiting, 1.0f},
        {"failed", false, true, false, false, false, false, 1.0, Paused, 0.0f},
        {"backward at double rate", true, false, false, false, false, true, 2.0, Playing, -2.0f},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        MpvPlaybackState state{.loaded = c.loaded,
                               .failed = c.failed,
                               .paused = c.paused,
                               .coreIdle = c.coreIdle,
                               .seeking = c.seeking,
                               .backward = c.backward,
                               .speed = c.speed,
                               .position = 3.0};
        EXPECT_EQ(state.status(), c.status);
        EXPECT_EQ(state.rate(), c.rate);
    }
}

TEST(MpvPlaybackStateTest, CurrentTimeIsExactlyTheDurationOnlyAtRestAtTheEnd) {
    const MediaTime duration = MediaTime::make(9'976'000, kMicrosecondsPerSecond);
    const double end = duration.seconds(), nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        const char* what;
        bool paused, eof, backward;
        std::optional<double> position;
        double seconds;
        bool seekInFlight = false;
    } cases[] = {
        // mpv rests on the last frame's time, or past the duration on the end of the audio.
        {"at rest on the last frame", true, true, false, 9.9333, end},
        {"at rest after the audio", true, true, false, 10.02, end},
        {"at the end, not yet paused", false, true, false, 9.9333, 9.9333},
        {"paused before the end", true, false, false, 9.9333, 9.9333},
        {"backward at the start", true, true, true, 0.0, 0.0},
        {"at the end, seeking back to the start", true, true, false, 0.0, 0.0, true},
        {"past the duration while playing", false, false, false, 10.5, end},
        {"before the first frame", true, false, false, std::nullopt, 0.0},
        {"negative", false, false, false, -0.02, 0.0},
        {"not a number", false, false, false, nan, 0.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        MpvPlaybackState state = playing();
        state.paused = c.paused;
        state.eofReached = c.eof;
        state.backward = c.backward;
        state.position = c.position;
        state.seekInFlight = c.seekInFlight;
        const MediaTime time = state.currentTime(duration);
        EXPECT_EQ(time.seconds(), c.seconds);
        EXPECT_EQ(time == duration, c.seconds == end);
    }
    // Without a known duration the end reads as the position.
    MpvPlaybackState atEnd = playing();
    atEnd.paused = atEnd.eofReached = true;
    atEnd.position = 12.5;
    EXPECT_EQ(atEnd.currentTime(MediaTime::invalid()).seconds(), 12.5);
}

}  // namespace
