#pragma once
// Single GPS samples made in memory from a raw record, as the loader would make them.

#include "GPSData.h"

#include <cstdint>

struct RecordTime {
    uint32_t year = 2016, month = 12, day = 31, hour = 20, minute = 5, second = 9;
};

// A fixed-point record: coordinates in 1e-7 degree, speed in cm/s, a four-digit year.
GPSData fixedPointSample(int32_t latitude, int32_t longitude, uint32_t centimetresPerSecond, RecordTime time = {});
// A scaled record with raw floats, for values the fixed-point form cannot give (NaN, -0, huge).
GPSData scaledSample(float latitude, float longitude, float speed, char ns = 'N', char ew = 'E');
