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

TEST_F(GPSPlayerViewMpvTest, PlaysAMovieReportingItsSamplesInOrderUpToTheEnd) {
    engine_.setMovie(fixtureMovie("index_mp4.mp4"));
    ASSERT_TRUE(engine_.IsReady());
    EXPECT_NEAR(engine_.duration(), 10.0, 0.1);
    ASSERT_TRUE(engine_.gpsDataList().has_value());
    EXPECT_EQ(engine_.gpsDataList()->size(), 11u);

    engine_.Resume();
    ASSERT_TRUE(runUntil([&] { return delegate_.samples.size() >= 3; }));
    EXPECT_TRUE(delegate_.playing());
    // Position 0 is the empty sample; record k is row k + 1 of the fixture route, as precise as
    // the camera's record form keeps it.
    struct Expected {
        uint64_t index;
        float latitude;
        float longitude;
        float speed;
    };
    const Expected expected[] = {
        {0, 0.0f, 0.0f, 0.0f}, {1, 22.298280f, 114.172045f, 18.5f}, {2, 22.298341f, 114.172042f, 12.0f}};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        SCOPED_TRACE(i);
        const GPSData& sample = delegate_.sampleData[i];
        EXPECT_EQ(delegate_.samples[i], expected[i].index);
        EXPECT_NEAR(sample.Latitude(), expected[i].latitude, 1e-4);
        EXPECT_NEAR(sample.Longitude(), expected[i].longitude, 1e-4);
        EXPECT_NEAR(sample.SpeedMPH(), expected[i].speed, 0.05);
    }
    ASSERT_FALSE(delegate_.progress.empty());
    EXPECT_GE(delegate_.progress.back(), 0.2);
    EXPECT_LT(delegate_.progress.back(), 0.4);

    // Paused and moved, it reports nothing until it plays again, then the sample of the new place.
    engine_.Pause();
    ASSERT_TRUE(runUntil([&] { return !delegate_.playing(); }));
    engine_.Seek(0.6);
    runFor(30);
    const std::size_t reported = delegate_.samples.size();
    EXPECT_FALSE(engine_.IsPlaying());
    engine_.Resume();
    ASSERT_TRUE(runUntil([&] { return delegate_.samples.size() > reported; }));
    EXPECT_EQ(delegate_.samples[reported], 6u);

    // To the end: playing stops, and every tick at rest there reports the end.
    engine_.Seek(0.9);
    ASSERT_TRUE(runUntil([&] { return delegate_.completions >= 3; }));
    EXPECT_FALSE(delegate_.playing());
    EXPECT_EQ(engine_.mediaPlayer()->currentTime().seconds(), engine_.duration());
    EXPECT_GE(delegate_.samples.back(), 9u);
}

TEST_F(GPSPlayerViewMpvTest, AMovieWhoseNameIsNotUtf8PlaysWithItsTrack) {
    const NonUtf8MovieCopy movie(fixtureMovie("index_mp4.mp4"));
    ASSERT_FALSE(movie.path().empty());
    engine_.setMovie(movie.path());
    ASSERT_TRUE(engine_.IsReady());
    ASSERT_TRUE(engine_.gpsDataList().has_value());
    EXPECT_EQ(engine_.gpsDataList()->size(), 11u);
    engine_.Resume();
    ASSERT_TRUE(runUntil([&] { return delegate_.samples.size() >= 2; }));
    EXPECT_TRUE(delegate_.playing());
    EXPECT_EQ(delegate_.samples[1], 1u);
}

}  // namespace
