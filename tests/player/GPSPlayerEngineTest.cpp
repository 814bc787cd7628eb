// The player engine against a scripted player and a hand-fired timer: what it reports, when, what
// it asks of the player, and what reaches the settings.

#include "FakeMediaPlayer.h"
#include "GPSPlayerEngine.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"
#include "QtUpdateTimer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QString>
#include <QtGlobal>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Samples = std::vector<uint64_t>;
using Statuses = std::vector<bool>;

// Records k = 1..10 hold rows 2..11 of route10.csv: speeds in MPH, times of the camera's clock.
const std::filesystem::path kTrackMovie = fixtureMovie("index_scaled.mov");
// Records up to 120 MPH (fast_route.csv).
const std::filesystem::path kFastMovie = std::filesystem::path(PLAYER_FIXTURE_DIR) / "fast.mov";

class GPSPlayerEngineTest : public ::testing::Test {
protected:
    void SetUp() override { makeEngine(); }

    void makeEngine(std::unique_ptr<UpdateTimer> timer = nullptr) {
        engine_.reset();
        if (!timer) {
            auto manual = std::make_unique<ManualUpdateTimer>();
            timer_ = manual.get();
            timer = std::move(manual);
        }
        engine_ = std::make_unique<GPSPlayerEngine>(factory_, &surface_, std::move(timer), settings_.utils());
        engine_->setDelegate(&delegate_);
    }
    // Sets a movie on a fresh player paused at 0, and forgets the reports made so far.
    std::shared_ptr<FakePlayerState> load(const std::filesystem::path& file = kTrackMovie, double duration = 10.0) {
        auto state = std::make_shared<FakePlayerState>();
        state->duration = MediaTime::make(std::llround(duration * 100), 100);
        factory_->next = state;
        engine_->setMovie(file);
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
    RecordingSurface surface_;
    RecordingDelegate delegate_;
    std::unique_ptr<GPSPlayerEngine> engine_;
};

TEST_F(GPSPlayerEngineTest, SetMovieLoadsTheTrackBehindAnEmptySample) {
    EXPECT_FALSE(engine_->gpsDataList().has_value());
    const auto state = load(kTrackMovie, 9.99);
    EXPECT_TRUE(engine_->IsReady());
    EXPECT_EQ(engine_->curIndex(), -1);
    EXPECT_TRUE(engine_->updateTimer().isActive());
    EXPECT_EQ(timer_->interval, std::chrono::milliseconds(100));
    EXPECT_EQ(surface_.shown.back(), engine_->mediaPlayer());
    EXPECT_EQ(state->plays, 0) << "loading does not start playback";
    ASSERT_TRUE(engine_->gpsDataList().has_value());
    EXPECT_EQ(engine_->gpsDataList()->size(), 11u);
    EXPECT_NEAR(engine_->speedMax(), 22.5f, 0.01);
    EXPECT_EQ(engine_->maxSpeed(), 30.0f) << "the scale's default top, above the route's fastest second";
    EXPECT_FLOAT_EQ(engine_->seekUnit(), 10.0f / 9.99f);

    const auto noGps = load(fixtureMovie("nogps.mov"));
    ASSERT_TRUE(engine_->gpsDataList().has_value()) << "empty, not absent";
    EXPECT_TRUE(engine_->gpsDataList()->empty());
    noGps->status = PlayerStatus::Playing;
    for (double t : {0.2, 1.0}) tickAt(*noGps, t);
    EXPECT_TRUE(delegate_.samples.empty());
    EXPECT_EQ(delegate_.progress.size(), 2u);
}

// Every message Qt would print while the handler is installed.
std::vector<QString>* capturedMessages = nullptr;
void captureMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (capturedMessages) capturedMessages->push_back(message);
}

TEST_F(GPSPlayerEngineTest, UnplayableFileLeavesTheEngineEmptyWithTheOldTrackAndPrintsNothing) {
    load(kFastMovie, 4.0);
    std::vector<QString> messages;
    capturedMessages = &messages;
    const QtMessageHandler previous = qInstallMessageHandler(captureMessage);
    factory_->next = nullptr;
    engine_->setMovie("/no/such/movie.mov");
    qInstallMessageHandler(previous);
    capturedMessages = nullptr;
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) {
        EXPECT_TRUE(messages.empty());
    }
    EXPECT_FALSE(engine_->IsReady());
    EXPECT_FALSE(engine_->updateTimer().isActive());
    EXPECT_EQ(delegate_.statuses, Statuses{false}) << "Stop told the delegate nothing plays";
    EXPECT_EQ(engine_->gpsDataList()->size(), 5u);
    EXPECT_NEAR(engine_->maxSpeed(), 120.0f, 0.01) << "the scale grows to a faster route";
}

