#pragma once
// What the timeline draws: the speed over time of a clip or of a whole trip, with the gaps in the
// GPS left as gaps and the highest speed marked. Built once per clip or trip; drawing reads it.

#include "GPSData.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

struct TimelinePoint {
    double seconds = 0;  // on the clip's or trip's time line
    float speed = 0;     // in the unit chosen when the series was built
    // Where the sample in the clip list was: for tooltips and seeking to the sample.
    std::size_t clip = 0;
    std::size_t sampleIndex = 0;  // position in the player's track of that clip (1 = first record)
};

struct TimelineSeries {
    double totalSeconds = 0;
    // Continuous runs of points; a gap in the GPS (no samples, or samples more than
    // kMaxSampleGapSeconds apart in recording time) separates two runs.
    std::vector<std::vector<TimelinePoint>> runs;
    // The highest speed and where it was; absent without points.
    std::optional<TimelinePoint> highest;
    float maxSpeed = 0;  // the top of the scale: highest speed, at least a floor for an empty chart

    static constexpr double kMaxSampleGapSeconds = 2.0;

    bool empty() const { return runs.empty(); }
    // The point shown at a time: the last point at or before it within its second, absent in a gap.
    std::optional<TimelinePoint> pointAt(double seconds) const;
};

// One clip of the series: its player's track (position 0 is the empty lead-in, position k the
// record shown from second k) and its duration.
struct TimelineClip {
    std::span<const GPSData> track;
    double durationSeconds = 0;
};

// Lays the clips end to end (as TripClock does) and takes each record's speed through
// GPSData::Speed(), so the series is in the unit set in the settings when it is built.
TimelineSeries buildTimelineSeries(std::span<const TimelineClip> clips);
