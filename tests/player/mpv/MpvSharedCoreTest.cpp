// Movies played one after the other on the factory's one core: each player hears only of its own
// movie. That a dropped player leaves the core idle, the sound test waits for.

#include "MpvPlayerFactory.h"
#include "MpvTestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace {

// 10 s with sound, then 6 s without: what the first one reports is easy to tell apart.
constexpr const char* kFirst = "av.mp4";
constexpr const char* kNext = "video_only.mov";

class MpvSharedCoreTest : public ::testing::Test {
protected:
    std::unique_ptr<MediaPlayer> open(const char* clip) {
        auto player = factory_.playerWithURL(testClip(clip));
        EXPECT_NE(player, nullptr) << clip;
        return player;
    }

    // What the engine does when it changes movies: pause the old player and drop it, then make
    // the next one.
    std::unique_ptr<MediaPlayer> change(std::unique_ptr<MediaPlayer>& old, const char* clip) {
        old->pause();
        old.reset();
        return open(clip);
    }

    // A new player reads its own movie's start, paused, however long the core takes to load it.
    static void expectAtItsStart(const MediaPlayer& player, MediaTime duration) {
        for (int slice = 0; slice < 60; ++slice) {
            SCOPED_TRACE(slice);
            ASSERT_EQ(player.duration(), duration);
            ASSERT_EQ(seconds(player), 0.0);
            ASSERT_EQ(player.timeControlStatus(), PlayerStatus::Paused);
            ASSERT_EQ(player.rate(), 0.0f);
            runFor(1);
        }
    }

    MpvPlayerFactory factory_;
};

TEST_F(MpvSharedCoreTest, NothingOfTheMovieBeforeReachesTheNext) {
    const MediaTime nextDuration = open(kNext)->duration();
    ASSERT_TRUE(nextDuration.isValid());
    struct Case {
        const char* name;
        std::function<void(MediaPlayer&)> leave;  // where the first movie is when it is changed
    };
    const Case cases[] = {
        {"still loading", [](MediaPlayer&) {}},
        {"seeking far while playing",
         [](MediaPlayer& player) {
             player.play();
             ASSERT_TRUE(runUntil([&] { return player.timeControlStatus() == PlayerStatus::Playing; }));
             player.seek(at(8.5));
         }},
        {"at its end",
         [](MediaPlayer& player) {
             player.seek(at(9.0));
             player.play();
             ASSERT_TRUE(runUntil([&] { return player.currentTime() == player.duration() && isAtRest(player); }));
         }},
        {"playing backward",
         [](MediaPlayer& player) {
             player.seek(at(5.0));
             player.setRate(-2.0f);
             ASSERT_TRUE(runUntil([&] { return player.timeControlStatus() == PlayerStatus::Playing; }));
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        auto first = open(kFirst);
        ASSERT_NE(first, nullptr);
        c.leave(*first);
        auto next = change(first, kNext);
        ASSERT_NE(next, nullptr);
        expectAtItsStart(*next, nextDuration);
        // And it plays forward from its start, with its sound track back.
        next->play();
        EXPECT_EQ(next->rate(), 1.0f);
        ASSERT_TRUE(runUntil([&] { return seconds(*next) > 0.3; }));
        EXPECT_LT(seconds(*next), 3.0);
    }
}

TEST_F(MpvSharedCoreTest, ASeekBeforeTheNextMovieHasOpenedLandsInIt) {
    // The first movie opens while nothing drains the core's events, so that its news is still
    // queued when the next player takes over and asks for a place in its own movie.
    auto first = open(kFirst);
    ASSERT_NE(first, nullptr);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    auto next = change(first, kNext);
    ASSERT_NE(next, nullptr);
    next->seek(at(3.0));
    runFor(30);
    ASSERT_TRUE(runUntil([&] { return next->timeControlStatus() == PlayerStatus::Paused; }));
    runFor(20);
    EXPECT_NEAR(seconds(*next), 3.0, 0.1);
    next->play();
    ASSERT_TRUE(runUntil([&] { return seconds(*next) > 3.3; }));
    EXPECT_LT(seconds(*next), 4.5);
}

TEST_F(MpvSharedCoreTest, AReplacedPlayerNoLongerMovesTheCore) {
    auto first = open(kFirst);
    auto next = open(kNext);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(next, nullptr);
    first->seek(at(4.0));
    first->play();
    EXPECT_EQ(first->timeControlStatus(), PlayerStatus::Paused);
    EXPECT_EQ(first->rate(), 0.0f);
    runFor(40);
    EXPECT_EQ(seconds(*next), 0.0);
    EXPECT_EQ(next->timeControlStatus(), PlayerStatus::Paused);
    first.reset();
    next->play();
    ASSERT_TRUE(runUntil([&] { return next->timeControlStatus() == PlayerStatus::Playing; }));
}

}  // namespace
