#include "PolylineHitTest.h"

#include <algorithm>
#include <cmath>

namespace {

bool isUsable(QPointF p) { return std::isfinite(p.x()) && std::isfinite(p.y()); }

double distanceSquared(QPointF a, QPointF b) {
    const QPointF d = a - b;
    return d.x() * d.x() + d.y() * d.y();
}

}  // namespace

std::optional<std::size_t> nearestPointWithin(std::span<const QPointF> points, QPointF target, double radius) {
    if (!(radius >= 0) || !isUsable(target)) return {};
    std::optional<std::size_t> nearest;
    double best = radius * radius;
    const auto consider = [&](double distance, std::size_t index) {
        if (distance < best || (!nearest && distance == best)) {
            best = distance;
            nearest = index;
        }
    };
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF a = points[i];
        if (!isUsable(a)) continue;
        const bool segment = i + 1 < points.size() && isUsable(points[i + 1]);
        if (!segment) {
            consider(distanceSquared(target, a), i);
            continue;
        }
        const QPointF ab = points[i + 1] - a;
        const double length = ab.x() * ab.x() + ab.y() * ab.y();
        // Where along the segment the target's foot falls, from 0 at a to 1 at the next point.
        const double t = length > 0 ? std::clamp(QPointF::dotProduct(target - a, ab) / length, 0.0, 1.0) : 0.0;
        consider(distanceSquared(target, a + ab * t), t <= 0.5 ? i : i + 1);
    }
    return nearest;
}
