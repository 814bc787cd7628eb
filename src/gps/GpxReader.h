#pragma once
// Position fixes from a GPX 1.0 or 1.1 document (the XML track format of GPS loggers and
// mapping tools), read with XmlScanner: no XML library, no validation.
//
// The subset read: every trkpt and rtept (waypoints are no track and are passed over), in document
// order, with
//  - lat and lon attributes, decimal degrees (WGS 84); a point without both in range is skipped;
//  - ele: metres;
//  - time: ISO 8601 UTC, "2024-05-01T12:00:00Z", with or without a fraction of a second, with a
//    zone offset such as "+02:00" taken back to UTC, and without a zone taken as UTC as GPX says;
//  - fix: none, 2d, 3d, dgps or pps;
//  - GPX 1.0 speed (metres per second) and course (degrees true); for GPX 1.1, which dropped them,
//    any element called speed or course inside the point's extensions (Garmin's TrackPointExtension
//    v2 writes gpxtpx:speed and gpxtpx:course in the same units).
// A value that is malformed or out of range is left absent; the point keeps its other values.
// Elements are matched by local name, so a namespace prefix makes no difference. A point is taken
// when it closes: a document cut short loses only the point it was cut in.

#include "GPSFix.h"

#include <cstddef>
#include <string_view>
#include <vector>

// Elements nested deeper than this end the reading: GPX needs six levels, extensions a few more.
inline constexpr std::size_t kMaxGpxDepth = 64;
// No more fixes than this are read from one document: over a day at ten a second.
inline constexpr std::size_t kMaxGpxFixes = std::size_t(1) << 20;

// One fix per track or route point, with clockSeconds (UTC) where the point has a time, and no
// movieSeconds.
std::vector<GPSFix> readGpxFixes(std::string_view document);
