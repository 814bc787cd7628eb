#pragma once
// Turns a decoded video frame into 8-bit RGB with the colours the screen shows (SnapshotColour.h).

#include "RgbImage.h"

extern "C" {
#include <libavutil/frame.h>
}

#include <optional>

class RgbConverter {
public:
    RgbConverter() = delete;
    // Nothing for a frame without a size or in a format swscale cannot read.
    static std::optional<RgbImage> convert(const AVFrame& frame);
};
