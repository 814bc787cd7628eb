#pragma once
// Distances on the earth in degrees.

#include "MapTypes.h"

// The region of latitudinalMeters north to south and longitudinalMeters east to west around
// center, on the WGS 84 ellipsoid. Longitude degrees shrink towards the poles; at a pole the span
// is the whole circle. A NaN centre gives NaN deltas.
CoordinateRegion regionMakeWithDistance(Coordinate center, double latitudinalMeters, double longitudinalMeters);
