// The movie view against a scripted player and a hand-fired timer: what it reports, when, and
// what it asks of the player.

#include "FakeMediaPlayer.h"
#include "GPSDataLoader.h"
#include "GPSPlayerView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"
#include "QtUpdateTimer.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Samples = std::vector<uint64_t>;
using Statuses = std::vector<bool>;

const std::filesystem::path kTrackMovie = fixtureMovie("index_scaled.mov");  // 10 records

class GPSPlayerViewTest : public ::testing::Test {
protected:
    void SetUp() override { makeView(); }

    void makeView(std::unique_ptr<UpdateTimer> timer = nullptr) {
        view_.reset();
        if (!timer) {
            auto manual = std::make_unique<ManualUpdateTimer>();
            timer_ = manual.get();
            timer = std::move(manual);
        }
        const auto makeSurface = [this](QWidget* parent) {
            auto surface = std::make_unique<RecordingSurface>(parent);
            surface_ = surface.get();
            return surface;
        };
        view_ = std::make_unique<GPSPlayerView>(factory_, makeSurface, std::move(timer), settings_.utils());
        view_->setDelegate(&delegate_);
    }
    // Sets a movie on a fresh player paused at 0, and forgets the reports made so far.
    std::shared_ptr<FakePlayerState> load(const std::filesystem::path& file = kTrackMovie, double duration = 10.0) {
        auto state = std::make_shared<FakePlayerState>();
        state->duration = MediaTime::make(std::llround(duration * 100), 100);
        factory_->next = state;
        view_->setMovie(file);
        delegate_.clear();
        return state;
    }
    // One firing of the timer, then the turn of the event loop that runs the tick it posted.
    void tick() {
        timer_->fire();
        QCoreApplication::processEvents();
    }
    void tickAt(FakePlayerState& state, double seconds) {
        state.at(seconds);
        tick();
    }

    TempSettings settings_;
    std::shared_ptr<FakeMediaPlayerFactory> factory_ = std::make_shared<FakeMediaPlayerFactory>();
    ManualUpdateTimer* timer_ = nullptr;
    RecordingSurface* surface_ = nullptr;
    RecordingDelegate delegate_;
    std::unique_ptr<GPSPlayerView> view_;
};

TEST_F(GPSPlayerViewTest, SetMovieLoadsTheTrackBehindAnEmptySample) {
    EXPECT_FALSE(view_->gpsDataList().has_value());
    float loaderMax = 0;
    const std::vector<GPSData> records = GPSDataLoader::LoadGPSDataList(kTrackMovie, &loaderMax);
    ASSERT_EQ(records.size(), 10u) << kTrackMovie;

    const auto state = load(kTrackMovie, 9.99);
    EXPECT_TRUE(view_->IsReady());
    EXPECT_EQ(view_->fileURL(), kTrackMovie);
    EXPECT_DOUBLE_EQ(view_->duration(), 9.99);
    EXPECT_EQ(view_->curIndex(), -1);
    EXPECT_EQ(view_->currentSpeedText(), "00.00");
    EXPECT_TRUE(view_->updateTimer().isActive());
    EXPECT_EQ(timer_->interval, std::chrono::milliseconds(100));
    EXPECT_EQ(surface_->shown.back(), view_->mediaPlayer());
    EXPECT_EQ(state->plays, 0) << "loading does not start playback";

    const auto& list = *view_->gpsDataList();
    ASSERT_EQ(list.size(), 11u);
    EXPECT_EQ(list[0].TimeText(), "00:00:00");
    for (std::size_t i = 0; i < records.size(); ++i) {
        EXPECT_EQ(list[i + 1].TimeText(), records[i].TimeText()) << i;
    }
    EXPECT_EQ(view_->speedMax(), std::min(200.0f, loaderMax));
}

TEST_F(GPSPlayerViewTest, MovieWithoutGPSPlaysWithoutSamples) {
    const auto state = load(fixtureMovie("nogps.mov"));
    ASSERT_TRUE(view_->gpsDataList().has_value()) << "empty, not absent";
    EXPECT_TRUE(view_->gpsDataList()->empty());
    EXPECT_EQ(view_->speedMax(), 0.0f);
    EXPECT_EQ(view_->maxSpeed(), 30.0f);

    state->status = PlayerStatus::Playing;
    for (double t : {0.2, 1.0, 2.5}) tickAt(*state, t);
    EXPECT_TRUE(delegate_.samples.empty());
    EXPECT_EQ(delegate_.progress.size(), 3u);
}

TEST_F(GPSPlayerViewTest, UnplayableFileLeavesTheViewEmpty) {
    load();
    factory_->next = nullptr;
    view_->setMovie("/no/such/movie.mov");
    EXPECT_FALSE(view_->IsReady());
    EXPECT_FALSE(view_->updateTimer().isActive());
    EXPECT_EQ(delegate_.statuses, Statuses{false}) << "Stop told the delegate nothing plays";
}

