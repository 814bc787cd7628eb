#pragma once
// The speed unit that an export's texts are written in.

#include "GPSData.h"

#include <string>

enum class SpeedUnit { MPH, KMH };

// "MPH" or "KM/H", as the player labels its read-out.
std::string speedUnitName(SpeedUnit unit);
// The sample's speed in the unit, as the player computes it.
float speedIn(SpeedUnit unit, const GPSData& sample);
// The sample's speed text in the unit, as the player shows it.
std::string speedTextIn(SpeedUnit unit, const GPSData& sample);
// A track's maximum (a stored MPH value) in the unit.
float maximumIn(SpeedUnit unit, float storedMaximum);
