#pragma once
// Which way the car's marker points: the direction of travel the format states, where it does and
// the car is moving, else the one the tracker worked out from the places.

#include "GPSData.h"
#include "HeadingTracker.h"

#include <optional>

// Below walking pace a receiver's stated course is noise, as the places are.
inline constexpr float kStatedHeadingMinimumKMH = 5.0f;

// Degrees clockwise from north, absent until either source has one. The tracker is to have been
// fed the sample's place already.
std::optional<double> carHeading(const GPSData& sample, const HeadingTracker& tracker);
