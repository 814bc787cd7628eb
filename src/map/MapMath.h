#pragma once
// Web Mercator as slippy-map tiles use it: "world pixels" run from (0, 0) at the north-west corner
// to (tileSize * 2^zoom) at the south-east one, for any fractional zoom.

#include "MapTypes.h"
#include "TileId.h"

namespace MapMath {

// Beyond this latitude the projection runs off to infinity; the square world stops here.
inline constexpr double kMaximumLatitude = 85.0511287798066;
inline constexpr int kMinimumZoom = 0;
inline constexpr int kMaximumZoom = 19;

struct WorldPoint {
    double x = 0;
    double y = 0;
};

double clampLatitude(double latitude);
double clampZoom(double zoom, int minimumZoom = kMinimumZoom, int maximumZoom = kMaximumZoom);

// Edge of the whole world in pixels at a zoom.
double worldSize(double zoom, int tileSize);

// Longitude is not wrapped: 190° lies east of the world's right edge, so a line crossing the
// antimeridian stays continuous.
WorldPoint project(Coordinate coordinate, double zoom, int tileSize);
Coordinate unproject(WorldPoint point, double zoom, int tileSize);

// The tile at integer zoom z holding the coordinate; longitude wrapped, latitude clamped.
TileId tileContaining(Coordinate coordinate, int z);

// Column numbers repeat around the globe: the tile that column x shows at zoom z.
int wrapTileColumn(int x, int z);

// The fractional zoom at which the region's span just fits into a widget of the given size in
// logical pixels, clamped to [minimumZoom, maximumZoom]. An empty span gives the maximum zoom;
// a span or size that is not a number gives the minimum.
double zoomToFit(const CoordinateRegion& region, double widthPixels, double heightPixels, int tileSize,
                 int minimumZoom = kMinimumZoom, int maximumZoom = kMaximumZoom);

// Ground metres covered by one pixel at a latitude and zoom (spherical earth, as the tiles are).
double metersPerPixel(double latitude, double zoom, int tileSize);

// The longest 1, 2 or 5 times a power of ten metres not above maxMeters; 0 when none fits.
double roundScaleLength(double maxMeters);

}  // namespace MapMath
