#pragma once
// The route driven so far in the current movie and the car marker, fed one GPS sample at a time.

#include "GPSData.h"
#include "MapTypes.h"
#include "RouteMap.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

class RouteTracker {
public:
    // A continuous stretch of the route is drawn as lines of at most this many points, each
    // starting where the one before it ends, so that extending the route costs the same at any length.
    static constexpr size_t kMaxLinePoints = 64;

    // Takes the sample reported at index in its track: index 0 clears the route; every third
    // sample (1, 4, 7, ...) becomes a route point; every sample with a usable position moves the
    // marker; indexes 1 and 2 zoom to 1000 m around the car, later ones only re-centre.
    void showCarLocation(const GPSData& sample, int64_t index, RouteMap& map);

    // The route points, in the order they were taken.
    const std::vector<GPSData>& gpsPositions() const { return positions_; }
    // The lines on the map, in route order: one per continuous stretch, or consecutive ones that
    // share their joining point where a stretch is longer than kMaxLinePoints.
    const std::vector<std::shared_ptr<const Polyline>>& polylineOverlays() const { return overlays_; }

private:
    void takeRoutePoint(const GPSData& sample, RouteMap& map);
    void append(const GPSData& sample, double timestamp, RouteMap& map);
    void cutBackBefore(double timestamp, RouteMap& map);
    void clearOverlays(RouteMap& map);

    std::vector<GPSData> positions_;
    std::vector<double> timestamps_;  // of positions_, computed once as each point is taken
    std::vector<std::shared_ptr<const Polyline>> overlays_;
};
