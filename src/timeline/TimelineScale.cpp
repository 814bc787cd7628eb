#include "TimelineScale.h"

#include <algorithm>
#include <cmath>

namespace {

// v clamped to [low, low + extent]; NaN goes to low. An empty or negative extent is the one point low.
double within(double v, double low, double extent) {
    if (!(extent > 0) || !(v > low)) return low;
    return std::min(v, low + extent);
}

}  // namespace

double TimelineScale::timeAtX(double x) const {
    if (!(totalSeconds > 0) || !(width > 0)) return 0;
    return within(totalSeconds * (x - left) / width, 0, totalSeconds);
}

double TimelineScale::xAtTime(double seconds) const {
    if (!(totalSeconds > 0) || !(width > 0)) return left;
    return within(left + width * seconds / totalSeconds, left, width);
}

double TimelineScale::yAtSpeed(double speed) const {
    const double scaleTop = maxSpeed > 0 ? maxSpeed : 1;
    // An unknown speed sits on the bottom line, with speed 0.
    const double share = std::isnan(speed) ? 0 : speed / scaleTop;
    return within(top + height * (1 - share), top, height);
}