TEST_F(GPSPlayerViewTest, ReportsTheSampleOfEachWholeSecondAndProgressOnEveryTick) {
    const auto state = load(kTrackMovie, 12.0);
    state->status = PlayerStatus::Playing;
    const double times[] = {0.5, 0.9, 1.0, 3.9, 10.2, 11.0, 11.5};
    for (double t : times) tickAt(*state, t);

    EXPECT_EQ(delegate_.samples, (Samples{0, 1, 3, 10}));
    EXPECT_EQ(view_->curIndex(), 10) << "beyond the track the last position stays";
    ASSERT_EQ(delegate_.progress.size(), std::size(times));
    EXPECT_DOUBLE_EQ(delegate_.progress.back(), 11.5 / 12.0);
    const GPSData& last = view_->gpsDataList()->back();
    EXPECT_EQ(delegate_.sampleSpeeds.back(), last.SpeedMPH());
    EXPECT_EQ(view_->currentSpeedText(), last.SpeedText());

    // A new movie starts over: position 0 is reported again.
    const auto next = load();
    next->status = PlayerStatus::Playing;
    tickAt(*next, 0.1);
    EXPECT_EQ(delegate_.samples, Samples{0});
}

TEST_F(GPSPlayerViewTest, PausedMovieReportsNothingUntilItPlays) {
    const auto state = load();
    tick();
    view_->Seek(0.5);
    tickAt(*state, 5.0);
    EXPECT_TRUE(delegate_.samples.empty());
    EXPECT_TRUE(delegate_.progress.empty());

    view_->Resume();
    tick();
    EXPECT_EQ(delegate_.samples, Samples{5});
    EXPECT_EQ(delegate_.progress.size(), 1u);
}

TEST_F(GPSPlayerViewTest, StatusChangesAreReportedOnce) {
    const auto state = load();
    tick();
    tick();
    EXPECT_EQ(delegate_.statuses, Statuses{false}) << "a fresh player is paused, not waiting";
    view_->Pause();  // not playing: nothing to do
    view_->Resume();
    view_->Resume();  // already playing
    tick();
    state->status = PlayerStatus::Waiting;
    tick();
    state->status = PlayerStatus::Playing;
    tick();
    view_->Pause();
    tick();
    EXPECT_EQ(delegate_.statuses, (Statuses{false, true, false, true, false}));
    EXPECT_EQ(state->plays, 1);
    EXPECT_EQ(state->pauses, 1);

    const auto waiting = load();
    waiting->status = PlayerStatus::Waiting;
    tick();
    EXPECT_TRUE(delegate_.statuses.empty()) << "the first tick's status equals the start value";
}

TEST_F(GPSPlayerViewTest, CompletesOnEveryTickAtRestAtTheEndOnly) {
    const auto state = load(kTrackMovie, 9.99);
    state->currentTime = MediaTime::make(999, 100);
    for (int i = 0; i < 3; ++i) tick();
    EXPECT_EQ(delegate_.completions, 3);

    state->status = PlayerStatus::Playing;
    tick();
    state->currentTime = MediaTime::make(998, 100);
    state->status = PlayerStatus::Paused;
    tick();
    // Played backwards to the start and resting there.
    view_->setSpeed(-2.0f);
    tickAt(*state, 1.0);
    view_->setSpeed(0.0f);
    tickAt(*state, 0.0);
    EXPECT_EQ(delegate_.completions, 3);
}

TEST_F(GPSPlayerViewTest, UnknownDurationGivesNoCompletionAndZeroProgress) {
    auto state = std::make_shared<FakePlayerState>();
    state->duration = MediaTime::invalid();
    factory_->next = state;
    view_->setMovie(kTrackMovie);
    EXPECT_TRUE(std::isnan(view_->duration()));
    EXPECT_EQ(view_->seekUnit(), 0.0f);
    state->hasItem = false;
    tick();
    EXPECT_EQ(delegate_.completions, 0) << "not-a-number never equals";

    state->status = PlayerStatus::Playing;
    tick();
    EXPECT_EQ(delegate_.progress, std::vector<double>{0.0});
}

TEST_F(GPSPlayerViewTest, StoredVolumeDecidesTheVolumeToRestore) {
    EXPECT_DOUBLE_EQ(view_->volume(), 0.6) << "stored volume 0";
    settings_.utils().setVolume(0.5f);
    makeView();
    EXPECT_DOUBLE_EQ(view_->lastVolume(), 0.5);

    view_->setMuted(true);
    const auto state = load();
    EXPECT_EQ(state->volume, 0.5f);
    EXPECT_TRUE(state->muted);
}

