#pragma once
// The one-line description of a track that GPX and KML show beside its name.

#include "GPSDataLoader.h"
#include "SpeedUnit.h"
#include "TrackWriter.h"

#include <span>
#include <string>

// "3 samples, max speed 62.14 MPH": the count and the maximum in the chosen unit, the maximum
// written like the player's read-out.
std::string trackSummary(const GPSTrack& track, SpeedUnit unit);
// The same for a track of segments: every segment's samples, the highest of their maxima.
std::string trackSummary(std::span<const NamedTrack> segments, SpeedUnit unit);
