#pragma once
// Reads the frame on screen at a playback time out of a movie file, decoded but not converted.

#include "FFmpegHandles.h"
#include "MediaTime.h"

#include <filesystem>
#include <memory>
#include <optional>

// The opened movie and its decoder.
struct OpenedVideo;

class VideoFrameReader {
public:
    // Nothing when the file is not a movie (MovieFile.h) or its video cannot be decoded.
    static std::optional<VideoFrameReader> open(const std::filesystem::path& movie);

    VideoFrameReader(VideoFrameReader&&) noexcept;
    VideoFrameReader& operator=(VideoFrameReader&&) noexcept;
    ~VideoFrameReader();

    // The frame shown at time (counted from the movie's start): the last frame whose presentation
    // time is at or before it; the first frame for earlier times, the last for later ones. Null
    // when the time is invalid or nothing could be decoded.
    FramePtr frameAt(MediaTime time);

private:
    VideoFrameReader(std::filesystem::path movie, std::unique_ptr<OpenedVideo> video);

    std::filesystem::path movie_;
    std::unique_ptr<OpenedVideo> video_;
};
