#pragma once
// An hour of driving as the timeline draws it, one sample a second: town, a motorway with the
// top speed, stops at lights, and two gaps in the GPS (a tunnel, a car park).

#include "TimelineSeries.h"

#include <algorithm>
#include <cmath>

inline TimelineSeries hourTrip() {
    constexpr int kSeconds = 3600;
    const auto inGap = [](int t) { return (t >= 1500 && t < 1590) || (t >= 2700 && t < 2940); };
    TimelineSeries series;
    series.totalSeconds = kSeconds;
    bool previousInGap = true;
    for (int t = 0; t < kSeconds; ++t) {
        if (inGap(t)) {
            previousInGap = true;
            continue;
        }
        if (previousInGap) series.runs.emplace_back();
        previousInGap = false;
        // Cruising speed by stretch, with a stop at a light every few minutes in town.
        const double cruise = t < 900 ? 45 : t < 2400 ? 110 + 12 * std::sin(t / 170.0) : 55;
        const double light =
            t < 900 || t >= 2940 ? std::clamp(std::abs(std::fmod(t, 240.0) - 120) / 25 - 0.4, 0.0, 1.0) : 1.0;
        const double wobble = 3 * std::sin(t / 7.0) + 2 * std::sin(t / 3.1);
        const float speed = float(std::max(0.0, cruise * light + wobble * light));
        series.runs.back().push_back({double(t), speed, 0, std::size_t(t + 1)});
        if (!series.highest || speed > series.highest->speed) series.highest = series.runs.back().back();
    }
    series.maxSpeed = series.highest->speed;
    return series;
}
