#include "CarHeading.h"

std::optional<double> carHeading(const GPSData& sample, const HeadingTracker& tracker) {
    // The receiver's own course is truer than a bearing between two places; a standing car keeps
    // the tracker's, so that it does not spin while parked.
    if (const auto stated = sample.heading(); stated && sample.SpeedKMH() >= kStatedHeadingMinimumKMH)
        return double(*stated);
    return tracker.heading();
}
