#include "TripGrouping.h"

#include <cmath>

namespace {

// later - earlier, absent when it does not fit: times that far apart are never one trip.
std::optional<int64_t> secondsBetween(int64_t earlier, int64_t later) {
    int64_t difference = 0;
    if (__builtin_sub_overflow(later, earlier, &difference)) return std::nullopt;
    return difference;
}

bool hasGPS(const ClipSummary& clip) { return clip.firstSampleSeconds && clip.lastSampleSeconds; }

bool samplesFollow(const ClipSummary& previous, const ClipSummary& next) {
    if (*next.firstSampleSeconds < *previous.firstSampleSeconds) return false;
    const std::optional<int64_t> gap = secondsBetween(*previous.lastSampleSeconds, *next.firstSampleSeconds);
    return gap && double(*gap) <= kTripGapSeconds;
}

bool creationTimesFollow(const ClipSummary& previous, const ClipSummary& next) {
    if (!previous.creationSeconds || !next.creationSeconds) return false;
    const std::optional<int64_t> gap = secondsBetween(*previous.creationSeconds, *next.creationSeconds);
    // An unusable duration counts as unknown (0), so only the gap itself can join the clips.
    const double duration =
        std::isfinite(previous.durationSeconds) && previous.durationSeconds > 0 ? previous.durationSeconds : 0;
    return gap && *gap >= 0 && double(*gap) <= duration + kTripGapSeconds;
}

}  // namespace

bool continuesTrip(const ClipSummary& previous, const ClipSummary& next) {
    if (hasGPS(previous) && hasGPS(next)) return samplesFollow(previous, next);
    return creationTimesFollow(previous, next);
}

std::vector<TripSpan> groupTrips(std::span<const ClipSummary> clips) {
    std::vector<TripSpan> trips;
    for (std::size_t i = 0; i < clips.size(); ++i) {
        if (trips.empty() || !continuesTrip(clips[i - 1], clips[i])) trips.push_back({i, 0});
        ++trips.back().count;
    }
    return trips;
}
