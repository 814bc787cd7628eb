// The movie view around the engine: it shows the engine's players in its surface and lets go of
// them before they go. Full screen is FullScreenSwitch's (and the control tests' Escape) business.

#include "FakeMediaPlayer.h"
#include "GPSPlayerView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"

#include <QLayout>

#include <gtest/gtest.h>

namespace {

// Records into a log that outlives the surface, which the view destroys with itself.
struct SurfaceLog {
    std::vector<MediaPlayer*> shown;
};

class LoggingSurface final : public QWidget, public VideoSurface {
public:
    LoggingSurface(QWidget* parent, SurfaceLog& log) : QWidget(parent), log_(log) {}
    QWidget* widget() override { return this; }
    void setPlayer(MediaPlayer* player) override { log_.shown.push_back(player); }

private:
    SurfaceLog& log_;
};

TEST(GPSPlayerView, ShowsTheEnginesPlayersAndLetsGoOfThemFirst) {
    TempSettings settings;
    const auto factory = std::make_shared<FakeMediaPlayerFactory>();
    SurfaceLog log;
    QWidget* surfaceWidget = nullptr;
    const auto makeSurface = [&](QWidget* parent) {
        auto surface = std::make_unique<LoggingSurface>(parent, log);
        surfaceWidget = surface.get();
        return surface;
    };
    auto view = std::make_unique<GPSPlayerView>(factory, makeSurface, std::make_unique<ManualUpdateTimer>(),
                                                settings.utils());
    ASSERT_NE(surfaceWidget, nullptr);
    EXPECT_EQ(surfaceWidget->parentWidget(), view.get());
    EXPECT_GE(view->layout()->indexOf(surfaceWidget), 0) << "the picture fills the view";

    auto state = std::make_shared<FakePlayerState>();
    factory->next = state;
    view->engine().setMovie(fixtureMovie("index_scaled.mov"));
    ASSERT_FALSE(log.shown.empty());
    EXPECT_EQ(log.shown.back(), view->engine().mediaPlayer());

    view.reset();
    ASSERT_FALSE(log.shown.empty());
    EXPECT_EQ(log.shown.back(), nullptr) << "the surface was told before the player went";
    EXPECT_TRUE(state->destroyed);
}

}  // namespace
