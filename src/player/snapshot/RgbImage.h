#pragma once
// A picture as 8-bit red, green, blue triplets, rows top to bottom with no padding.

#include <cstddef>
#include <cstdint>
#include <vector>

struct RgbImage {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> pixels;  // width * height * 3 bytes

    std::size_t rowBytes() const { return static_cast<std::size_t>(width) * 3; }
};
