#include "IconImage.h"

#include <QPainter>
#include <QSvgRenderer>

QImage iconImage(QSvgRenderer& renderer, int size) {
    if (!renderer.isValid() || size <= 0) return {};
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, size, size));
    return image;
}
