#pragma once
// One position fix as a camera's format states it, in plain units, before it becomes a sample of
// the player's track. Every reader of a way of storing a track produces these.

#include <cstdint>
#include <optional>

struct GPSFix {
    // When the fix belongs in the movie, in seconds from its start; absent where the format does
    // not say (a sidecar file before it is matched to the clip).
    std::optional<double> movieSeconds;
    // The fix's date and time as seconds since 1970-01-01 00:00:00 of the clock the format keeps
    // (UTC for GPMF, NMEA and GPX), with its fraction; absent where the format stores none.
    std::optional<double> clockSeconds;
    double latitude = 0;   // degrees, north positive
    double longitude = 0;  // degrees, east positive
    std::optional<double> altitudeMetres;
    std::optional<double> speedMetresPerSecond;
    std::optional<double> headingDegrees;  // clockwise from north
    enum class Quality { Unknown, NoFix, Fix2D, Fix3D };
    Quality quality = Quality::Unknown;
};
