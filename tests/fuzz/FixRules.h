#pragma once
// The rules every fix from a track reader keeps, whatever bytes it was read from, for the fuzzers.

#include "GPSFix.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

inline void requireFix(bool holds, const char* reader, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "%s broke a rule: %s\n", reader, rule);
    std::abort();
}

inline bool finiteIn(double value, double low, double high) { return std::isfinite(value) && value >= low && value <= high; }

inline void requireSoundValues(const GPSFix& fix, const char* reader) {
    requireFix(finiteIn(fix.latitude, -90, 90), reader, "latitude within +-90");
    requireFix(finiteIn(fix.longitude, -180, 180), reader, "longitude within +-180");
    // 1900-01-01 to 2200-01-01
    requireFix(!fix.clockSeconds || finiteIn(*fix.clockSeconds, -2208988800.0, 7258118400.0), reader, "clock in range");
    requireFix(!fix.speedMetresPerSecond || finiteIn(*fix.speedMetresPerSecond, 0, 1100), reader, "speed in range");
    requireFix(!fix.headingDegrees || (finiteIn(*fix.headingDegrees, 0, 360) && *fix.headingDegrees < 360), reader,
               "heading in [0, 360)");
    requireFix(!fix.altitudeMetres || finiteIn(*fix.altitudeMetres, -10000, 100000), reader, "altitude in range");
}

inline void requireSoundFix(const GPSFix& fix, const char* reader) {
    requireSoundValues(fix, reader);
    requireFix(!fix.movieSeconds, reader, "a track file's fix has no place in a movie before it is matched");
}

// A fix read from a movie's track, which places it in the movie.
inline void requireSoundMovieFix(const GPSFix& fix, const char* reader) {
    requireSoundValues(fix, reader);
    requireFix(fix.movieSeconds && std::isfinite(*fix.movieSeconds), reader, "a track's fix has its movie time");
}
