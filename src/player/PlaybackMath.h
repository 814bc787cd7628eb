#pragma once
// The arithmetic between fractions of a movie and its time: progress, the ten-second step and seek
// targets. A duration of 0 or not-a-number makes these quotients meaningless; we report 0 (and
// no seek target) instead of passing infinities or not-a-number on to sliders and the player.

#include "MediaTime.h"

#include <optional>

// Playback time over duration; 0 when that is not a finite number.
double playbackProgress(double seconds, double duration);

// The share of the movie that ten seconds make, narrowed to 32 bits; 0 when not finite.
float tenSecondShare(double duration);

// fraction x duration, truncated toward zero to whole hundredths of a second; a target before the
// start is the start (mpv would count a negative time from the end). Nothing when the product is
// not a number or does not fit 64 bits.
std::optional<MediaTime> seekTarget(double fraction, double duration);
