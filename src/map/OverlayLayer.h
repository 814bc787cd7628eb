#pragma once
// The map's lines drawn once into an image larger than the frame and reused while only the
// centre moves: following the car or dragging then costs a copy, not a stroke of every line.
// The underlay and the overlays share the one image, the underlay at the bottom.

#include "MapPainter.h"

#include <QImage>

#include <cstdint>
#include <vector>

class OverlayLayer {
public:
    // linesVersion changes whenever a line of either is added or removed.
    void paint(QPainter& painter, const MapPainter& frame, const FadedOverlays& underlay,
               const std::vector<StyledOverlay>& overlays, std::uint64_t linesVersion);
    bool wasRebuilt() const { return rebuilt_; }

private:
    bool covers(const MapPainter& frame, double devicePixelRatio, std::uint64_t linesVersion) const;
    void rebuild(const MapPainter& frame, double devicePixelRatio, const FadedOverlays& underlay,
                 const std::vector<StyledOverlay>& overlays, std::uint64_t linesVersion);

    QImage image_;
    double zoom_ = -1;
    double devicePixelRatio_ = 0;
    std::uint64_t linesVersion_ = 0;
    QPointF topLeftWorld_;  // at zoom_
    bool rebuilt_ = false;
};
