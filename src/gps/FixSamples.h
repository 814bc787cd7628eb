#pragma once
// From the fixes of a format that records several a second (or on its own clock) to the player's
// track of one sample a second: the sample shown from second k of the movie is the fix of that
// second. Every fix stays available for the route and the exports.

#include "GPSData.h"
#include "GPSFix.h"

#include <span>
#include <vector>

// One sample per whole second of movie time from second 1 to the end (durationSeconds, or the last
// fix's second where the duration is unknown): the first fix with a position fix within
// [k, k + 1), else the first fix there at all. A second without any fix holds the one before it,
// marked as no fix ('V'), as does every second before the first fix. Fixes without a movie time
// are passed over. Nothing when no fix has one.
std::vector<GPSData> samplesFromFixes(std::span<const GPSFix> fixes, double durationSeconds);

// Every fix with a movie time as a sample, in movie time order: what the exports write where the
// player shows one a second.
std::vector<GPSData> everyFixAsSample(std::span<const GPSFix> fixes);
