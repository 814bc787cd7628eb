#pragma once
// NMEA kept inside the movie as some dash cameras do: a top-level "free" box holding a copyright
// "cprt", the camera clock at the first frame "sttm" (milliseconds, 64 bits) and "gps ": one
// "[camera clock ms]$GPRMC...\n" and "[ms]$GPGGA...\n" line a second from the first frame to the
// last second inclusive, NUL-ended. The first child is small, so that readers which look for
// these children at the start of a "free" box recognise it.

#include "TimedRoute.h"

#include <cstdint>
#include <string>
#include <vector>

std::string nmeaBoxText(const TimedRoute& route, int64_t seconds);
std::vector<uint8_t> nmeaFreeBox(const TimedRoute& route, int64_t seconds);
