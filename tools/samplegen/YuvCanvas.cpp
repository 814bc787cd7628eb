#include "YuvCanvas.h"

#include <algorithm>
#include <cmath>
#include <cstring>

Yuv Yuv::fromRgb(int r, int g, int b) {
    const double rf = r / 255.0, gf = g / 255.0, bf = b / 255.0;
    const double luma = 0.2126 * rf + 0.7152 * gf + 0.0722 * bf;
    const double cb = (bf - luma) / 1.8556;
    const double cr = (rf - luma) / 1.5748;
    const auto level = [](double value) { return uint8_t(std::clamp(std::lround(value), 0L, 255L)); };
    return {level(16 + 219 * luma), level(128 + 224 * cb), level(128 + 224 * cr)};
}

YuvCanvas::YuvCanvas(int width, int height, uint8_t* const planes[3], const int strides[3])
    : width_(width),
      height_(height),
      planes_{planes[0], planes[1], planes[2]},
      strides_{strides[0], strides[1], strides[2]} {}

void YuvCanvas::fillRect(int x0, int y0, int x1, int y1, Yuv colour) {
    x0 = std::max(x0, 0);
    y0 = std::max(y0, 0);
    x1 = std::min(x1, width_);
    y1 = std::min(y1, height_);
    if (x0 >= x1 || y0 >= y1) return;
    for (int y = y0; y < y1; ++y)
        std::memset(planes_[0] + std::ptrdiff_t(y) * strides_[0] + x0, colour.y, std::size_t(x1 - x0));
    const int cx0 = x0 / 2, cx1 = (x1 + 1) / 2;
    for (int cy = y0 / 2; cy < (y1 + 1) / 2; ++cy) {
        std::memset(planes_[1] + std::ptrdiff_t(cy) * strides_[1] + cx0, colour.u, std::size_t(cx1 - cx0));
        std::memset(planes_[2] + std::ptrdiff_t(cy) * strides_[2] + cx0, colour.v, std::size_t(cx1 - cx0));
    }
}

void YuvCanvas::copyPlanes(const uint8_t* const planes[3], const int strides[3]) {
    for (int plane = 0; plane < 3; ++plane) {
        const int rows = plane == 0 ? height_ : (height_ + 1) / 2;
        const int bytes = plane == 0 ? width_ : (width_ + 1) / 2;
        for (int y = 0; y < rows; ++y)
            std::memcpy(planes_[plane] + std::ptrdiff_t(y) * strides_[plane],
                        planes[plane] + std::ptrdiff_t(y) * strides[plane], std::size_t(bytes));
    }
}

Yuv420Image::Yuv420Image(int width, int height)
    : width_(width),
      height_(height),
      luma_(std::size_t(width) * std::size_t(height)),
      cb_(std::size_t((width + 1) / 2) * std::size_t((height + 1) / 2)),
      cr_(cb_.size()) {}

YuvCanvas Yuv420Image::canvas() {
    uint8_t* const planes[3] = {luma_.data(), cb_.data(), cr_.data()};
    const int strides[3] = {width_, (width_ + 1) / 2, (width_ + 1) / 2};
    return YuvCanvas(width_, height_, planes, strides);
}

void Yuv420Image::copyTo(YuvCanvas& target) const {
    const uint8_t* const planes[3] = {luma_.data(), cb_.data(), cr_.data()};
    const int strides[3] = {width_, (width_ + 1) / 2, (width_ + 1) / 2};
    target.copyPlanes(planes, strides);
}
