#include "TrackCursor.h"

#include <limits>

int64_t TrackCursor::sampleIndex(double seconds) {
    // [-2^63, 2^63) converts without overflow; NaN fails both comparisons.
    if (!(seconds >= -0x1p63 && seconds < 0x1p63)) return std::numeric_limits<int64_t>::min();
    return static_cast<int64_t>(seconds);
}

std::optional<uint64_t> TrackCursor::advance(double seconds, uint64_t count) {
    const int64_t i = sampleIndex(seconds);
    // Read as unsigned, every negative position lies beyond any track.
    if (i == curIndex_ || static_cast<uint64_t>(i) >= count) return std::nullopt;
    curIndex_ = i;
    return static_cast<uint64_t>(i);
}
