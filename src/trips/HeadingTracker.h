#pragma once
// The car's heading, taken from consecutive samples. A standing car keeps the heading it had:
// GPS noise while parked would otherwise spin the marker.

#include "Geodesy.h"

#include <optional>

class HeadingTracker {
public:
    // Below this distance between samples the car counts as standing.
    static constexpr double kMinimumMoveMetres = 2.0;

    // Takes the next sample's place and returns the heading in degrees clockwise from north
    // (absent until the car first moves).
    std::optional<double> update(GeoPoint place);
    // A new track, or a jump in it (a seek): the next place is not compared with the last.
    void restart();
    std::optional<double> heading() const { return heading_; }

private:
    std::optional<GeoPoint> last_;
    std::optional<double> heading_;
};
