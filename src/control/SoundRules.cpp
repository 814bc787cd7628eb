#include "SoundRules.h"

SoundRules::Switch SoundRules::forVolume(double sliderValue, bool engineMuted) {
    if (sliderValue == 0.0) return Switch::Mute;
    return engineMuted ? Switch::Unmute : Switch::None;
}

SoundRules::Outcome SoundRules::mute(bool engineMuted, bool hasSender) {
    Outcome outcome{.setEngineMuted = std::nullopt, .muteShown = true, .volumeSlider = std::nullopt};
    if (!engineMuted) outcome.setEngineMuted = true;
    if (hasSender) outcome.volumeSlider = 0.0;
    return outcome;
}

SoundRules::Outcome SoundRules::sound(bool engineMuted, bool hasSender, double lastVolume) {
    Outcome outcome{.setEngineMuted = std::nullopt, .muteShown = false, .volumeSlider = std::nullopt};
    if (engineMuted) outcome.setEngineMuted = false;
    if (hasSender) outcome.volumeSlider = lastVolume;
    return outcome;
}
