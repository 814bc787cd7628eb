#include "TripClock.h"

#include <algorithm>
#include <cmath>

TripClock::TripClock(std::vector<double> clipDurations) : durations_(std::move(clipDurations)) {
    starts_.reserve(durations_.size());
    for (double& duration : durations_) {
        if (!std::isfinite(duration) || duration < 0) duration = 0;
        starts_.push_back(total_);
        total_ += duration;
    }
}

TripClock::Place TripClock::placeAt(double tripSeconds) const {
    if (durations_.empty()) return {};
    if (!(total_ > 0)) return {0, 0};
    // Before the start (or NaN) is the start: the first clip with a length, as at any other joint.
    if (!(tripSeconds > 0)) tripSeconds = 0;
    if (tripSeconds >= total_) return {durations_.size() - 1, durations_.back()};
    // The last clip that starts at or before the time: a joint belongs to the later clip.
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), tripSeconds);
    const auto clip = static_cast<std::size_t>(after - starts_.begin()) - 1;
    return {clip, std::min(tripSeconds - starts_[clip], durations_[clip])};
}

double TripClock::tripSecondsAt(std::size_t clip, double clipSeconds) const {
    // NaN would pass std::clamp unchanged.
    return starts_[clip] + (clipSeconds > 0 ? std::min(clipSeconds, durations_[clip]) : 0.0);
}