TEST_F(GPSPlayerViewTest, VolumeZeroSilencesAndUnmutingRestores) {
    const auto state = load();
    view_->setVolume(0.0);
    EXPECT_DOUBLE_EQ(view_->volume(), 0.6);
    EXPECT_EQ(settings_.utils().volume(), 0.0f);
    EXPECT_EQ(state->volume, 0.0f);
    view_->setMuted(false);
    EXPECT_EQ(state->volume, 0.6f);

    view_->setVolume(0.4);
    view_->setMuted(true);
    EXPECT_TRUE(state->muted);
    view_->setMuted(false);
    EXPECT_EQ(state->volumes.back(), 0.4f) << "muting keeps the volume";
    view_->setIsMuted(true);
    EXPECT_FALSE(state->muted) << "setIsMuted only stores the flag";
}

TEST_F(GPSPlayerViewTest, SeekAndRate) {
    const auto state = load(kTrackMovie, 9.99);
    view_->Seek(0.5);
    EXPECT_EQ(state->seeks, std::vector<MediaTime>{MediaTime::make(499, 100)});
    view_->setSpeed(-2.0f);
    EXPECT_EQ(view_->speed(), -2.0f);
    load(kTrackMovie, 40.0);
    EXPECT_FLOAT_EQ(view_->seekUnit(), 0.25f);
}

TEST_F(GPSPlayerViewTest, StopShowsAnEmptyPlayerAndKeepsTheMovieFields) {
    const auto state = load(kTrackMovie, 9.99);
    state->status = PlayerStatus::Playing;
    tickAt(*state, 3.2);
    view_->Stop();

    EXPECT_EQ(state->pauses, 1);
    EXPECT_TRUE(state->destroyed);
    EXPECT_FALSE(view_->IsReady());
    EXPECT_FALSE(view_->updateTimer().isActive());
    ASSERT_EQ(factory_->emptyPlayers.size(), 1u);
    EXPECT_NE(surface_->shown.back(), nullptr) << "the empty player stays in the surface";
    EXPECT_FALSE(factory_->emptyPlayers[0]->destroyed);
    EXPECT_EQ(delegate_.statuses.back(), false);
    EXPECT_EQ(view_->fileURL(), kTrackMovie);
    EXPECT_EQ(view_->gpsDataList()->size(), 11u);
    EXPECT_EQ(view_->curIndex(), 3);
    EXPECT_DOUBLE_EQ(view_->duration(), 9.99);

    delegate_.clear();
    view_->Stop();
    EXPECT_EQ(delegate_.statuses, Statuses{false}) << "also without a player";
    // What needs a player does nothing, or gives its default.
    view_->Seek(0.5);
    view_->setSpeed(2.0f);
    view_->Resume();
    view_->update();
    EXPECT_EQ(view_->speed(), 1.0f);
    EXPECT_EQ(view_->seekUnit(), 0.0f);
    EXPECT_FALSE(view_->IsPlaying());
    EXPECT_TRUE(delegate_.progress.empty());
}

// The real timer, stopping the view right after its third firing has posted a tick.
class StoppingTimer final : public UpdateTimer {
public:
    explicit StoppingTimer(std::function<void()> stopper) : stopper_(std::move(stopper)) {}
    int firings = 0;

    void start(std::chrono::milliseconds interval, std::function<void()> onFire) override {
        real_.start(interval, [this, onFire = std::move(onFire)] {
            onFire();
            if (++firings == 3) stopper_();
        });
    }
    void stop() override { real_.stop(); }
    bool isActive() const override { return real_.isActive(); }

private:
    QtUpdateTimer real_;
    std::function<void()> stopper_;
};

TEST_F(GPSPlayerViewTest, RealTimerPostsOneTickPerFiring) {
    QEventLoop loop;
    auto timer = std::make_unique<StoppingTimer>([&] {
        view_->Stop();
        loop.quit();
    });
    const StoppingTimer& counted = *timer;
    makeView(std::move(timer));
    auto state = std::make_shared<FakePlayerState>();
    state->status = PlayerStatus::Playing;
    state->currentTime = state->duration;  // the late tick must not take this for the end
    factory_->next = state;
    view_->setMovie(kTrackMovie);
    delegate_.clear();
    loop.exec();
    QCoreApplication::processEvents();

    // Counts, never time: ticks 1 and 2 saw the player; tick 3 ran after Stop and found none.
    EXPECT_EQ(counted.firings, 3);
    EXPECT_EQ(delegate_.progress.size(), 2u);
    EXPECT_EQ(delegate_.statuses, (Statuses{true, false, false}));
    EXPECT_EQ(delegate_.completions, 0);
}

}  // namespace
