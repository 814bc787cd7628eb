#pragma once
// The route as a camera's GPS receiver sees it while the movie runs: where the car is at a movie
// time, and the UTC instant of that time (the movie's creation instant plus the time), which GPMF,
// NMEA and GPX state and the loader matches against the movie header.

#include "Route.h"

#include <cstdint>

struct TimedRoute {
    const Route& route;
    int64_t clockStart = 0;  // camera clock at the first frame
    int64_t utcStart = 0;    // seconds since the Unix epoch at the first frame

    RouteSample at(double movieSeconds) const { return route.at(double(clockStart) + movieSeconds); }
    double utcAt(double movieSeconds) const { return double(utcStart) + movieSeconds; }
};

// The route's speed in metres a second for formats that store real units. The player shows a
// fix's speed in knots in its MPH read-out (and that times 1.852 as KM/H), so the route's number is
// taken as knots: every kind of sample then shows the same number as the camera blocks do.
inline constexpr double kMetresPerSecondPerRouteSpeed = 1852.0 / 3600.0;
