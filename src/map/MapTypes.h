#pragma once
// Places on the map and the shapes drawn over it, in degrees of latitude (north positive) and
// longitude (east positive), as the GPS samples carry them: no datum conversion.

#include <vector>

struct Coordinate {
    double latitude = 0;
    double longitude = 0;
    bool operator==(const Coordinate&) const = default;
};

struct CoordinateSpan {
    double latitudeDelta = 0;
    double longitudeDelta = 0;
    bool operator==(const CoordinateSpan&) const = default;
};

// A centre and the extent around it.
struct CoordinateRegion {
    Coordinate center;
    CoordinateSpan span;
    bool operator==(const CoordinateRegion&) const = default;
};

// A line through points in order; one point draws a dot.
struct Polyline {
    std::vector<Coordinate> points;
};
