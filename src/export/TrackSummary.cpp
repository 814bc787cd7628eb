#include "TrackSummary.h"

#include <cstdio>

std::string trackSummary(const GPSTrack& track, SpeedUnit unit) {
    char maximum[64];
    std::snprintf(maximum, sizeof maximum, "%05.02f", double(maximumIn(unit, track.maxSpeed)));
    const std::size_t count = track.samples.size();
    return std::to_string(count) + (count == 1 ? " sample" : " samples") + ", max speed " + maximum + " " +
           speedUnitName(unit);
}
