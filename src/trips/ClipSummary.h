#pragma once
// What trip grouping needs to know of one playlist entry.

#include <cstdint>
#include <optional>

struct ClipSummary {
    // sampleClockSeconds of the first and the last sample that have a date; absent without GPS.
    std::optional<int64_t> firstSampleSeconds;
    std::optional<int64_t> lastSampleSeconds;
    // The file's creation time, seconds since 1970 (any clock, as long as every clip uses the same).
    std::optional<int64_t> creationSeconds;
    // The movie's duration; 0 when unknown.
    double durationSeconds = 0;
};
