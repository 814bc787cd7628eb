#pragma once
// The position fixes of one GPMF payload: the bytes of one sample of an action camera's timed
// metadata track, about a second of telemetry.
//
// Layout read here (big-endian throughout):
//   item   = FourCC key[4], type char, struct size u8, repeat u16, data[struct size × repeat],
//            then padding to the next multiple of 4
//   type 0 = nested: the data is more items (DEVC holds a device's STRMs, a STRM one stream)
//   Within one nest, SCAL (divisors: one for every field, or one per field) and TYPE (the field
//   types of a '?' struct, such as "lllllllSS", "f[8]" for eight floats) apply to the items after
//   them; GPSU and GPSF describe the stream's GPS5 samples.
//   GPS5 'l' × 5 (20 bytes): latitude, longitude (°), altitude (m), 2D speed, 3D speed (m/s)
//   GPS9 '?' "lllllllSS" (32 bytes): GPS5's five, days since 2000-01-01, seconds since midnight,
//        dilution of precision, fix (0, 2 or 3)
//   GPSU 'U' 16 chars yymmddhhmmss.sss: UTC of the stream's first GPS5 sample
//   GPSF 'L': fix of the stream's GPS5 samples: 0 none, 2 two-dimensional, 3 three-dimensional
// All values are stored as integers and divided by the stream's SCAL.

#include "GPSFix.h"

#include <cstdint>
#include <span>
#include <vector>

struct GpmfFixes {
    std::vector<GPSFix> fixes;
    // False when an item claimed more bytes than the payload holds, or nests ran too deep: the
    // fixes are then those of the items that were there in full.
    bool intact = true;
};

class GpmfPayload {
public:
    GpmfPayload() = delete;

    // The payload's fixes in stored order. A payload holding GPS9 gives those alone (newer cameras
    // write GPS5 beside it, with less precise times). Fixes are spread evenly over
    // [startSeconds, startSeconds + durationSeconds): the payload's place in the movie.
    static GpmfFixes read(std::span<const uint8_t> payload, double startSeconds, double durationSeconds);
};
