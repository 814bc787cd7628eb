#pragma once
// The series as the lines the chart draws. An hour of samples on a 1,280-pixel chart is about three
// samples a pixel: each pixel column keeps only its lowest and highest speed, so the path stays
// as long as the chart is wide whatever the length of the trip.

#include "TimelineScale.h"
#include "TimelineSeries.h"

#include <vector>

struct ChartVertex {
    double x = 0;   // in the scale's units: device pixels when drawing
    float low = 0;  // the lowest and highest speed drawn at x; equal for a lone sample
    float high = 0;
    bool operator==(const ChartVertex&) const = default;
};
using ChartRun = std::vector<ChartVertex>;

// Each run of the series as vertices along x: one at each point's time and one where the last
// point's second ends, as the point is shown for that second. Vertices falling in the same whole
// unit of x merge into one at the unit's centre. Points with a time or speed that is not a finite
// number are left out; a run left with no point is dropped.
std::vector<ChartRun> chartRuns(const TimelineSeries& series, const TimelineScale& scale);
