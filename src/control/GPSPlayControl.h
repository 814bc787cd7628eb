#pragma once
// The numbers that name the transport commands: what a key press turns into, and what the window's
// controller dispatches.

#include <cstdint>

enum GPSPlayControl : uint64_t {
    GPSPlayControlNone = 0,
    GPSPlayControlPrev = 1,
    GPSPlayControlBackward = 2,
    GPSPlayControlPlayPause = 3,
    GPSPlayControlForward = 4,
    GPSPlayControlNext = 5,
    GPSPlayControlStop = 6,
    GPSPlayControlToggleFullscreen = 7,
    GPSPlayControlVolumeDown = 8,
    GPSPlayControlVolumeUp = 9,
    GPSPlayControlSpeedDown = 10,
    GPSPlayControlSpeedUp = 11,
    // Reviewing a paused picture frame by frame.
    GPSPlayControlStepFrameBackward = 12,
    GPSPlayControlStepFrameForward = 13,
    // The ends of the span on the timeline that Save Segment cuts out.
    GPSPlayControlMarkStart = 14,
    GPSPlayControlMarkEnd = 15,
};
