#pragma once
// Blocks of the chipset's other layouts (the forms Type1, Type2, Type3 and Type20 of
// GPSRecordForm), written from a route sample so that tests and other tools can read them back.

#include "GPSData.h"
#include "Route.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// Long enough for every layout's fields, the NMEA sentence included.
inline constexpr std::size_t kVariantBlockSize = 256;

// The block of a form that is not classic (isClassicForm false): the clock as written, the speed
// (in the unit the player shows as MPH, i.e. knots) in the layout's own unit and precision.
std::vector<uint8_t> makeFreeGpsVariantBlock(const RouteSample& sample, GPSRecordForm form);
