#pragma once
// Writes a route sample as the raw record a camera of each form would store: the inverse of the
// normalisation the player applies when it loads the record.

#include "GPSData.h"
#include "Route.h"

// The clock goes in as it stands, in every form. In the MP4 form the camera's clock is UTC, so the
// player shows it moved by whole hours from the longitude.
GPSDATA makeRawRecord(const RouteSample& sample, GPSRecordForm form);
