#pragma once
// Thins a track of many fixes a second (GPMF stores 10 to 18) to one a second of movie time, for
// the read-outs that show one position a second; routes and exports keep every fix.

#include "GPSFix.h"

#include <span>
#include <vector>

// In each whole second of movie time, the first fix with a lock (quality other than NoFix), in
// order of seconds. Fixes without a movie time are left out; a second with no locked fix has none.
std::vector<GPSFix> firstFixEachSecond(std::span<const GPSFix> fixes);
