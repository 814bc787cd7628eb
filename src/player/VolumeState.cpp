#include "VolumeState.h"

void VolumeState::noteVolume(double volume) {
    if (volume > 0) lastVolume_ = volume;
}

std::optional<float> VolumeState::volumeOnMute(bool muted, float playerVolume) const {
    if (muted || playerVolume != 0.0f) return std::nullopt;
    return static_cast<float>(lastVolume_);
}
