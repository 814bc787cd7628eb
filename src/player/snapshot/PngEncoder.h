#pragma once
// Encodes a picture as a PNG file's bytes, not interlaced.

#include "RgbImage.h"

#include <cstdint>
#include <optional>
#include <vector>

class PngEncoder {
public:
    PngEncoder() = delete;
    // Nothing for an empty picture or one whose pixels do not match its size.
    static std::optional<std::vector<uint8_t>> encode(const RgbImage& image);
};
