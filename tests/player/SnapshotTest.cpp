// Snapshots: the frame at the player's time, taken from the movie file, compared with the frame
// the ffmpeg program extracts at that time.

#include "FakeMediaPlayer.h"
#include "GPSPlayerView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const std::filesystem::path k720p = fixtureMovie("player_720p.mov");  // 1280x720, 30 fps, 20 s

bool runFfmpeg(const QStringList& arguments) {
    QProcess ffmpeg;
    ffmpeg.start("ffmpeg", QStringList{"-v", "error", "-y"} + arguments);
    return ffmpeg.waitForFinished(-1) && ffmpeg.exitCode() == 0;
}

// Mean absolute difference per colour channel, 0 to 255; infinity when the sizes differ.
double meanAbsoluteDifference(const QImage& a, const QImage& b) {
    if (a.size() != b.size() || a.isNull()) return INFINITY;
    const QImage x = a.convertToFormat(QImage::Format_RGB888);
    const QImage y = b.convertToFormat(QImage::Format_RGB888);
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int i = 0; i < x.width() * 3; ++i) {
            sum += std::abs(int(x.constScanLine(row)[i]) - int(y.constScanLine(row)[i]));
        }
    }
    return sum / (double(x.width()) * x.height() * 3);
}

class SnapshotTest : public ::testing::Test {
protected:
    SnapshotTest()
        : view_(
              factory_, [](QWidget* parent) { return std::make_unique<RecordingSurface>(parent); },
              std::make_unique<ManualUpdateTimer>(), settings_.utils()) {}

    std::shared_ptr<FakePlayerState> load(const std::filesystem::path& file, double seconds) {
        auto state = std::make_shared<FakePlayerState>();
        state->at(seconds);
        factory_->next = state;
        view_.engine().setMovie(file);
        return state;
    }
    QImage snapshotImage() {
        const auto png = view_.engine().snapshot();
        return png ? QImage::fromData(png->data(), static_cast<int>(png->size()), "PNG") : QImage();
    }
    // The frame the ffmpeg program extracts at seconds; a null image when it gives none.
    QImage ffmpegFrame(double seconds) {
        const QString out = dir_.filePath("ffmpeg.png");
        QFile::remove(out);
        runFfmpeg({"-ss", QString::number(seconds), "-i", QString::fromStdString(k720p.string()), "-frames:v", "1",
                   "-f", "image2", out});
        return QImage(out);
    }

    TempSettings settings_;
    std::shared_ptr<FakeMediaPlayerFactory> factory_ = std::make_shared<FakeMediaPlayerFactory>();
    GPSPlayerView view_;
    QTemporaryDir dir_;
};

TEST_F(SnapshotTest, FrameAtThePlayersTimeMatchesTheFfmpegProgram) {
    load(k720p, 12.5);
    const auto png = view_.engine().snapshot();
    ASSERT_TRUE(png.has_value());
    ASSERT_GT(png->size(), 28u);
    EXPECT_EQ((*png)[28], 0) << "the header's interlace method";
    const QImage shot = snapshotImage();
    ASSERT_EQ(shot.size(), QSize(1280, 720));

    const double difference = meanAbsoluteDifference(shot, ffmpegFrame(12.5));
    RecordProperty("mean_abs_difference", std::to_string(difference));
    std::printf("snapshot vs ffmpeg at 12.5 s: mean absolute difference %.3f\n", difference);
    EXPECT_LT(difference, 2.0);
    // The measure tells frames apart: a second earlier is another picture.
    EXPECT_GT(meanAbsoluteDifference(shot, ffmpegFrame(11.5)), difference + 1.0);

    // Outside the movie: its last frame (from 599/30 s) and its first.
    load(k720p, 25.0);
    EXPECT_LT(meanAbsoluteDifference(snapshotImage(), ffmpegFrame(19.96)), 2.0);
    load(k720p, -3.0);
    EXPECT_LT(meanAbsoluteDifference(snapshotImage(), ffmpegFrame(0.0)), 2.0);
}

TEST_F(SnapshotTest, OnlyAPausedOrPlayingPlayerGivesAFrame) {
    const auto state = load(k720p, 2.0);
    const struct {
        PlayerStatus status;
        bool hasItem, frame;
    } cases[] = {{PlayerStatus::Paused, true, true},
                 {PlayerStatus::Playing, true, true},
                 {PlayerStatus::Waiting, true, false},
                 {PlayerStatus::Paused, false, false}};
    for (const auto& c : cases) {
        state->status = c.status;
        state->hasItem = c.hasItem;
        EXPECT_EQ(view_.engine().snapshot().has_value(), c.frame)
            << "status " << static_cast<int>(c.status) << " item " << c.hasItem;
    }
    view_.engine().Stop();
    EXPECT_FALSE(view_.engine().snapshot().has_value());
}

TEST_F(SnapshotTest, FilesWithoutPicturesGiveNothing) {
    const QString junk = dir_.filePath("junk.mov");
    QFile file(junk);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    const QString sound = dir_.filePath("sound.m4a");
    ASSERT_TRUE(runFfmpeg({"-f", "lavfi", "-i", "sine=duration=1", sound}));

    for (const QString& path : {junk, sound, QString("/no/such/file.mov")}) {
        load(path.toStdString(), 0.5);
        EXPECT_FALSE(view_.engine().snapshot().has_value()) << path.toStdString();
    }
}

TEST_F(SnapshotTest, PictureKeepsItsStoredPixelSize) {
    // Stored 320x180 with pixels twice as wide as tall: shown at 640x180, saved at 320x180.
    const QString wide = dir_.filePath("wide.mov");
    ASSERT_TRUE(runFfmpeg({"-f", "lavfi", "-i", "testsrc=size=320x180:rate=10:duration=1", "-vf", "setsar=2",
                           "-pix_fmt", "yuv420p", wide}));
    load(wide.toStdString(), 0.5);
    EXPECT_EQ(snapshotImage().size(), QSize(320, 180));
}

}  // namespace
