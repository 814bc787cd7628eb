#include "RouteTracker.h"

#include "MapGeometry.h"
#include "RouteTimestamp.h"

#include <cmath>

namespace {

constexpr double kFramingMeters = 1000.0;
// Points further apart in recording time than this belong to separate stretches of the route.
constexpr double kMaxGapSeconds = 8.0;

Coordinate coordinateOf(const GPSData& sample) { return {double(sample.Latitude()), double(sample.Longitude())}; }

// Whether the region lies around the coordinate; fails for NaN and for what the region
// arithmetic cannot frame.
bool isInside(Coordinate c, const CoordinateRegion& r) {
    return c.longitude <= r.center.longitude + 0.5 * r.span.longitudeDelta &&
           r.center.latitude - 0.5 * r.span.latitudeDelta <= c.latitude &&
           c.latitude <= r.center.latitude + 0.5 * r.span.latitudeDelta &&
           r.center.longitude - 0.5 * r.span.longitudeDelta <= c.longitude;
}

bool continues(double previous, double next) { return std::fabs(next - previous) <= kMaxGapSeconds; }

}  // namespace

void RouteTracker::showCarLocation(const GPSData& sample, int64_t index, RouteMap& map) {
    if (index == 0) {
        clearOverlays(map);
        positions_.clear();
        timestamps_.clear();
        return;
    }

    const Coordinate position = coordinateOf(sample);
    const CoordinateRegion region = regionMakeWithDistance(position, kFramingMeters, kFramingMeters);
    if (!isInside(position, region)) return;

    if (index % 3 == 1) takeRoutePoint(sample, map);

    map.moveMarker(position, "Car");
    if (index <= 2)
        map.setRegion(region, true);
    else
        map.setCenterCoordinate(position);
}

void RouteTracker::takeRoutePoint(const GPSData& sample, RouteMap& map) {
    const RMCINFO& fields = sample.data().rmcinfo;
    const double timestamp = routeTimestamp(fields);
    if (positions_.empty()) {
        append(sample, timestamp, map);
        return;
    }
    map.logIntake(routeDateText(fields), routeDateText(positions_.back().data().rmcinfo));
    if (timestamps_.back() <= timestamp)
        append(sample, timestamp, map);
    else
        cutBackBefore(timestamp, map);
}

// Only the end of the route changes: its last line is redrawn one point longer, or a new line
// starts (at the last point when the stretch goes on, so the route shows no gap).
void RouteTracker::append(const GPSData& sample, double timestamp, RouteMap& map) {
    const bool joins = !timestamps_.empty() && continues(timestamps_.back(), timestamp);
    positions_.push_back(sample);
    timestamps_.push_back(timestamp);

    auto line = std::make_shared<Polyline>();
    if (joins) {
        const std::shared_ptr<const Polyline> previous = overlays_.back();
        if (previous->points.size() < kMaxLinePoints) {
            line->points.reserve(previous->points.size() + 1);
            line->points = previous->points;
            map.removeOverlays({previous});
            overlays_.pop_back();
        } else {
            line->points.push_back(previous->points.back());
        }
    }
    line->points.push_back(coordinateOf(sample));
    overlays_.push_back(line);
    map.addOverlay(std::move(line));
}

// Playback went back: keep the points recorded strictly before the new sample and redraw them all.
void RouteTracker::cutBackBefore(double timestamp, RouteMap& map) {
    std::vector<GPSData> keptPositions;
    std::vector<double> keptTimestamps;
    for (size_t i = 0; i < positions_.size(); ++i) {
        if (timestamps_[i] < timestamp) {
            keptPositions.push_back(positions_[i]);
            keptTimestamps.push_back(timestamps_[i]);
        }
    }
    clearOverlays(map);
    positions_.swap(keptPositions);
    timestamps_.swap(keptTimestamps);

    std::vector<std::shared_ptr<Polyline>> lines;
    for (size_t i = 0; i < positions_.size(); ++i) {
        const Coordinate point = coordinateOf(positions_[i]);
        const bool joins = i > 0 && continues(timestamps_[i - 1], timestamps_[i]);
        if (joins && lines.back()->points.size() < kMaxLinePoints) {
            lines.back()->points.push_back(point);
            continue;
        }
        auto line = std::make_shared<Polyline>();
        if (joins) line->points.push_back(lines.back()->points.back());
        line->points.push_back(point);
        lines.push_back(std::move(line));
    }
    for (auto& line : lines) {
        overlays_.push_back(line);
        map.addOverlay(std::move(line));
    }
}

void RouteTracker::clearOverlays(RouteMap& map) {
    map.removeOverlays(overlays_);
    overlays_.clear();
}
