#pragma once
// A drive as a list of timed points, read from a small CSV file, and the car's state at any
// instant in between (linear interpolation).

#include <cstdint>
#include <filesystem>
#include <istream>
#include <string>
#include <vector>

struct RoutePoint {
    int64_t time = 0;  // camera clock, see toClockSeconds
    double latitude = 0;
    double longitude = 0;
    double speed = 0;  // in the unit the player shows as MPH
};

struct RouteSample {
    int64_t time = 0;
    double latitude = 0;
    double longitude = 0;
    double speed = 0;
    double heading = 0;  // degrees clockwise from north, of the segment being driven
};

class Route {
public:
    // Needs at least two points in strictly increasing time; throws SampleGenError otherwise.
    explicit Route(std::vector<RoutePoint> points);

    // CSV: "time,latitude,longitude,speed" rows; '#' starts a comment line; a header row is
    // optional. source names the input in error messages.
    static Route parse(std::istream& in, const std::string& source);
    static Route load(const std::filesystem::path& path);

    int64_t startTime() const { return points_.front().time; }
    int64_t endTime() const { return points_.back().time; }
    const std::vector<RoutePoint>& points() const { return points_; }

    // The state at an instant; before the first point and after the last it stays put there.
    RouteSample at(double time) const;

private:
    std::vector<RoutePoint> points_;
    std::vector<double> headings_;  // one per segment; a standing car keeps the last heading
};
