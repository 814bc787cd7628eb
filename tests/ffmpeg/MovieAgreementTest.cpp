// Playlist validation, the player's probe and the snapshot's frame grabber on the same files: each
// says yes exactly when the others do.

#include "FFmpegVideoTrackProbe.h"
#include "FrameGrabber.h"
#include "MediaFixtures.h"
#include "MovieProbe.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

const std::filesystem::path media = MEDIA_FIXTURE_DIR;

TEST(MovieAgreement, ValidationPlayerAndSnapshotGiveTheSameAnswer) {
    const auto validation = defaultVideoTrackProbe();
    for (const auto& fixture : kMediaFixtures) {
        SCOPED_TRACE(fixture.name);
        const std::filesystem::path file = media / fixture.name;
        const bool valid = validation->hasVideoTrack(file);
        const std::optional<MovieInfo> info = probeMovie(file);
        const std::optional<RgbImage> frame = FrameGrabber::frameAt(file, MediaTime::make(5, 10));

        EXPECT_EQ(valid, fixture.movie);
        EXPECT_EQ(info.has_value(), valid);
        EXPECT_EQ(frame.has_value(), valid);
        if (info) {
            // Every movie fixture is one second of 64x64 picture without sound.
            EXPECT_TRUE(info->hasVideo);
            EXPECT_FALSE(info->hasAudio);
            EXPECT_EQ(info->width, 64);
            EXPECT_EQ(info->height, 64);
            EXPECT_NEAR(info->duration.seconds(), 1.0, 0.15);
        }
        if (frame) {
            EXPECT_EQ(frame->width, 64);
            EXPECT_EQ(frame->height, 64);
        }
    }
}

// None of them reaches a protocol or waits on a FIFO without a writer.
TEST(MovieAgreement, WhatIsNotALocalFileIsRefusedByAll) {
    QTemporaryDir directory;
    const std::filesystem::path root = directory.path().toStdString();
    ASSERT_EQ(::mkfifo((root / "fifo.mp4").c_str(), 0600), 0);
    const std::filesystem::path movie = media / "video.mp4";
    const std::filesystem::path cases[] = {
        root / "fifo.mp4",
        "/dev/zero",
        root,
        "concat:" + movie.string() + "|" + movie.string(),
        "file:" + movie.string(),
        "http://127.0.0.1:9/video.mp4",
    };
    const auto validation = defaultVideoTrackProbe();
    for (const auto& path : cases) {
        SCOPED_TRACE(path);
        EXPECT_FALSE(validation->hasVideoTrack(path));
        EXPECT_FALSE(probeMovie(path).has_value());
        EXPECT_FALSE(FrameGrabber::frameAt(path, MediaTime::make(0, 1)).has_value());
    }
}

}  // namespace
