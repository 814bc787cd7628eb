#include "PngEncoder.h"

#include <QBuffer>
#include <QImage>

std::optional<std::vector<uint8_t>> PngEncoder::encode(const RgbImage& image) {
    if (image.width <= 0 || image.height <= 0 ||
        image.pixels.size() != image.rowBytes() * static_cast<std::size_t>(image.height)) {
        return std::nullopt;
    }
    // Wraps the pixels without copying; Qt's PNG writer does not interlace.
    const QImage frame(image.pixels.data(), image.width, image.height, static_cast<qsizetype>(image.rowBytes()),
                       QImage::Format_RGB888);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !frame.save(&buffer, "PNG")) return std::nullopt;
    return std::vector<uint8_t>(bytes.begin(), bytes.end());
}
