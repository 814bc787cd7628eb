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

// Only the last stretch changes: it is redrawn one point longer, or a new one-point stretch starts.
void RouteTracker::append(const GPSData& sample, double timestamp, RouteMap& map) {
    const bool extendsLast = !timestamps_.empty() && continues(timestamps_.back(), timestamp);
    positions_.push_back(sample);
    timestamps_.push_back(timestamp);

    auto line = std::make_shared<Polyline>();
    if (extendsLast) {
        const std::shared_ptr<const Polyline> previous = overlays_.back();
        line->points.reserve(previous->points.size() + 1);
        line->points = previous->points;
        map.removeOverlays({previous});
        overlays_.pop_back();
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

    std::shared_ptr<Polyline> line;
    for (size_t i = 0; i < positions_.size(); ++i) {
        if (line && !continues(timestamps_[i - 1], timestamps_[i])) {
            overlays_.push_back(line);
            map.addOverlay(std::move(line));
        }
        if (!line) line = std::make_shared<Polyline>();
        line->points.push_back(coordinateOf(positions_[i]));
    }
    if (line) {
        overlays_.push_back(line);
        map.addOverlay(std::move(line));
    }
}

void RouteTracker::clearOverlays(RouteMap& map) {
    map.removeOverlays(overlays_);
    overlays_.clear();
}
