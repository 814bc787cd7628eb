#include "FixSamples.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// A track never holds more seconds than this (72 hours), as the block readers' tracks.
constexpr double kMaxSeconds = double(1 << 18);

}  // namespace

std::vector<GPSData> samplesFromFixes(std::span<const GPSFix> fixes, double durationSeconds) {
    double lastSecond = 0;
    bool anyTimed = false;
    for (const GPSFix& fix : fixes) {
        if (!fix.movieSeconds || !std::isfinite(*fix.movieSeconds) || *fix.movieSeconds < 0) continue;
        anyTimed = true;
        lastSecond = std::max(lastSecond, std::floor(*fix.movieSeconds));
    }
    if (!anyTimed) return {};
    const double seconds = std::isfinite(durationSeconds) && durationSeconds > 0 ? std::floor(durationSeconds) : lastSecond;
    const auto count = static_cast<std::size_t>(std::clamp(seconds, 0.0, kMaxSeconds));

    // The chosen fix of each second: a real fix first, any fix else.
    std::vector<const GPSFix*> chosen(count + 1, nullptr);
    for (const GPSFix& fix : fixes) {
        if (!fix.movieSeconds || !std::isfinite(*fix.movieSeconds) || *fix.movieSeconds < 1) continue;
        const double second = std::floor(*fix.movieSeconds);
        if (second > double(count)) continue;
        const GPSFix*& slot = chosen[static_cast<std::size_t>(second)];
        const bool better = slot == nullptr ||
                            (slot->quality == GPSFix::Quality::NoFix && fix.quality != GPSFix::Quality::NoFix);
        if (better) slot = &fix;
    }
    std::vector<GPSData> samples;
    samples.reserve(count);
    std::optional<GPSData> last;
    for (std::size_t k = 1; k <= count; ++k) {
        if (chosen[k] != nullptr) {
            last = GPSData::fromFix(*chosen[k]);
            samples.push_back(*last);
        } else if (last) {
            samples.push_back(last->heldOver());
        } else {
            samples.emplace_back();  // filled below with the first fix, held back
        }
    }
    // Seconds before the first fix hold it, flagged: the car was there, the camera not yet sure.
    const auto first = std::find_if(chosen.begin(), chosen.end(), [](const GPSFix* fix) { return fix != nullptr; });
    if (first != chosen.end()) {
        const GPSData held = GPSData::fromFix(**first).heldOver();
        for (std::size_t k = 1; k < static_cast<std::size_t>(first - chosen.begin()); ++k) samples[k - 1] = held;
    }
    return samples;
}

std::vector<GPSData> everyFixAsSample(std::span<const GPSFix> fixes) {
    std::vector<const GPSFix*> timed;
    for (const GPSFix& fix : fixes)
        if (fix.movieSeconds && std::isfinite(*fix.movieSeconds)) timed.push_back(&fix);
    std::stable_sort(timed.begin(), timed.end(),
                     [](const GPSFix* a, const GPSFix* b) { return *a->movieSeconds < *b->movieSeconds; });
    std::vector<GPSData> samples;
    samples.reserve(timed.size());
    for (const GPSFix* fix : timed) samples.push_back(GPSData::fromFix(*fix));
    return samples;
}
