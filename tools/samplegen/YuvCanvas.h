#pragma once
// Drawing flat-coloured shapes into a planar 4:2:0 picture (BT.709, limited range).

#include <cstdint>
#include <vector>

struct Yuv {
    uint8_t y = 16;
    uint8_t u = 128;
    uint8_t v = 128;

    // From 8-bit R'G'B' with the BT.709 matrix, scaled to limited range.
    static Yuv fromRgb(int r, int g, int b);
};

// A view of three planes owned elsewhere (an AVFrame, a Yuv420Image).
class YuvCanvas {
public:
    YuvCanvas(int width, int height, uint8_t* const planes[3], const int strides[3]);

    int width() const { return width_; }
    int height() const { return height_; }

    // Half-open rectangle [x0, x1) x [y0, y1), clipped to the picture. Chroma is painted for every
    // 2x2 block the rectangle touches.
    void fillRect(int x0, int y0, int x1, int y1, Yuv colour);
    // Copies a picture of the same size in.
    void copyPlanes(const uint8_t* const planes[3], const int strides[3]);

private:
    int width_;
    int height_;
    uint8_t* planes_[3];
    int strides_[3];
};

// A picture with its own storage.
class Yuv420Image {
public:
    Yuv420Image(int width, int height);
    YuvCanvas canvas();
    void copyTo(YuvCanvas& target) const;

private:
    int width_;
    int height_;
    std::vector<uint8_t> luma_, cb_, cr_;
};
