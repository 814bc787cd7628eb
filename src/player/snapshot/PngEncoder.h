#pragma once
// Encodes a picture as a PNG file's bytes, not interlaced, with optional text chunks.

#include "RgbImage.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// One key/value text chunk. Plain ASCII or Latin-1 goes in tEXt; text that is UTF-8 beyond ASCII
// goes in iTXt, where readers know it as UTF-8.
struct PngText {
    std::string keyword;  // 1 to 79 printable Latin-1 characters, single spaces inside only
    std::string text;
};

class PngEncoder {
public:
    PngEncoder() = delete;
    // Nothing for an empty picture or one whose pixels do not match its size. A text whose keyword
    // PNG does not allow is left out; a text ends at its first NUL byte.
    static std::optional<std::vector<uint8_t>> encode(const RgbImage& image, std::span<const PngText> texts = {});
};
