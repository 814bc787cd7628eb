#pragma once
// A scripted media player: the test sets its status, times and item, and reads back every call the
// engine made. The state is shared, so it can still be read after the engine dropped the player.

#include "MediaPlayer.h"

#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

struct FakePlayerState {
    PlayerStatus status = PlayerStatus::Paused;
    bool hasItem = true;
    MediaTime currentTime = MediaTime::make(0, 1000);
    MediaTime duration = MediaTime::make(10000, 1000);
    float volume = 1.0f;
    bool muted = false;
    float rate = 0.0f;

    int plays = 0;
    int pauses = 0;
    std::vector<MediaTime> seeks;
    std::vector<bool> frameSteps;  // true: forward
    bool destroyed = false;

    void at(double seconds) { currentTime = MediaTime::make(static_cast<int64_t>(seconds * 1000), 1000); }
};

class FakeMediaPlayer final : public MediaPlayer {
public:
    explicit FakeMediaPlayer(std::shared_ptr<FakePlayerState> state) : s_(std::move(state)) {}
    ~FakeMediaPlayer() override { s_->destroyed = true; }

    float volume() const override { return s_->volume; }
    void setVolume(float volume) override { s_->volume = volume; }
    bool muted() const override { return s_->muted; }
    void setMuted(bool muted) override { s_->muted = muted; }
    float rate() const override { return s_->rate; }
    void setRate(float rate) override {
        s_->rate = rate;
        s_->status = rate != 0 ? PlayerStatus::Playing : PlayerStatus::Paused;
    }
    void play() override {
        ++s_->plays;
        s_->rate = 1.0f;
        s_->status = PlayerStatus::Playing;
    }
    void pause() override {
        ++s_->pauses;
        s_->rate = 0.0f;
        s_->status = PlayerStatus::Paused;
    }
    PlayerStatus timeControlStatus() const override { return s_->status; }
    bool hasItem() const override { return s_->hasItem; }
    MediaTime currentTime() const override { return s_->hasItem ? s_->currentTime : MediaTime{}; }
    MediaTime duration() const override { return s_->hasItem ? s_->duration : MediaTime{}; }
    void seek(MediaTime time) override { s_->seeks.push_back(time); }
    void stepFrame(bool forward) override { s_->frameSteps.push_back(forward); }

private:
    std::shared_ptr<FakePlayerState> s_;
};

// Hands out a player on the state the test prepared in next, or none when next is null or, as
// with a real player, when the file is not there.
class FakeMediaPlayerFactory final : public MediaPlayerFactory {
public:
    std::shared_ptr<FakePlayerState> next;
    std::vector<std::filesystem::path> requested;
    std::vector<std::shared_ptr<FakePlayerState>> emptyPlayers;

    std::unique_ptr<MediaPlayer> playerWithURL(const std::filesystem::path& url) override {
        requested.push_back(url);
        std::error_code error;
        if (!next || !std::filesystem::exists(url, error)) return nullptr;
        return std::make_unique<FakeMediaPlayer>(next);
    }
    std::unique_ptr<MediaPlayer> emptyPlayer() override {
        auto state = std::make_shared<FakePlayerState>();
        state->hasItem = false;
        emptyPlayers.push_back(state);
        return std::make_unique<FakeMediaPlayer>(state);
    }
};
