#pragma once
// What the movie view reports: new GPS samples, progress, playing status and the end of the movie.
// Every report is optional: a receiver overrides the ones it wants, the rest do nothing.

#include "GPSData.h"

#include <cstdint>

class GPSPlayerView;

class GPSPlayerViewDelegate {
public:
    virtual ~GPSPlayerViewDelegate() = default;

    // A tick while playing reached a new sample position inside the track.
    virtual void UpdatedGPSInfo(GPSPlayerView& /*view*/, const GPSData& /*data*/, uint64_t /*index*/) {}
    // Every tick while playing: playback time over duration.
    virtual void UpdateDuration(GPSPlayerView& /*view*/, double /*progress*/) {}
    // The playing status changed, and at the end of every Stop (with false).
    virtual void UpdatedPlayingStatus(GPSPlayerView& /*view*/, bool /*playing*/) {}
    // A tick while not playing found the movie at its end.
    virtual void Completed(GPSPlayerView& /*view*/) {}

protected:
    GPSPlayerViewDelegate() = default;
    GPSPlayerViewDelegate(const GPSPlayerViewDelegate&) = default;
    GPSPlayerViewDelegate& operator=(const GPSPlayerViewDelegate&) = default;
};
