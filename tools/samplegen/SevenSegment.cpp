#include "SevenSegment.h"

#include <algorithm>

namespace {

// Bit 0 = a (top), then b, c, d, e, f clockwise, bit 6 = g (middle).
constexpr unsigned kDigitSegments[10] = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};
constexpr unsigned kMinusSegments = 0x40;

}  // namespace

SevenSegment::SevenSegment(int digitHeight)
    : height_(std::max(digitHeight, 8)), width_(height_ * 11 / 20), thickness_(std::max(2, height_ / 8)) {}

int SevenSegment::advance(char c) const {
    const int gap = thickness_ * 3 / 2;
    if (c == ':' || c == '.') return thickness_ + gap;
    if (c == ' ') return width_ / 2 + gap;
    return width_ + gap;
}

int SevenSegment::textWidth(std::string_view text) const {
    int width = 0;
    for (char c : text) width += advance(c);
    return width;
}

void SevenSegment::draw(YuvCanvas& canvas, int x, int y, std::string_view text, Yuv colour) const {
    const int t = thickness_;
    for (char c : text) {
        if (c >= '0' && c <= '9')
            drawDigit(canvas, x, y, kDigitSegments[c - '0'], colour);
        else if (c == '-')
            drawDigit(canvas, x, y, kMinusSegments, colour);
        else if (c == ':') {
            canvas.fillRect(x, y + height_ / 4, x + t, y + height_ / 4 + t, colour);
            canvas.fillRect(x, y + height_ * 3 / 4 - t, x + t, y + height_ * 3 / 4, colour);
        } else if (c == '.') {
            canvas.fillRect(x, y + height_ - t, x + t, y + height_, colour);
        }
        x += advance(c);
    }
}

void SevenSegment::drawDigit(YuvCanvas& canvas, int x, int y, unsigned segments, Yuv colour) const {
    const int t = thickness_, w = width_, h = height_, mid = y + h / 2;
    struct Rect {
        int x0, y0, x1, y1;
    };
    const Rect rects[7] = {
        {x + t, y, x + w - t, y + t},                      // a
        {x + w - t, y + t, x + w, mid},                    // b
        {x + w - t, mid, x + w, y + h - t},                // c
        {x + t, y + h - t, x + w - t, y + h},              // d
        {x, mid, x + t, y + h - t},                        // e
        {x, y + t, x + t, mid},                            // f
        {x + t, mid - t / 2, x + w - t, mid + t - t / 2},  // g
    };
    for (unsigned i = 0; i < 7; ++i)
        if (segments & (1u << i)) canvas.fillRect(rects[i].x0, rects[i].y0, rects[i].x1, rects[i].y1, colour);
}
