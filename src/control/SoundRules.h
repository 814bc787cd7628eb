#pragma once
// The volume slider and the two sound buttons: when moving the slider mutes or unmutes, and what
// the mute (btSound) and sound (btMute) buttons change.

#include <optional>

class SoundRules {
public:
    enum class Switch { None, Mute, Unmute };
    // OnVolumeChanged, before the engine takes the slider's value as its volume: exactly 0 mutes
    // (OnMute without a sender); any other value unmutes a muted engine (OnSound without a sender).
    static Switch forVolume(double sliderValue, bool engineMuted);

    struct Outcome {
        std::optional<bool> setEngineMuted;  // absent: the engine is already so
        bool muteShown;                      // btMute shown and btSound hidden, or the other way round
        std::optional<double> volumeSlider;  // absent: the slider stays where it is
    };
    // OnMute: mutes; a click (a sender) also puts the volume slider at 0.
    static Outcome mute(bool engineMuted, bool hasSender);
    // OnSound: unmutes; a click also puts the volume slider back at the engine's last volume.
    static Outcome sound(bool engineMuted, bool hasSender, double lastVolume);
};
