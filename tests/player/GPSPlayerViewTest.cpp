// The movie view around the engine: it shows the engine's players in its surface, lets go of
// them before they go, and takes itself out of its window to fill the screen.

#include "FakeMediaPlayer.h"
#include "GPSPlayerView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QVBoxLayout>

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

class GPSPlayerViewTest : public ::testing::Test {
protected:
    std::unique_ptr<GPSPlayerView> makeView(QWidget* parent = nullptr) {
        const auto makeSurface = [this](QWidget* surfaceParent) {
            auto surface = std::make_unique<LoggingSurface>(surfaceParent, log_);
            surfaceWidget_ = surface.get();
            return surface;
        };
        return std::make_unique<GPSPlayerView>(factory_, makeSurface, std::make_unique<ManualUpdateTimer>(),
                                               settings_.utils(), parent);
    }

    TempSettings settings_;
    std::shared_ptr<FakeMediaPlayerFactory> factory_ = std::make_shared<FakeMediaPlayerFactory>();
    SurfaceLog log_;
    QWidget* surfaceWidget_ = nullptr;
};

TEST_F(GPSPlayerViewTest, ShowsTheEnginesPlayersAndLetsGoOfThemFirst) {
    auto view = makeView();
    ASSERT_NE(surfaceWidget_, nullptr);
    EXPECT_EQ(surfaceWidget_->parentWidget(), view.get());
    EXPECT_GE(view->layout()->indexOf(surfaceWidget_), 0) << "the picture fills the view";

    auto state = std::make_shared<FakePlayerState>();
    factory_->next = state;
    view->engine().setMovie(fixtureMovie("index_scaled.mov"));
    ASSERT_FALSE(log_.shown.empty());
    EXPECT_EQ(log_.shown.back(), view->engine().mediaPlayer());

    view.reset();
    ASSERT_FALSE(log_.shown.empty());
    EXPECT_EQ(log_.shown.back(), nullptr) << "the surface was told before the player went";
    EXPECT_TRUE(state->destroyed);
}

TEST_F(GPSPlayerViewTest, ToggleFullscreenTakesTheViewOutOfItsWindowAndBack) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* label = new QLabel("read-outs", &window);
    layout->addWidget(label);
    GPSPlayerView* view = makeView(&window).release();  // owned by the window from here on
    layout->addWidget(view, 1);
    window.resize(640, 480);
    window.show();
    QCoreApplication::processEvents();
    const QRect before = view->geometry();

    view->toggleFullscreen();
    QCoreApplication::processEvents();
    EXPECT_TRUE(view->isInFullScreenMode());
    EXPECT_TRUE(view->isWindow()) << "the view itself, not its window, fills the screen";
    EXPECT_TRUE(view->windowState() & Qt::WindowFullScreen);
    EXPECT_FALSE(window.windowState() & Qt::WindowFullScreen);
    EXPECT_EQ(layout->indexOf(view), -1);

    view->toggleFullscreen();
    QCoreApplication::processEvents();
    EXPECT_FALSE(view->isInFullScreenMode());
    EXPECT_FALSE(view->isWindow());
    EXPECT_EQ(view->parentWidget(), &window);
    EXPECT_EQ(layout->indexOf(view), 1);
    EXPECT_EQ(view->geometry(), before);
}

}  // namespace
