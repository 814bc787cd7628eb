// The movie view around the engine: it shows the engine's players in its surface and lets go of
// them before they go.

#include "FakeMediaPlayer.h"
#include "GPSPlayerView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"

#include <QLayout>

#include <gtest/gtest.h>

namespace {

// Records into a log that outlives the surface, which the view destroys with itself.
class LoggingSurface final : public QWidget, public VideoSurface {
public:
    LoggingSurface(QWidget* parent, std::vector<MediaPlayer*>& log) : QWidget(parent), log_(log) {}
    QWidget* widget() override { return this; }
    void setPlayer(MediaPlayer* player) override { log_.push_back(player); }

private:
    std::vector<MediaPlayer*>& log_;
};

TEST(GPSPlayerView, ShowsTheEnginesPlayersAndLetsGoOfThemFirst) {
    TempSettings settings;
    const auto factory = std::make_shared<FakeMediaPlayerFactory>();
    std::vector<MediaPlayer*> shown;
    QWidget* surface = nullptr;
    const auto makeSurface = [&](QWidget* parent) {
        auto made = std::make_unique<LoggingSurface>(parent, shown);
        surface = made.get();
        return made;
    };
    auto view =
        std::make_unique<GPSPlayerView>(factory, makeSurface, std::make_unique<ManualUpdateTimer>(), settings.utils());
    ASSERT_NE(surface, nullptr);
    EXPECT_GE(view->layout()->indexOf(surface), 0) << "the picture fills the view";

    auto state = std::make_shared<FakePlayerState>();
    factory->next = state;
    view->engine().setMovie(fixtureMovie("index_scaled.mov"));
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ(shown.back(), view->engine().mediaPlayer());
    view.reset();
    EXPECT_EQ(shown.back(), nullptr) << "the surface was told before the player went";
    EXPECT_TRUE(state->destroyed);
}

}  // namespace
