#pragma once
// Places the fixes of a sidecar file, which carry only the time of day they were taken, in the
// clip they belong to: the caller knows when the clip started (its name or its metadata) and how
// long it runs.

#include "GPSFix.h"

#include <span>
#include <vector>

struct ClipSpan {
    double startClockSeconds = 0;  // the clip's first frame, on the clock of GPSFix::clockSeconds
    double durationSeconds = 0;
};

// The fixes whose clockSeconds lie in [start, start + duration], with movieSeconds = clockSeconds -
// start, ordered by time (fixes of equal time keep their order). Fixes without clockSeconds, and
// every fix when the span is not finite or its duration negative, are left out; a sidecar that does
// not overlap the clip thus gives none.
std::vector<GPSFix> matchFixesToClip(std::span<const GPSFix> fixes, ClipSpan clip);
