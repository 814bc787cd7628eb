#pragma once
// Where the chart sits in the timeline. The sides leave half the position slider's knob free so
// that a time falls at the same x on the chart and on the slider under it; the strip above the
// chart holds the highest speed's label.

#include "TimelineScale.h"

namespace TimelineLayout {

inline constexpr double kSideInset = 7;
inline constexpr double kChartTop = 15;
inline constexpr double kBottomInset = 5;

// The chart's scale in a timeline of the given size, in units of 1/unitsPerPixel logical pixels
// (device pixels when unitsPerPixel is the device pixel ratio).
inline TimelineScale chartScale(double width, double height, double totalSeconds, double maxSpeed,
                                double unitsPerPixel = 1.0) {
    TimelineScale scale;
    scale.left = kSideInset * unitsPerPixel;
    scale.width = (width - 2 * kSideInset) * unitsPerPixel;
    scale.top = kChartTop * unitsPerPixel;
    scale.height = (height - kChartTop - kBottomInset) * unitsPerPixel;
    scale.totalSeconds = totalSeconds;
    scale.maxSpeed = maxSpeed;
    return scale;
}

}  // namespace TimelineLayout
