#pragma once
// Samples and tracks made in memory, as the loader would make them from a camera's records.

#include "GPSDataLoader.h"
#include "GPSSamples.h"
#include "SpeedUnit.h"
#include "TrackWriter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A track as the loader returns it: maxSpeed the largest stored speed.
GPSTrack trackOf(std::vector<GPSData> samples);

// Three movies that between them reach every branch of the writers: a normal track with a
// southern-western point and an undated all-zero point, a one-sample track whose name needs
// escaping, and an empty track.
std::vector<NamedTrack> sampleMovies();

// The document a format writes for the tracks; severalFiles follows the count, as in the tool.
std::string render(std::string_view format, const std::vector<NamedTrack>& tracks, SpeedUnit unit = SpeedUnit::MPH);
// The document of one track called name with a segment per movie, as a trip is exported.
std::string renderSegmented(std::string_view format, std::string_view name, const std::vector<NamedTrack>& segments,
                            SpeedUnit unit = SpeedUnit::MPH);
