#pragma once
// How the playlist speaks of a trip: "Trip 2 · 2024-05-07 14:03 · 12:40 · 8.4 km".

#include "TripIndex.h"

#include <cstddef>
#include <cstdint>
#include <string>

// "m:ss" below an hour, "h:mm:ss" from there; negative and non-finite durations read "0:00".
std::string durationText(double seconds);
// "850 m" below a kilometre, "8.4 km" from there, "123 km" from 100 km.
std::string distanceText(double metres);
// "yyyy-MM-dd HH:mm" of seconds on the sample clock's scale (or of a creation time read in UTC).
std::string clockText(int64_t seconds);
// The heading of a trip, numbered from 1; an unknown trip says only its number.
std::string tripHeadingText(const TripInfo& trip, std::size_t number);