TEST_F(GPSPlayerEngineTest, ReportsTheSampleOfEachWholeSecondAndProgressOnEveryTick) {
    const auto state = load(kTrackMovie, 12.0);
    state->status = PlayerStatus::Playing;
    const double times[] = {0.5, 0.9, 1.0, 10.2, 11.5};
    for (double t : times) tickAt(*state, t);
    EXPECT_EQ(delegate_.samples, (Samples{0, 1, 10}));
    ASSERT_EQ(delegate_.progress.size(), std::size(times));
    EXPECT_DOUBLE_EQ(delegate_.progress.back(), 11.5 / 12.0);
    EXPECT_NEAR(delegate_.sampleData.back().SpeedMPH(), 22.5f, 0.01);
    EXPECT_EQ(engine_->currentSpeedText(), engine_->gpsDataList()->back().SpeedText());

    // A new movie starts over: position 0 is reported again.
    const auto next = load();
    next->status = PlayerStatus::Playing;
    tickAt(*next, 0.1);
    EXPECT_EQ(delegate_.samples, Samples{0});
}

TEST_F(GPSPlayerEngineTest, StatusChangesAreReportedOnceAndAPausedSeekReportsWhereItLands) {
    const auto state = load();
    tick();
    EXPECT_TRUE(delegate_.samples.empty()) << "a paused movie that nobody moves reports nothing";
    engine_->Seek(0.5);
    tick();  // not landed yet
    EXPECT_TRUE(delegate_.samples.empty());
    tickAt(*state, 5.0);
    EXPECT_EQ(delegate_.statuses, Statuses{false}) << "a fresh player is paused, not waiting";
    EXPECT_EQ(delegate_.samples, Samples{5}) << "the read-outs show the picture on screen";
    EXPECT_EQ(delegate_.progress.size(), 1u);
    tick();
    EXPECT_EQ(delegate_.progress.size(), 1u) << "reported once";
    engine_->Pause();  // not playing: nothing to do
    engine_->Resume();
    engine_->Resume();  // already playing
    tick();
    EXPECT_EQ(delegate_.samples, Samples{5});
    state->status = PlayerStatus::Waiting;
    tick();
    state->status = PlayerStatus::Playing;
    tick();
    engine_->Pause();
    tick();
    EXPECT_EQ(delegate_.statuses, (Statuses{false, true, false, true, false}));
    EXPECT_EQ(state->plays, 1);
    EXPECT_EQ(state->pauses, 1);
    EXPECT_EQ(state->seeks, std::vector{MediaTime::make(500, 100)});

    const auto waiting = load();
    waiting->status = PlayerStatus::Waiting;
    tick();
    EXPECT_TRUE(delegate_.statuses.empty()) << "the first tick's status equals the start value";
}

TEST_F(GPSPlayerEngineTest, FrameStepsOnlyWhilePausedAndReportsWhenTheTimeMoves) {
    const auto state = load();
    tickAt(*state, 3.5);
    engine_->StepFrame(false);
    tickAt(*state, 3.5 - 1.0 / 30);
    EXPECT_EQ(delegate_.samples, Samples{3});
    // A step at either end moves nothing: after a while nothing is awaited any more.
    engine_->StepFrame(true);
    for (int i = 0; i < 30; ++i) tick();
    tickAt(*state, 0.5);
    EXPECT_EQ(delegate_.samples, Samples{3}) << "a paused movie moved by nobody reports nothing";
    state->status = PlayerStatus::Playing;
    engine_->StepFrame(true);
    EXPECT_EQ(state->frameSteps, (std::vector{false, true}));
}

TEST_F(GPSPlayerEngineTest, CompletesOnEveryTickAtRestAtTheEndOnly) {
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
    engine_->setSpeed(-2.0f);
    EXPECT_EQ(state->rate, -2.0f);
    state->rate = 0.5f;  // the player may change its rate by itself
    EXPECT_EQ(engine_->speed(), 0.5f);
    tickAt(*state, 1.0);
    engine_->setSpeed(0.0f);
    tickAt(*state, 0.0);
    EXPECT_EQ(delegate_.completions, 3);
}

