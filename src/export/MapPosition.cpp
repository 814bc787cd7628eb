#include "MapPosition.h"

#include <cmath>

bool hasMapPosition(const GPSData& sample) {
    // NaN fails both comparisons, so no separate finiteness test is needed.
    return std::fabs(sample.Latitude()) <= 90.0f && std::fabs(sample.Longitude()) <= 180.0f;
}
