#pragma once
// Cuts the playlist into trips: runs of entries that follow each other in time.
//
// An entry continues the trip of the one before it when
//  - both have GPS: its first sample is at most kTripGapSeconds after the previous entry's last
//    sample, and not before the previous entry's first sample (a clock that jumps back starts a
//    new trip; a clip that overlaps the previous one continues it);
//  - either has no GPS: its creation time is at most the previous entry's duration plus
//    kTripGapSeconds after the previous entry's creation time, and not before it.
// Anything unknown (no creation time) starts a new trip.

#include "ClipSummary.h"

#include <cstddef>
#include <span>
#include <vector>

inline constexpr double kTripGapSeconds = 10.0;

bool continuesTrip(const ClipSummary& previous, const ClipSummary& next);

// A run of consecutive playlist entries [first, first + count).
struct TripSpan {
    std::size_t first = 0;
    std::size_t count = 0;
    bool operator==(const TripSpan&) const = default;
};

// The trips of a playlist in its order; every entry belongs to exactly one. Empty for no entries.
std::vector<TripSpan> groupTrips(std::span<const ClipSummary> clips);
