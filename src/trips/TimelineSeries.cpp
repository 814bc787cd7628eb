#include "TimelineSeries.h"

#include "SampleClock.h"
#include "TripClock.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

// An empty chart still has a scale to draw against.
constexpr float kMinimumScaleSpeed = 10.0f;

}  // namespace

std::optional<TimelinePoint> TimelineSeries::pointAt(double seconds) const {
    for (const std::vector<TimelinePoint>& run : runs) {
        if (run.empty() || seconds < run.front().seconds || seconds >= run.back().seconds + 1.0) continue;
        // The last point at or before the time.
        const auto after = std::upper_bound(run.begin(), run.end(), seconds,
                                            [](double t, const TimelinePoint& p) { return t < p.seconds; });
        const TimelinePoint& point = *(after - 1);
        if (seconds < point.seconds + 1.0) return point;
        return std::nullopt;
    }
    return std::nullopt;
}

TimelineSeries buildTimelineSeries(std::span<const TimelineClip> clips) {
    std::vector<double> durations;
    durations.reserve(clips.size());
    for (const TimelineClip& clip : clips) durations.push_back(clip.durationSeconds);
    const TripClock clock(std::move(durations));

    TimelineSeries series;
    series.totalSeconds = clock.totalSeconds();
    // The previous point's clip, position and recording time, to tell a gap from a continuation.
    std::optional<std::pair<std::size_t, std::size_t>> lastPlace;
    std::optional<int64_t> lastRecorded;
    for (std::size_t c = 0; c < clips.size(); ++c) {
        const std::span<const GPSData> track = clips[c].track;
        // Position 0 is the empty lead-in; record k is shown from second k of the clip.
        for (std::size_t k = 1; k < track.size(); ++k) {
            const double clipSeconds = double(k);
            // Past the clip's end (all of a clip of unknown length) the record has no place on the line.
            if (clipSeconds >= clock.durationOf(c)) break;
            const float speed = track[k].Speed();
            const TimelinePoint point{clock.tripSecondsAt(c, clipSeconds), std::isfinite(speed) ? speed : 0.0f, c, k};
            const std::optional<int64_t> recorded = sampleClockSeconds(track[k].data().rmcinfo);
            const bool datesAgree = recorded && lastRecorded &&
                                    std::llabs(*recorded - *lastRecorded) <= TimelineSeries::kMaxSampleGapSeconds;
            // Undated records join their neighbour in the same clip; across clips only dates tell.
            const bool nextInClip = lastPlace && lastPlace->first == c && lastPlace->second + 1 == k;
            // A stretch of the line without samples (a clip without GPS between) is a gap too,
            // whatever the dates say.
            const bool adjacentOnLine =
                lastPlace && point.seconds - series.runs.back().back().seconds <= TimelineSeries::kMaxSampleGapSeconds;
            const bool joins = adjacentOnLine && (datesAgree || (nextInClip && (!recorded || !lastRecorded)));
            if (!joins) series.runs.emplace_back();
            lastPlace = std::pair{c, k};
            lastRecorded = recorded;
            series.runs.back().push_back(point);
            if (!series.highest || point.speed > series.highest->speed) series.highest = point;
        }
    }
    series.maxSpeed = std::max(kMinimumScaleSpeed, series.highest ? series.highest->speed : 0.0f);
    return series;
}
