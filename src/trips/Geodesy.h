#pragma once
// Distances and directions on the WGS 84 ellipsoid, for trip lengths and the car's heading.

#include "GPSData.h"

#include <optional>
#include <span>

struct GeoPoint {
    double latitude = 0;   // degrees, north positive
    double longitude = 0;  // degrees, east positive
};

// A sample's place when it has a usable one: finite, on the globe, and not exactly (0, 0), which
// is what cameras write before their first fix.
std::optional<GeoPoint> samplePlace(const GPSData& sample);

// The geodesic distance in metres between two points on the WGS 84 ellipsoid.
double geodesicDistanceMetres(GeoPoint from, GeoPoint to);

// The direction of travel from one point to the other, in degrees clockwise from north, [0, 360).
// Absent when the points coincide.
std::optional<double> initialBearingDegrees(GeoPoint from, GeoPoint to);

// The length of a track: the sum of the distances between consecutive samples that have a place
// (samples without one are passed over).
double trackDistanceMetres(std::span<const GPSData> track);
