#include "SidecarMatch.h"

#include <algorithm>
#include <cmath>

std::vector<GPSFix> matchFixesToClip(std::span<const GPSFix> fixes, ClipSpan clip) {
    std::vector<GPSFix> matched;
    if (!std::isfinite(clip.startClockSeconds) || !std::isfinite(clip.durationSeconds) || clip.durationSeconds < 0)
        return matched;
    const double end = clip.startClockSeconds + clip.durationSeconds;
    for (const GPSFix& fix : fixes) {
        if (!fix.clockSeconds || !(*fix.clockSeconds >= clip.startClockSeconds && *fix.clockSeconds <= end)) continue;
        GPSFix placed = fix;
        placed.movieSeconds = *fix.clockSeconds - clip.startClockSeconds;
        matched.push_back(std::move(placed));
    }
    // Loggers write in time order, but one restarted mid-clip or two merged logs need not.
    std::stable_sort(matched.begin(), matched.end(),
                     [](const GPSFix& a, const GPSFix& b) { return *a.movieSeconds < *b.movieSeconds; });
    return matched;
}
