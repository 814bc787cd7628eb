#include "OverlayLayer.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
// The layer reaches this share of the frame's size beyond each of its edges.
constexpr double kMarginShare = 0.5;
}  // namespace

void OverlayLayer::paint(QPainter& painter, const MapPainter& frame, const FadedOverlays& underlay,
                         const std::vector<StyledOverlay>& overlays, std::uint64_t linesVersion) {
    rebuilt_ = false;
    if (overlays.empty() && underlay.lines.empty()) return;
    const double dpr = MapPainter::devicePixelRatio(painter);
    if (!covers(frame, dpr, linesVersion)) rebuild(frame, dpr, underlay, overlays, linesVersion);
    if (image_.isNull()) return;
    // Whole device pixels, as the tiles are placed, so that the lines do not shimmer against them.
    const QPointF offset = topLeftWorld_ - frame.topLeftWorld();
    painter.drawImage(QPointF(std::round(offset.x() * dpr) / dpr, std::round(offset.y() * dpr) / dpr), image_);
}

bool OverlayLayer::covers(const MapPainter& frame, double devicePixelRatio, std::uint64_t linesVersion) const {
    if (image_.isNull() || frame.zoom() != zoom_ || devicePixelRatio != devicePixelRatio_ ||
        linesVersion != linesVersion_)
        return false;
    const QRectF layer(topLeftWorld_, image_.deviceIndependentSize());
    return layer.contains(QRectF(frame.topLeftWorld(), frame.size()));
}

void OverlayLayer::rebuild(const MapPainter& frame, double devicePixelRatio, const FadedOverlays& underlay,
                           const std::vector<StyledOverlay>& overlays, std::uint64_t linesVersion) {
    const QSizeF size(std::ceil(frame.size().width() * (1 + 2 * kMarginShare)),
                      std::ceil(frame.size().height() * (1 + 2 * kMarginShare)));
    const QSize pixels(int(std::ceil(size.width() * devicePixelRatio)), int(std::ceil(size.height() * devicePixelRatio)));
    if (pixels.isEmpty() || pixels.width() > 16'384 || pixels.height() > 16'384) {
        image_ = QImage();
        return;
    }
    if (image_.size() != pixels) image_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    image_.setDevicePixelRatio(devicePixelRatio);
    image_.fill(Qt::transparent);
    // The layer is a frame of its own, centred on the same point.
    const MapPainter layer(frame.center(), frame.zoom(), size, frame.tileSize());
    QPainter painter(&image_);
    if (!underlay.lines.empty()) {
        // Alone in the image so far, so fading the whole image fades just the underlay.
        layer.paintOverlays(painter, underlay.lines);
        if (underlay.opacity < 1) {
            painter.save();
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            const float opacity = float(std::clamp(underlay.opacity, 0.0, 1.0));
            painter.fillRect(QRectF(QPointF(0, 0), size), QColor::fromRgbF(0, 0, 0, opacity));
            painter.restore();
        }
    }
    layer.paintOverlays(painter, overlays);
    zoom_ = frame.zoom();
    devicePixelRatio_ = devicePixelRatio;
    linesVersion_ = linesVersion;
    topLeftWorld_ = layer.topLeftWorld();
    rebuilt_ = true;
}
