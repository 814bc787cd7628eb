#pragma once
// The samples of a dash camera's NMEA text track, one a second of movie: a u16 length of what
// follows, four zero bytes, the camera clock as 14 digits YYYYMMDDhhmmss and two zero bytes, three
// int32 little-endian accelerometer values, then a $GPRMC and a $GPGGA of the second's start, each
// NUL-padded to 128 bytes. The checksums are off by one, as such cameras write them.

#include "TimedRoute.h"

#include <cstdint>
#include <vector>

inline constexpr std::size_t kNmeaTrackSentenceBytes = 128;

std::vector<uint8_t> makeNmeaTrackSample(const TimedRoute& route, int64_t second);
