// Snapshots: the frame at the player's time, taken from the movie file, compared with the frame
// the ffmpeg program extracts at that time. Files without pictures are the frame grabber's own test.

#include "FakeMediaPlayer.h"
#include "GPSPlayerView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"
#include "PngEncoder.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

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

QImage decoded(const std::optional<std::vector<uint8_t>>& png) {
    return png ? QImage::fromData(png->data(), static_cast<int>(png->size()), "PNG") : QImage();
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
    QImage snapshotImage() { return decoded(view_.engine().snapshot()); }
    // The frame the ffmpeg program extracts at seconds; a null image when it gives none.
    QImage ffmpegFrame(double seconds) {
        const QString out = dir_.filePath("ffmpeg.png");
        QFile::remove(out);
        runFfmpeg({"-ss", QString::number(seconds), "-i", QString::fromStdString(k720p.string()), "-frames:v", "1",
                   "-f", "image2", out});
        return QImage(out);
    }
    // Every frame of a movie as the ffmpeg program decodes it from the start (its seek in MPEG-TS
    // is not exact), to be read with frameNumber.
    QString decodeEveryFrame(const QString& movie) {
        const QString folder = dir_.filePath(QFileInfo(movie).fileName() + "-frames");
        QDir().mkpath(folder);
        runFfmpeg({"-i", movie, "-f", "image2", folder + "/%03d.png"});
        return folder;
    }
    static QImage frameNumber(const QString& folder, int number) {
        return QImage(QString("%1/%2.png").arg(folder).arg(number + 1, 3, 10, QChar('0')));
    }

    TempSettings settings_;
    std::shared_ptr<FakeMediaPlayerFactory> factory_ = std::make_shared<FakeMediaPlayerFactory>();
    GPSPlayerView view_;
    QTemporaryDir dir_;
};

TEST_F(SnapshotTest, FrameAtThePlayersTimeMatchesTheFfmpegProgram) {
    // A time just short of a frame, as the player rounds it (10/30 s read as 0.333 s), names that
    // frame; past the end gives the last frame (from 599/30 s).
    const struct { double at, ffmpegAt; } cases[] = {{12.5, 12.5}, {1.0 / 3.0, 0.333}, {25.0, 19.96}};
    for (const auto& c : cases) {
        load(k720p, c.at);
        const QImage shot = snapshotImage();
        ASSERT_EQ(shot.size(), QSize(1280, 720)) << c.at;
        EXPECT_LT(meanAbsoluteDifference(shot, ffmpegFrame(c.ffmpegAt)), 2.0) << c.at;
    }
}

// Containers with an index of keyframes, and MPEG-TS and MPEG-PS, which have none, so that a seek
// may land between two keyframes.
TEST_F(SnapshotTest, EveryContainerGivesTheFrameAtTheTime) {
    const QStringList h264{"-c:v", "libx264", "-preset", "ultrafast", "-g", "25", "-pix_fmt", "yuv420p"};
    const struct {
        const char* name;
        QStringList codec;
    } cases[] = {{"movie.mp4", h264},
                 {"movie.avi", h264},
                 {"movie.ts", h264},
                 {"movie.mpg", {"-c:v", "mpeg2video", "-g", "25", "-q:v", "2"}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const QString movie = dir_.filePath(c.name);
        // The hue turns by 36 degrees a frame, so that each frame is far from the one before.
        ASSERT_TRUE(runFfmpeg(QStringList{"-f", "lavfi", "-i", "testsrc2=size=320x180:rate=25:duration=6,hue=h=900*t"} +
                              c.codec + QStringList{movie}));
        const QString frames = decodeEveryFrame(movie);
        // At times of frames (one every 0.04 s), between two, and before the start.
        const struct {
            double at;
            int frame;
        } times[] = {{0.0, 0}, {-1.0, 0}, {2.52, 63}, {2.55, 63}, {5.2, 130}};
        for (const auto& t : times) {
            load(movie.toStdString(), t.at);
            const QImage shot = snapshotImage();
            ASSERT_FALSE(shot.isNull()) << t.at;
            EXPECT_LT(meanAbsoluteDifference(shot, frameNumber(frames, t.frame)), 2.0) << t.at;
            EXPECT_GT(meanAbsoluteDifference(shot, frameNumber(frames, t.frame + 1)), 10.0) << t.at;
        }
    }
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

TEST_F(SnapshotTest, PictureKeepsItsStoredPixelSize) {
    // Stored 320x180 with pixels twice as wide as tall: shown at 640x180, saved at 320x180.
    const QString wide = dir_.filePath("wide.mov");
    ASSERT_TRUE(runFfmpeg({"-f", "lavfi", "-i", "testsrc=size=320x180:rate=10:duration=1", "-vf", "setsar=2",
                           "-pix_fmt", "yuv420p", wide}));
    load(wide.toStdString(), 0.5);
    EXPECT_EQ(snapshotImage().size(), QSize(320, 180));
}

// A picture whose pixels do not match its size gives nothing.
TEST(PngEncoder, DecodesBackToTheSamePixels) {
    std::mt19937 random(7);
    for (const QSize size : {QSize(1, 1), QSize(333, 17)}) {
        RgbImage image{size.width(), size.height(), {}};
        image.pixels.resize(image.rowBytes() * static_cast<std::size_t>(image.height));
        // Half noise, half smooth ramps, so that both kinds of rows are compressed.
        for (std::size_t i = 0; i < image.pixels.size(); ++i) {
            image.pixels[i] = i % 2 ? static_cast<uint8_t>(random()) : static_cast<uint8_t>(i / 7);
        }
        const QImage back = decoded(PngEncoder::encode(image)).convertToFormat(QImage::Format_RGB888);
        ASSERT_EQ(back.size(), size);
        for (int y = 0; y < size.height(); ++y) {
            ASSERT_EQ(std::memcmp(back.constScanLine(y), image.pixels.data() + image.rowBytes() * y, image.rowBytes()),
                      0)
                << size.width() << "x" << size.height() << " row " << y;
        }
    }
    EXPECT_FALSE(PngEncoder::encode(RgbImage{}).has_value());
    EXPECT_FALSE(PngEncoder::encode(RgbImage{2, 2, std::vector<uint8_t>(11)}).has_value());
}

}  // namespace
