#pragma once
// Track files a GPS logger writes beside a movie, one point a second from the movie's first frame
// to its last second inclusive, in UTC.
//   .nmea  $GPRMC and $GPGGA per second, CR LF line ends
//   .gpx   GPX 1.1 track points with time, and speed (m/s) and course in Garmin's
//          TrackPointExtension, since GPX 1.1 has no element for them

#include "MovieOptions.h"
#include "TimedRoute.h"

#include <cstdint>
#include <filesystem>
#include <string>

std::string nmeaLog(const TimedRoute& route, int64_t seconds);
std::string gpxDocument(const TimedRoute& route, int64_t seconds);

// The movie's path with the sidecar's extension.
std::filesystem::path sidecarPath(const std::filesystem::path& movie, SidecarTrack kind);

// Writes the sidecar of that kind beside the movie (nothing for SidecarTrack::None), atomically.
// Throws SampleGenError.
void writeSidecar(SidecarTrack kind, const TimedRoute& route, int64_t seconds, const std::filesystem::path& movie);
