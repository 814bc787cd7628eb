#include "FrameBuffer.h"

namespace {

constexpr std::size_t kAlignment = 64;

std::size_t alignedUp(std::size_t bytes) { return (bytes + kAlignment - 1) / kAlignment * kAlignment; }

}  // namespace

void FrameBuffer::resize(QSize size) {
    if (size == image_.size()) return;
    image_ = QImage();
    pixels_.reset();
    stride_ = 0;
    if (size.isEmpty()) return;
    const std::size_t stride = alignedUp(static_cast<std::size_t>(size.width()) * 4);
    // mpv may write the padding after the last row too.
    void* pixels = std::aligned_alloc(kAlignment, stride * static_cast<std::size_t>(size.height()));
    if (!pixels) return;
    pixels_.reset(pixels);
    stride_ = stride;
    image_ = QImage(static_cast<uchar*>(pixels), size.width(), size.height(), static_cast<qsizetype>(stride),
                    QImage::Format_RGB32);
    image_.fill(Qt::black);
}
