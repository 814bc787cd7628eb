#pragma once
// Whether a sample can be drawn on a map.

#include "GPSData.h"

// True for finite coordinates within ±90° latitude and ±180° longitude. An all-zero record is a
// position (0°, 0°) like any other; garbage from a damaged record is not, and would make GPX and
// KML documents invalid.
bool hasMapPosition(const GPSData& sample);
