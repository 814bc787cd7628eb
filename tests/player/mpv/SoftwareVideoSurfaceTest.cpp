// The software surface with a real player, drawn through Qt's offscreen platform. That the picture
// moves while playing, the window test under a virtual display checks for both renderers.

#include "MpvPlayerFactory.h"
#include "MpvTestSupport.h"
#include "SoftwareVideoSurface.h"

#include <QImage>

#include <gtest/gtest.h>

#include <memory>

namespace {

// Mean of red, green and blue over a rectangle, 0 to 255.
double brightness(const QImage& image, QRect area) {
    double sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            sum += qRed(pixel) + qGreen(pixel) + qBlue(pixel);
        }
    return sum / (3.0 * area.width() * area.height());
}

class SoftwareVideoSurfaceTest : public ::testing::Test {
protected:
    SoftwareVideoSurfaceTest() {
        // 480 wide for a 320x180 movie: 80 pixels of black on either side.
        surface_.resize(480, 180);
        surface_.show();
    }

    QImage picture() { return surface_.grab().toImage(); }
    double middle() { return brightness(picture(), QRect(180, 60, 120, 60)); }

    MpvPlayerFactory factory_;
    SoftwareVideoSurface surface_;
};

TEST_F(SoftwareVideoSurfaceTest, ShowsTheMovieLetterboxedAndRedrawsItAfterAResize) {
    auto player = factory_.playerWithURL(testClip("av.mp4"));
    ASSERT_NE(player, nullptr);
    surface_.setPlayer(player.get());
    EXPECT_EQ(middle(), 0.0);
    player->play();
    ASSERT_TRUE(runUntil([&] { return middle() > 30.0; }));
    const QImage first = picture();
    EXPECT_EQ(brightness(first, QRect(0, 0, 70, 180)), 0.0);
    EXPECT_EQ(brightness(first, QRect(410, 0, 70, 180)), 0.0);
    // Paused and resized: the same frame again, now letterboxed above and below.
    player->pause();
    surface_.resize(320, 360);
    runFor(5);
    const QImage resized = picture();
    ASSERT_EQ(resized.size(), QSize(320, 360));
    EXPECT_EQ(brightness(resized, QRect(0, 0, 320, 80)), 0.0);
    EXPECT_GT(brightness(resized, QRect(100, 150, 120, 60)), 30.0);
}

TEST_F(SoftwareVideoSurfaceTest, ShowsTheNextMovieAfterAChange) {
    // The engine's change: the old player paused, an empty one shown, the old one dropped, the
    // next one shown. The surface goes black and stays so, then shows the next movie's first frame.
    auto player = factory_.playerWithURL(testClip("av.mp4"));
    ASSERT_NE(player, nullptr);
    surface_.setPlayer(player.get());
    player->play();
    ASSERT_TRUE(runUntil([&] { return player->currentTime().seconds() > 1.5 && middle() > 30.0; }));
    player->pause();
    runFor(5);
    const QImage old = picture();
    auto empty = factory_.emptyPlayer();
    surface_.setPlayer(empty.get());
    player.reset();
    EXPECT_EQ(brightness(picture(), surface_.rect()), 0.0);
    runFor(10);
    EXPECT_EQ(brightness(picture(), surface_.rect()), 0.0) << "no late frame of the old movie";
    auto next = factory_.playerWithURL(testClip("video_only.mov"));
    ASSERT_NE(next, nullptr);
    surface_.setPlayer(next.get());
    EXPECT_EQ(brightness(picture(), surface_.rect()), 0.0);
    ASSERT_TRUE(runUntil([&] { return middle() > 30.0; }));
    EXPECT_NE(picture(), old);
}

}  // namespace
