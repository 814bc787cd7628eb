#include "PlaybackMath.h"

#include <cmath>
#include <cstdint>

double playbackProgress(double seconds, double duration) {
    const double progress = seconds / duration;
    return std::isfinite(progress) ? progress : 0.0;
}

float tenSecondShare(double duration) {
    const auto share = static_cast<float>(10.0 / duration);
    return std::isfinite(share) ? share : 0.0f;
}

std::optional<MediaTime> seekTarget(double fraction, double duration) {
    double hundredths = fraction * duration * 100.0;
    if (hundredths < 0) hundredths = 0;
    if (!(hundredths >= -0x1p63 && hundredths < 0x1p63)) return std::nullopt;
    return MediaTime::make(static_cast<int64_t>(hundredths), 100);
}
