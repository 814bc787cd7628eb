#pragma once
// Samples and tracks made in memory, as the loader would make them from a camera's records.

#include "GPSDataLoader.h"
#include "SpeedUnit.h"
#include "TrackWriter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct RecordTime {
    uint32_t year = 2016, month = 12, day = 31, hour = 20, minute = 5, second = 9;
};

// A fixed-point record: coordinates in 1e-7 degree, speed in cm/s, a four-digit year.
GPSData fixedPointSample(int32_t latitude, int32_t longitude, uint32_t centimetresPerSecond, RecordTime time = {});
// A scaled record with raw floats, for values the fixed-point form cannot give (NaN, -0, huge).
GPSData scaledSample(float latitude, float longitude, float speed, char ns = 'N', char ew = 'E');

// A track as the loader returns it: maxSpeed the largest stored speed.
GPSTrack trackOf(std::vector<GPSData> samples);

// Three movies that between them reach every branch of the writers: a normal track with a
// southern-western point and an undated all-zero point, a one-sample track whose name needs
// escaping, and an empty track.
std::vector<NamedTrack> sampleMovies();

// The document a format writes for the tracks; severalFiles follows the count, as in the tool.
std::string render(std::string_view format, const std::vector<NamedTrack>& tracks, SpeedUnit unit = SpeedUnit::MPH);
