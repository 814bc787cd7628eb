// The movie view and its engine with the real mpv player and surface, on the fixture movies: what
// the main window would see through the delegate.

#include "GPSPlayerView.h"
#include "MpvPlayerFactory.h"
#include "MpvTestSupport.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"
#include "QtUpdateTimer.h"
#include "VideoSurfaceFactory.h"

#include <gtest/gtest.h>

namespace {

class GPSPlayerViewMpvTest : public ::testing::Test {
protected:
    GPSPlayerViewMpvTest() {
        engine_.setDelegate(&delegate_);
        view_.resize(320, 180);
        view_.show();
    }

    TempSettings settings_;
    GPSPlayerView view_{makeMediaPlayerFactory(), makeVideoSurface, std::make_unique<QtUpdateTimer>(),
                        settings_.utils()};
    GPSPlayerEngine& engine_ = view_.engine();
    RecordingDelegate delegate_;
};

// Under a name that is not UTF-8, so that the player and the track loader must both take the bytes.
// Samples in order on screen are the end-to-end test's; pausing and seeking, the engine's.
TEST_F(GPSPlayerViewMpvTest, PlaysAMovieReportingItsSamplesUpToTheEnd) {
    const NonUtf8MovieCopy movie(fixtureMovie("index_mp4.mp4"));
    ASSERT_FALSE(movie.path().empty());
    engine_.setMovie(movie.path());
    ASSERT_TRUE(engine_.IsReady());
    EXPECT_NEAR(engine_.duration(), 10.0, 0.1);
    ASSERT_TRUE(engine_.gpsDataList().has_value());
    EXPECT_EQ(engine_.gpsDataList()->size(), 11u);

    engine_.Resume();
    ASSERT_TRUE(runUntil([&] { return delegate_.samples.size() >= 2; }));
    EXPECT_TRUE(delegate_.playing());
    EXPECT_EQ(delegate_.samples[1], 1u);
    EXPECT_NEAR(delegate_.sampleData[1].SpeedMPH(), 18.5f, 0.05);
    // To the end: playing stops, and every tick at rest there reports the end.
    engine_.Seek(0.9);
    ASSERT_TRUE(runUntil([&] { return delegate_.completions >= 3; }));
    EXPECT_FALSE(delegate_.playing());
    EXPECT_EQ(engine_.mediaPlayer()->currentTime().seconds(), engine_.duration());
}

}  // namespace
