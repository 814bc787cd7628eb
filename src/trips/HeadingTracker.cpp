#include "HeadingTracker.h"

#include <cmath>

std::optional<double> HeadingTracker::update(GeoPoint place) {
    if (!std::isfinite(place.latitude) || !std::isfinite(place.longitude)) return heading_;
    if (!last_) {
        last_ = place;
        return heading_;
    }
    // Small steps are measured from where the car last moved, not from the previous sample, so
    // that creeping along adds up and turns the heading in the end.
    if (!(geodesicDistanceMetres(*last_, place) >= kMinimumMoveMetres)) return heading_;
    if (const std::optional<double> bearing = initialBearingDegrees(*last_, place)) heading_ = bearing;
    last_ = place;
    return heading_;
}

void HeadingTracker::restart() { last_.reset(); }
