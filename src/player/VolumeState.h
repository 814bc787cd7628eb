#pragma once
// The volume and mute rules of the player engine. The user's volume survives muting and a volume of
// 0, so that unmuting always brings the sound back at a level the user chose.

#include <optional>

class VolumeState {
public:
    // Restored until a volume above 0 is set: silence is never restored.
    static constexpr double kFallbackVolume = 0.6;

    bool isMuted() const { return isMuted_; }
    void setIsMuted(bool muted) { isMuted_ = muted; }
    // The last volume above 0 that was set; always above 0.
    double lastVolume() const { return lastVolume_; }

    // A new volume was chosen: remembered when it is above 0.
    void noteVolume(double volume);
    // The volume a player at playerVolume must get when the mute state becomes muted: lastVolume
    // when unmuting a player that was silenced with volume 0, else nothing changes.
    std::optional<float> volumeOnMute(bool muted, float playerVolume) const;

private:
    bool isMuted_ = false;
    double lastVolume_ = kFallbackVolume;
};
