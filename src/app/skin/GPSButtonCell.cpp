#include "GPSButtonCell.h"

#include <QImage>
#include <QPainter>

void GPSButtonCell::mouseEntered(bool statusIsModal) {
    if (statusIsModal) return;
    isOVer_ = true;
}

void GPSButtonCell::mouseExited() {
    isOVer_ = false;
    highlighted_ = false;
}

const SvgImage* GPSButtonCell::chosenImage() const {
    const std::optional<SvgImage>& chosen = highlighted_ ? downImage_ : isOVer_ ? overImage_ : image_;
    if (chosen) return &*chosen;
    return image_ ? &*image_ : nullptr;
}

bool GPSButtonCell::draw(QPainter& painter, const QRectF& frame, bool enabled) const {
    const SvgImage* picture = chosenImage();
    if (!picture) return false;
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const double alpha = opacity(enabled);
    if (alpha >= 1.0) {
        picture->draw(painter, frame);
    } else {
        // The picture fades as a whole: drawn part by part at half opacity, a glyph's dark edge
        // would show through its white fill. The layer has the device's resolution, so it stays sharp.
        const QRect pixels = painter.deviceTransform().mapRect(frame).toAlignedRect();
        if (!pixels.isEmpty()) {
            QImage layer(pixels.size(), QImage::Format_ARGB32_Premultiplied);
            layer.fill(Qt::transparent);
            QPainter layerPainter(&layer);
            layerPainter.setRenderHints(painter.renderHints());
            picture->draw(layerPainter, QRectF(QPointF(), QSizeF(pixels.size())));
            layerPainter.end();
            painter.setOpacity(painter.opacity() * alpha);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(frame, layer);
        }
    }
    painter.restore();
    return true;
}
