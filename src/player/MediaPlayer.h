#pragma once
// What the player engine needs of a media player. The real one plays through libmpv; tests script
// a fake one.

#include "MediaTime.h"

#include <filesystem>
#include <functional>
#include <memory>

// The player's time-control status.
enum class PlayerStatus : int64_t { Paused = 0, Waiting = 1, Playing = 2 };

class MediaPlayer {
public:
    virtual ~MediaPlayer() = default;

    // 0 to 1. Muting leaves the volume as it is.
    virtual float volume() const = 0;
    virtual void setVolume(float volume) = 0;
    virtual bool muted() const = 0;
    virtual void setMuted(bool muted) = 0;

    // 0 pauses, a negative rate plays backwards.
    virtual float rate() const = 0;
    virtual void setRate(float rate) = 0;
    // play starts at the normal rate.
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual PlayerStatus timeControlStatus() const = 0;

    // An empty player has no item: no picture, invalid times.
    virtual bool hasItem() const = 0;
    virtual MediaTime currentTime() const = 0;
    virtual MediaTime duration() const = 0;
    // Seeks with the player's default tolerance.
    virtual void seek(MediaTime time) = 0;
    // One frame forward or back, then paused; players that cannot step do nothing.
    virtual void stepFrame(bool forward) { (void)forward; }
    // Called when the movie comes to rest at its end, so that the next clip need not wait for a
    // poll; players that cannot tell never call it.
    virtual void setEndListener(std::function<void()> listener) { (void)listener; }
};

class MediaPlayerFactory {
public:
    virtual ~MediaPlayerFactory() = default;
    // A player for a movie file, not yet playing; null when the file cannot be played.
    virtual std::unique_ptr<MediaPlayer> playerWithURL(const std::filesystem::path& url) = 0;
    // A player without an item: shows no picture.
    virtual std::unique_ptr<MediaPlayer> emptyPlayer() = 0;
};
