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

// H.264 with B-frames and AAC; H.264 alone; AAC alone (not a movie).
const Clip kMovie{"av.mp4", 10.0};
const Clip kVideoOnly{"video_only.mov", 6.0};
const Clip kAudioOnly{"audio_only.m4a", 4.0};

class MpvMediaPlayerTest : public ::testing::Test {
protected:
    std::unique_ptr<MediaPlayer> open(const Clip& clip) {
        auto player = factory_.playerWithURL(testClip(clip.name));
        EXPECT_NE(player, nullptr) << clip.name;
        return player;
    }

    static double seconds(const MediaPlayer& player) { return player.currentTime().seconds(); }

    static bool settledAt(const MediaPlayer& player, double target, double tolerance) {
        return player.timeControlStatus() != PlayerStatus::Waiting && std::abs(seconds(player) - target) <= tolerance;
    }

    // The player reports a seek's target at once; give mpv time to land before reading the time.
    static bool seekAndSettle(MediaPlayer& player, double target, double tolerance = 0.05) {
        player.seek(MediaTime::make(std::llround(target * 100), 100));
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
        EXPECT_TRUE(player->duration().isValid());
        EXPECT_NEAR(player->duration().seconds(), clip.seconds, 0.1);
        EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
        EXPECT_EQ(player->rate(), 0.0f);
        EXPECT_EQ(player->currentTime().seconds(), 0.0);
    }
}

TEST_F(MpvMediaPlayerTest, GivesNoPlayerForWhatIsNotAMovie) {
    QTemporaryDir dir;
    const std::filesystem::path root = dir.path().toStdString();
    const auto write = [&](const char* name, const std::string& bytes) {
        std::ofstream(root / name, std::ios::binary) << bytes;
        return root / name;
    };
    std::string truncated(4096, '\0');
    std::ifstream(testClip(kMovie.name), std::ios::binary).read(truncated.data(), 4096);
    const std::filesystem::path cases[] = {
        write("text.mp4", "hello, this is no movie\n"),
        write("empty.mov", ""),
        write("truncated.mp4", truncated),
        testClip("still.png"),
        testClip(kAudioOnly.name),  // sound without a picture is no movie, as in the playlist
        root / "missing.mp4",
        root,
    };
    for (const auto& path : cases) {
        SCOPED_TRACE(path);
        EXPECT_EQ(factory_.playerWithURL(path), nullptr);
    }
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

TEST_F(MpvMediaPlayerTest, SeeksLandWhereAsked) {
    // Before the file has opened, while paused, and while playing.
    auto player = open(kMovie);
    ASSERT_TRUE(seekAndSettle(*player, 5.0)) << seconds(*player);
    ASSERT_TRUE(seekAndSettle(*player, 2.5)) << seconds(*player);
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
    player->play();
    player->seek(MediaTime::make(700, 100));
    ASSERT_TRUE(runUntil([&] {
        return player->timeControlStatus() == PlayerStatus::Playing && seconds(*player) >= 7.0;
    })) << seconds(*player);
    EXPECT_LT(seconds(*player), 8.0);
}

TEST_F(MpvMediaPlayerTest, ATimeBeforeTheStartSeeksToTheStart) {
    // Before the file has opened, from the middle while paused, and while playing.
    auto player = open(kMovie);
    player->seek(MediaTime::make(-60, 100));
    runFor(30);
    ASSERT_TRUE(runUntil([&] { return settledAt(*player, 0.0, 0.05); })) << seconds(*player);
    ASSERT_TRUE(seekAndSettle(*player, 5.0));
    player->seek(MediaTime::make(-1, 100));
    EXPECT_EQ(seconds(*player), 0.0);
    runFor(30);
    ASSERT_TRUE(runUntil([&] { return settledAt(*player, 0.0, 0.05); })) << seconds(*player);
    player->play();
    ASSERT_TRUE(runUntil([&] { return seconds(*player) > 1.0; }));
    player->seek(MediaTime::make(-500, 100));
    runFor(30);
    ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
    EXPECT_LT(seconds(*player), 1.5);
}

TEST_F(MpvMediaPlayerTest, DoubleRatePlaysForward) {
    auto player = open(kMovie);
    player->setRate(2.0f);
    EXPECT_EQ(player->rate(), 2.0f);
    ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
    const double from = seconds(*player);
    ASSERT_TRUE(runUntil([&] { return seconds(*player) > from + 1.0; }));
    EXPECT_EQ(player->rate(), 2.0f);
    player->setRate(0.0f);
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
}

TEST_F(MpvMediaPlayerTest, NegativeRatePlaysBackward) {
    for (const Clip& clip : {kMovie, kVideoOnly}) {
        SCOPED_TRACE(clip.name);
        auto player = open(clip);
        ASSERT_TRUE(seekAndSettle(*player, 4.0));
        player->setRate(-2.0f);
        EXPECT_EQ(player->rate(), -2.0f);
        ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
        ASSERT_TRUE(runUntil([&] { return seconds(*player) < 3.0; })) << seconds(*player);
        // Back to forward: the clock runs up again.
        player->play();
        EXPECT_EQ(player->rate(), 1.0f);
        ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
        const double from = seconds(*player);
        ASSERT_TRUE(runUntil([&] { return seconds(*player) > from + 0.3; }));
    }
}

TEST_F(MpvMediaPlayerTest, PlayingBackwardToTheStartRestsThereNotAtTheEnd) {
    auto player = open(kMovie);
    ASSERT_TRUE(seekAndSettle(*player, 1.0));
    player->setRate(-2.0f);
    ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
    ASSERT_TRUE(runUntil([&] { return isAtRest(*player); }));
    EXPECT_LT(seconds(*player), 0.2);
    EXPECT_NE(player->currentTime(), player->duration());
}

TEST_F(MpvMediaPlayerTest, PlayingToTheEndRestsAtExactlyTheDuration) {
    for (const Clip& clip : {kMovie, kVideoOnly}) {
        SCOPED_TRACE(clip.name);
        auto player = open(clip);
        player->seek(MediaTime::make(static_cast<int64_t>((clip.seconds - 1.0) * 100), 100));
        player->play();
        ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Playing; }));
        ASSERT_TRUE(runUntil([&] { return isAtRest(*player); }));
        EXPECT_EQ(player->currentTime(), player->duration());
        EXPECT_EQ(player->currentTime().seconds(), player->duration().seconds());
        // Playing again at the end does not leave the end.
        player->play();
        runFor(20);
        ASSERT_TRUE(runUntil([&] { return isAtRest(*player); }));
        EXPECT_EQ(player->currentTime(), player->duration());
        // Moved away from the end, it no longer reads the duration, not even before mpv lands.
        player->seek(MediaTime::make(0, 1));
        EXPECT_NE(player->currentTime(), player->duration());
        ASSERT_TRUE(seekAndSettle(*player, 0.0));
        EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
    }
}

TEST_F(MpvMediaPlayerTest, SeekingToTheDurationRestsAtTheEnd) {
    auto player = open(kMovie);
    ASSERT_TRUE(runUntil([&] { return player->timeControlStatus() == PlayerStatus::Paused; }));
    runFor(5);
    player->seek(player->duration());
    runFor(50);
    EXPECT_EQ(player->currentTime(), player->duration());
    EXPECT_EQ(player->timeControlStatus(), PlayerStatus::Paused);
}

}  // namespace
