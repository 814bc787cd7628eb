#include "MovieDemuxer.h"

#include <gtest/gtest.h>

namespace {

TEST(MovieDemuxer, TakesMovieContainersAndRefusesWhatOnlyLooksLikeVideo) {
    const struct {
        const char* name;
        bool movie;
    } cases[] = {
        // Containers and raw video streams.
        {"mov", true},
        {"matroska", true},
        {"avi", true},
        {"mpegts", true},
        {"mpeg", true},
        {"flv", true},
        {"asf", true},
        {"ogg", true},
        {"nut", true},
        {"mxf", true},
        {"h264", true},
        {"mjpeg", true},
        // Pictures, still or animated.
        {"image2", false},
        {"image2pipe", false},
        {"png_pipe", false},
        {"jpeg_pipe", false},
        {"webp_pipe", false},
        {"gif", false},
        {"apng", false},
        {"ico", false},
        // Text drawn as pictures.
        {"tty", false},
        {"bin", false},
        {"xbin", false},
        // Lists of other files or of network streams.
        {"concat", false},
        {"hls", false},
        {"dash", false},
        {"sdp", false},
        {"rtsp", false},
    };
    for (const auto& c : cases) {
        const AVInputFormat* format = av_find_input_format(c.name);
        if (format == nullptr) continue;  // not built into this FFmpeg
        EXPECT_EQ(isMovieDemuxer(*format), c.movie) << c.name;
    }
}

}  // namespace
