#pragma once
// Takes one picture out of a movie file with FFmpeg: the frame on screen at a playback time, at the
// frame's own pixel size (no scaling, the sample aspect ratio is not applied).

#include "MediaTime.h"
#include "RgbImage.h"

#include <filesystem>
#include <optional>

class FrameGrabber {
public:
    FrameGrabber() = delete;

    // The frame shown at time (counted from the movie's start): the last frame whose presentation
    // time is at or before it; the first frame for earlier times, the last for later ones.
    // Nothing when the file is not a movie (MovieFile.h), its video cannot be decoded or the time
    // is invalid.
    static std::optional<RgbImage> frameAt(const std::filesystem::path& movie, MediaTime time);
};
