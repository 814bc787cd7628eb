#pragma once
// A player without an item: no core, no picture, invalid times. It only remembers volume and mute.

#include "MediaPlayer.h"

class EmptyMediaPlayer final : public MediaPlayer {
public:
    float volume() const override { return volume_; }
    void setVolume(float volume) override { volume_ = volume; }
    bool muted() const override { return muted_; }
    void setMuted(bool muted) override { muted_ = muted; }
    float rate() const override { return 0.0f; }
    void setRate(float) override {}
    void play() override {}
    void pause() override {}
    PlayerStatus timeControlStatus() const override { return PlayerStatus::Paused; }
    bool hasItem() const override { return false; }
    MediaTime currentTime() const override { return MediaTime::invalid(); }
    MediaTime duration() const override { return MediaTime::invalid(); }
    void seek(MediaTime) override {}

private:
    float volume_ = 1.0f;
    bool muted_ = false;
};
