#include "TrackSummary.h"

#include <algorithm>
#include <cstdio>

namespace {

std::string summaryText(std::size_t count, float storedMaximum, SpeedUnit unit) {
    char maximum[64];
    std::snprintf(maximum, sizeof maximum, "%05.02f", double(maximumIn(unit, storedMaximum)));
    return std::to_string(count) + (count == 1 ? " sample" : " samples") + ", max speed " + maximum + " " +
           speedUnitName(unit);
}

}  // namespace

std::string trackSummary(const GPSTrack& track, SpeedUnit unit) {
    return summaryText(track.samples.size(), track.maxSpeed, unit);
}

std::string trackSummary(std::span<const NamedTrack> segments, SpeedUnit unit) {
    std::size_t count = 0;
    float maximum = 0;
    for (const NamedTrack& segment : segments) {
        count += segment.track.samples.size();
        maximum = std::max(maximum, segment.track.maxSpeed);
    }
    return summaryText(count, maximum, unit);
}
