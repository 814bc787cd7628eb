#include "TimelineScale.h"

#include <algorithm>

double TimelineScale::timeAtX(double x) const {
    if (totalSeconds <= 0 || width <= 0) return 0;
    return std::clamp((x - left) / width * totalSeconds, 0.0, totalSeconds);
}

double TimelineScale::xAtTime(double seconds) const {
    if (totalSeconds <= 0 || width <= 0) return 0;
    return std::clamp(left + width * seconds / totalSeconds, left, left + width);
}

double TimelineScale::yAtSpeed(double speed) const {
    const double scaleTop = maxSpeed > 0 ? maxSpeed : 1.0;
    return std::clamp(top + height * (1.0 - speed / scaleTop), top, top + height);
}
