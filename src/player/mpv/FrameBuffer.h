#pragma once
// Pixels for mpv's software renderer: 32-bit RGB rows aligned to 64 bytes, the alignment its fast
// conversion paths want, shown to Qt as a QImage without a copy.

#include <QImage>
#include <QSize>

#include <cstddef>
#include <cstdlib>
#include <memory>

class FrameBuffer {
public:
    // Keeps the pixels when the size is unchanged.
    void resize(QSize size);

    bool isEmpty() const { return image_.isNull(); }
    QSize size() const { return image_.size(); }
    void* pixels() { return pixels_.get(); }
    std::size_t stride() const { return stride_; }
    const QImage& image() const { return image_; }
    void setDevicePixelRatio(qreal ratio) { image_.setDevicePixelRatio(ratio); }

    // mpv's name for the layout: B, G, R, unused byte in memory, which Qt calls Format_RGB32.
    static constexpr const char* kMpvFormat = "bgr0";

private:
    struct Free {
        void operator()(void* pixels) const { std::free(pixels); }
    };
    std::unique_ptr<void, Free> pixels_;
    std::size_t stride_ = 0;
    QImage image_;
};
