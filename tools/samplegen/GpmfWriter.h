#pragma once
// The GPMF payloads of an action camera's timed metadata track: one a second of movie, each a
// DEVC holding one STRM of GPS5 fixes (latitude, longitude, altitude, 2D and 3D speed, scaled by
// SCAL 1e7, 1e7, 1000, 1000, 100), with GPSF 3 (a 3D fix) and GPSU, the UTC of the first fix.
// GPS5 is the stream's last item, as the cameras write it: readers apply SCAL to that one.

#include "TimedRoute.h"

#include <cstdint>
#include <vector>

// Fixes a payload holds, evenly spread over its second: fix i is the route at second + i / 10.
inline constexpr int kGpmfFixesPerSecond = 10;

std::vector<uint8_t> makeGpmfPayload(const TimedRoute& route, int64_t second);
