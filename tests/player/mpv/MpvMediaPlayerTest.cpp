// The mpv player through the MediaPlayer interface only, on real movies, with the event loop running.

#include "MpvPlayerFactory.h"
#include "MpvTestSupport.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <memory>
#include <string>

namespace {

struct Clip {
    const char* name;
    double seconds;  // as the container says, roughly
};

// H.264 with B-frames and AAC; H.264 alone.
const Clip kMovie{"av.mp4", 10.0};
const Clip kVideoOnly{"video_only.mov", 6.0};

class MpvMediaPlayerTest : public ::testing::Test {
protected:
    std::unique_ptr<MediaPlayer> open(const Clip& clip) {
        auto player = factory_.playerWithURL(testClip(clip.name));
        EXPECT_NE(player, nullptr) << clip.name;
        return player;
    }

    static bool settledAt(const MediaPlayer& player, double target, double tolerance) {
        return player.timeControlStatus() != PlayerStatus::Waiting && std::abs(seconds(player) - target) <= tolerance;
    }

    // The player reports a seek's target at once; give mpv time to land before reading the time.
    static bool seekAndSettle(MediaPlayer& player, double target, double tolerance = 0.05) {
        player.seek(at(target));
        runFor(30);
        return runUntil([&] { return settledAt(player, target, tolerance); });
    }

    MpvPlayerFactory factory_;
};

TEST_F(MpvMediaPlayerTest, KnowsItsDurationAsSoonAsItIsMade) {
    for (const Clip& clip : {kMovie, kVideoOnly}) {
        SCOPED_TRACE(clip.name);
        auto player = open(clip);
        ASSERT_NE(player, nullptr);
        EXPECT_TRUE(player->hasItem());
        EXPECT_NEAR(player->duration().seconds(), clip.seconds, 0.1);
        EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
        EXPECT_EQ(player->rate(), 0.0f);
        EXPECT_EQ(player->currentTime().seconds(), 0.0);
    }
    // A movie cut short gives no player; other files that are no movie are the probe's own test.
    QTemporaryDir dir;
    const std::filesystem::path truncated = dir.filePath("truncated.mp4").toStdString();
    std::string head(4096, '\0');
    std::ifstream(testClip(kMovie.name), std::ios::binary).read(head.data(), 4096);
    std::ofstream(truncated, std::ios::binary) << head;
    EXPECT_EQ(factory_.playerWithURL(truncated), nullptr);
}

TEST_F(MpvMediaPlayerTest, WaitsWhileTheFileLoadsThenPlaysUntilPaused) {
    auto player = open(kMovie);
    player->play();
    // The file opens in a later turn of the event loop: asked to play, the player waits for it.
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Waiting);
    EXPECT_EQ(player->rate(), 1.0f);
    ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
    ASSERT_TRUE(runUntil([&] { return seconds(*player) > 0.5; }));

    player->pause();
    EXPECT_EQ(player->rate(), 0.0f);
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
    runFor(10);
    const double pausedAt = seconds(*player);
    runFor(30);
    EXPECT_EQ(seconds(*player), pausedAt) << "the clock stands still";
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
}

TEST_F(MpvMediaPlayerTest, SeeksLandWhereAskedAndNeverBeforeTheStart) {
    // Before the file has opened, while paused, and while playing.
    auto player = open(kMovie);
    player->seek(at(-0.6));
    runFor(30);
    ASSERT_TRUE(runUntil([&] { return settledAt(*player, 0.0, 0.05); })) << seconds(*player);
    ASSERT_TRUE(seekAndSettle(*player, 5.0)) << seconds(*player);
    player->seek(at(-0.01));
    EXPECT_EQ(seconds(*player), 0.0);
    runFor(30);
    ASSERT_TRUE(runUntil([&] { return settledAt(*player, 0.0, 0.05); })) << seconds(*player);
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
    player->play();
    player->seek(at(7.0));
    ASSERT_TRUE(runUntil([&] {
        return player->timeControlStatus() == PlayerStatus::Playing && seconds(*player) >= 7.0;
    })) << seconds(*player);
    EXPECT_LT(seconds(*player), 8.0);
}

TEST_F(MpvMediaPlayerTest, RatesPlayBackwardToRestAtTheStartAndForwardAgain) {
    for (const Clip& clip : {kMovie, kVideoOnly}) {
        SCOPED_TRACE(clip.name);
        auto player = open(clip);
        ASSERT_TRUE(seekAndSettle(*player, 2.0));
        player->setRate(-2.0f);
        EXPECT_EQ(player->rate(), -2.0f);
        ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
        ASSERT_TRUE(runUntil([&] { return isAtRest(*player); }));
        EXPECT_LT(seconds(*player), 0.2);
        EXPECT_NE(player->currentTime(), player->duration()) << "at the start, not the end";
        player->setRate(2.0f);
        EXPECT_EQ(player->rate(), 2.0f);
        ASSERT_TRUE(runUntil([&] { return seconds(*player) > 1.0; }));
        player->setRate(0.0f);
        EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
    }
}

TEST_F(MpvMediaPlayerTest, PlayingToTheEndRestsAtExactlyTheDuration) {
    for (const Clip& clip : {kMovie, kVideoOnly}) {
        SCOPED_TRACE(clip.name);
        auto player = open(clip);
        player->seek(at(clip.seconds - 1.0));
        player->play();
        ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
        ASSERT_TRUE(runUntil([&] { return isAtRest(*player); }));
        EXPECT_EQ(player->currentTime(), player->duration());
        // Playing again at the end does not leave the end.
        player->play();
        runFor(20);
        ASSERT_TRUE(runUntil([&] { return isAtRest(*player); }));
        EXPECT_EQ(player->currentTime(), player->duration());
        // Moved away from the end, it no longer reads the duration, not even before mpv lands.
        player->seek(MediaTime::make(0, 1));
        EXPECT_NE(player->currentTime(), player->duration());
        ASSERT_TRUE(seekAndSettle(*player, 0.0));
        if (clip.name != kMovie.name) continue;
        // Sought back to the end, it rests there.
        player->seek(player->duration());
        runFor(50);
        EXPECT_EQ(player->currentTime(), player->duration());
        EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
    }
}

}  // namespace
