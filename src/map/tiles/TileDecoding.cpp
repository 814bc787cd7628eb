#include "TileDecoding.h"

#include <QBuffer>
#include <QImageReader>

QImage decodeTile(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize claimed = reader.size();
    if (claimed.isValid() &&
        (claimed.width() > kLargestTileEdge || claimed.height() > kLargestTileEdge)) {
        return {};
    }
    QImage image = reader.read();
    if (image.isNull() || image.width() > kLargestTileEdge || image.height() > kLargestTileEdge) {
        return {};
    }
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}
