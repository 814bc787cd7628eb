#pragma once
// Text in seven-segment digits, the look of a camera's burned-in clock. Knows 0-9, ':', '-', '.'
// and the blank; anything else draws as a blank.

#include "YuvCanvas.h"

#include <string_view>

class SevenSegment {
public:
    explicit SevenSegment(int digitHeight);

    int textWidth(std::string_view text) const;
    // Top-left corner at (x, y).
    void draw(YuvCanvas& canvas, int x, int y, std::string_view text, Yuv colour) const;

    int height() const { return height_; }

private:
    int advance(char c) const;
    void drawDigit(YuvCanvas& canvas, int x, int y, unsigned segments, Yuv colour) const;

    int height_;
    int width_;      // of a digit
    int thickness_;  // of a segment
};
