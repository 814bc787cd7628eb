#pragma once
// What kind of movie to make.

#include "GPSData.h"

#include <cstdint>
#include <optional>

// How the GPS blocks are found: through a "gps " index box, after every sound chunk, or not at all.
enum class GPSBlockLayout { Index, Chunk, None };
// A track the movie holds other than in camera blocks: a GPMF metadata track, NMEA sentences in a
// top-level "free" box, or NMEA sentences in the samples of a text track.
enum class EmbeddedTrack { None, Gpmf, NmeaText, NmeaTrack };
// A track file written beside the movie under its base name: clip.nmea or clip.gpx.
enum class SidecarTrack { None, Nmea, Gpx };

struct MovieOptions {
    GPSRecordForm form = GPSRecordForm::Scaled;
    GPSBlockLayout layout = GPSBlockLayout::Index;
    EmbeddedTrack track = EmbeddedTrack::None;
    SidecarTrack sidecar = SidecarTrack::None;
    int width = 1280;
    int height = 720;
    int fps = 30;
    int channels = 1;
    int sampleRate = 22050;
    int64_t fromSecond = 0;          // where in the route the movie starts
    std::optional<int64_t> seconds;  // default: to the end of the route
    bool setFileTime = true;         // file modification time = the movie's start
};

// Throws UsageError for combinations the writer cannot make.
void validate(const MovieOptions& options);
