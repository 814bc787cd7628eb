#include "MapMath.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace MapMath {

namespace {
constexpr double kEarthRadius = 6378137.0;  // the sphere of the tiles' projection, metres
constexpr double kDegrees = 180.0 / std::numbers::pi;
}  // namespace

double clampLatitude(double latitude) {
    return std::clamp(latitude, -kMaximumLatitude, kMaximumLatitude);
}

double clampZoom(double zoom, int minimumZoom, int maximumZoom) {
    if (std::isnan(zoom)) return minimumZoom;
    return std::clamp(zoom, double(minimumZoom), double(std::max(minimumZoom, maximumZoom)));
}

double worldSize(double zoom, int tileSize) {
    return tileSize * std::exp2(zoom);
}

WorldPoint project(Coordinate coordinate, double zoom, int tileSize) {
    const double size = worldSize(zoom, tileSize);
    const double phi = clampLatitude(coordinate.latitude) / kDegrees;
    const double x = (coordinate.longitude + 180.0) / 360.0;
    const double y = 0.5 - std::log(std::tan(std::numbers::pi / 4 + phi / 2)) / (2 * std::numbers::pi);
    return {x * size, y * size};
}

Coordinate unproject(WorldPoint point, double zoom, int tileSize) {
    const double size = worldSize(zoom, tileSize);
    const double x = point.x / size;
    const double y = std::clamp(point.y / size, 0.0, 1.0);
    const double latitude = std::atan(std::sinh(std::numbers::pi * (1 - 2 * y))) * kDegrees;
    return {clampLatitude(latitude), x * 360.0 - 180.0};
}

int wrapTileColumn(int x, int z) {
    const int count = 1 << std::clamp(z, 0, 30);
    const int wrapped = x % count;
    return wrapped < 0 ? wrapped + count : wrapped;
}

TileId tileContaining(Coordinate coordinate, int z) {
    z = std::clamp(z, 0, 30);
    const int count = 1 << z;
    double longitude = std::fmod(coordinate.longitude + 180.0, 360.0);
    if (longitude < 0) longitude += 360.0;
    if (std::isnan(longitude)) longitude = 0;
    const WorldPoint p = project({clampLatitude(coordinate.latitude), longitude - 180.0}, z, 1);
    const int x = std::clamp(int(std::floor(p.x)), 0, count - 1);
    const int y = std::isnan(p.y) ? 0 : std::clamp(int(std::floor(p.y)), 0, count - 1);
    return {z, x, y};
}

double zoomToFit(const CoordinateRegion& region, double widthPixels, double heightPixels, int tileSize,
                 int minimumZoom, int maximumZoom) {
    const Coordinate c = region.center;
    const double halfLatitude = std::abs(region.span.latitudeDelta) / 2;
    const WorldPoint north = project({c.latitude + halfLatitude, c.longitude}, 0, tileSize);
    const WorldPoint south = project({c.latitude - halfLatitude, c.longitude}, 0, tileSize);
    const double spanX = std::abs(region.span.longitudeDelta) / 360.0 * tileSize;
    const double spanY = south.y - north.y;
    if (std::isnan(spanX) || std::isnan(spanY) || std::isnan(widthPixels) || std::isnan(heightPixels) ||
        widthPixels <= 0 || heightPixels <= 0)
        return clampZoom(minimumZoom, minimumZoom, maximumZoom);
    // Each axis allows a zoom; the smaller one fits both. An empty axis allows any zoom.
    double zoom = INFINITY;
    if (spanX > 0) zoom = std::min(zoom, std::log2(widthPixels / spanX));
    if (spanY > 0) zoom = std::min(zoom, std::log2(heightPixels / spanY));
    return clampZoom(zoom, minimumZoom, maximumZoom);
}

double metersPerPixel(double latitude, double zoom, int tileSize) {
    const double circumference = 2 * std::numbers::pi * kEarthRadius;
    return circumference * std::cos(clampLatitude(latitude) / kDegrees) / worldSize(zoom, tileSize);
}

double roundScaleLength(double maxMeters) {
    if (!(maxMeters >= 1) || std::isinf(maxMeters)) return 0;
    const double power = std::pow(10.0, std::floor(std::log10(maxMeters)));
    for (const double step : {5.0, 2.0, 1.0})
        if (step * power <= maxMeters) return step * power;
    return power;
}

}  // namespace MapMath