TEST_F(GPSPlayerEngineTest, UnknownDurationGivesNoCompletionAndZeroProgress) {
    const auto state = load(kTrackMovie, 1.0);
    state->duration = MediaTime::invalid();
    engine_->setMovie(kTrackMovie);
    EXPECT_TRUE(std::isnan(engine_->duration()));
    EXPECT_EQ(engine_->seekUnit(), 0.0f);
    state->hasItem = false;
    tick();
    EXPECT_EQ(delegate_.completions, 0) << "not-a-number never equals";
    state->status = PlayerStatus::Playing;
    tick();
    EXPECT_EQ(delegate_.progress, std::vector<double>{0.0});
}

TEST_F(GPSPlayerEngineTest, VolumeZeroSilencesAndUnmutingRestoresTheStoredVolume) {
    // A settings file without a volume reads as 0; building the engine stores that 0.
    TempSettings fresh;
    GPSPlayerEngine fromFresh(factory_, nullptr, std::make_unique<ManualUpdateTimer>(), fresh.utils());
    EXPECT_EQ(fresh.utils().envInfo().realValue("Volume"), 0.0);
    EXPECT_DOUBLE_EQ(fromFresh.volume(), 0.6) << "silence is never the volume to restore";

    settings_.utils().setVolume(0.4f);
    makeEngine();
    engine_->setMuted(true);
    const auto state = load();
    EXPECT_EQ(state->volume, 0.4f);
    EXPECT_TRUE(state->muted) << "the mute state carries over to each new player";
    engine_->setMuted(false);
    engine_->setVolume(0.0);
    EXPECT_EQ(settings_.utils().volume(), 0.0f);
    EXPECT_EQ(state->volume, 0.0f);
    EXPECT_NEAR(engine_->volume(), 0.4, 1e-6) << "what a slider shows: the volume unmuting restores";
    engine_->setMuted(false);
    EXPECT_EQ(state->volume, 0.4f);
    engine_->setIsMuted(true);
    EXPECT_FALSE(state->muted) << "setIsMuted only stores the flag";
}

TEST_F(GPSPlayerEngineTest, StopShowsAnEmptyPlayerAndKeepsTheMovieFields) {
    const auto state = load(kTrackMovie, 9.99);
    state->status = PlayerStatus::Playing;
    tickAt(*state, 3.2);
    engine_->Stop();
    EXPECT_EQ(state->pauses, 1);
    EXPECT_TRUE(state->destroyed);
    EXPECT_FALSE(engine_->IsReady());
    EXPECT_FALSE(engine_->updateTimer().isActive());
    ASSERT_EQ(factory_->emptyPlayers.size(), 1u);
    EXPECT_NE(surface_.shown.back(), nullptr) << "the empty player stays in the surface";
    EXPECT_FALSE(factory_->emptyPlayers[0]->destroyed);
    EXPECT_EQ(engine_->fileURL(), kTrackMovie);
    EXPECT_EQ(engine_->curIndex(), 3);
    EXPECT_DOUBLE_EQ(engine_->duration(), 9.99);

    delegate_.clear();
    engine_->Stop();
    EXPECT_EQ(delegate_.statuses, Statuses{false}) << "also without a player";
    // What needs a player does nothing, or gives its default.
    engine_->Seek(0.5);
    engine_->setSpeed(2.0f);
    engine_->Resume();
    engine_->update();
    EXPECT_EQ(engine_->speed(), 1.0f);
    EXPECT_FALSE(engine_->IsPlaying());
    EXPECT_TRUE(delegate_.progress.empty());
}

// The real timer, stopping the engine right after its third firing has posted a tick.
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

TEST_F(GPSPlayerEngineTest, RealTimerPostsOneTickPerFiring) {
    QEventLoop loop;
    auto timer = std::make_unique<StoppingTimer>([&] {
        engine_->Stop();
        loop.quit();
    });
    const StoppingTimer& counted = *timer;
    makeEngine(std::move(timer));
    auto state = std::make_shared<FakePlayerState>();
    state->status = PlayerStatus::Playing;
    state->currentTime = state->duration;  // the late tick must not take this for the end
    factory_->next = state;
    engine_->setMovie(kTrackMovie);
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
