#pragma once
// What the player engine reports: new GPS samples, progress, playing status and the end of the
// movie. Every report is optional: a receiver overrides the ones it wants, the rest do nothing.
// Each passes the engine that sent it, so that the receiver can answer it (seek back, load next).

#include "GPSData.h"

#include <cstdint>

class GPSPlayerEngine;

class GPSPlayerViewDelegate {
public:
    virtual ~GPSPlayerViewDelegate() = default;

    // A tick while playing reached a new sample position inside the track.
    virtual void UpdatedGPSInfo(GPSPlayerEngine& /*engine*/, const GPSData& /*data*/, uint64_t /*index*/) {}
    // Every tick while playing: playback time over duration.
    virtual void UpdateDuration(GPSPlayerEngine& /*engine*/, double /*progress*/) {}
    // The playing status changed, and at the end of every Stop (with false).
    virtual void UpdatedPlayingStatus(GPSPlayerEngine& /*engine*/, bool /*playing*/) {}
    // A tick while not playing found the movie at its end.
    virtual void Completed(GPSPlayerEngine& /*engine*/) {}

protected:
    GPSPlayerViewDelegate() = default;
    GPSPlayerViewDelegate(const GPSPlayerViewDelegate&) = default;
    GPSPlayerViewDelegate& operator=(const GPSPlayerViewDelegate&) = default;
};
