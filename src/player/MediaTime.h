#pragma once
// A point in a movie as a count of units and units per second; a zero time scale is invalid.

#include <cmath>
#include <cstdint>
#include <limits>

struct MediaTime {
    int64_t value = 0;
    int32_t timescale = 0;

    static MediaTime make(int64_t value, int32_t timescale) { return {value, timescale}; }
    static MediaTime invalid() { return {}; }

    bool isValid() const { return timescale > 0; }
    // Seconds as a double; an invalid time gives not-a-number.
    double seconds() const {
        return isValid() ? static_cast<double>(value) / timescale : std::numeric_limits<double>::quiet_NaN();
    }
    friend bool operator==(const MediaTime&, const MediaTime&) = default;
};
