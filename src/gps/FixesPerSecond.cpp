#include "FixesPerSecond.h"

#include <cmath>
#include <cstdint>
#include <map>

std::vector<GPSFix> firstFixEachSecond(std::span<const GPSFix> fixes) {
    // Keyed by second, so that fixes out of order still give the earliest second's first fix.
    std::map<int64_t, const GPSFix*> chosen;
    for (const GPSFix& fix : fixes) {
        if (!fix.movieSeconds || fix.quality == GPSFix::Quality::NoFix || !std::isfinite(*fix.movieSeconds)) continue;
        // Far beyond any movie; keeps the conversion to a whole second defined.
        if (std::fabs(*fix.movieSeconds) > 1e15) continue;
        chosen.try_emplace(int64_t(std::floor(*fix.movieSeconds)), &fix);
    }
    std::vector<GPSFix> out;
    out.reserve(chosen.size());
    for (const auto& [second, fix] : chosen) out.push_back(*fix);
    return out;
}
