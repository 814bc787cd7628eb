#pragma once
// The GPS fixes of an action camera's movie: the timed metadata track that holds GPMF payloads.
//
// The track is a timed metadata track (handler "meta") whose sample entry is "gpmd"; where its
// samples lie is read as MovieTracks.h describes. One sample is one GPMF payload, about a second
// of telemetry.

#include "GPSFix.h"
#include "MovieTracks.h"
#include "SeekableFile.h"

#include <cstdint>
#include <filesystem>
#include <vector>

using GpmfSample = TrackSample;

class GpmfTrack {
public:
    GpmfTrack() = delete;

    // An hour of payloads is 3600: this is 72 hours, far beyond any clip, yet a table whose count
    // claims billions cannot exhaust memory.
    static constexpr std::size_t kMaxSamples = std::size_t(1) << 18;
    // About 16 hours of fixes at 18 a second.
    static constexpr std::size_t kMaxFixes = std::size_t(1) << 20;
    // Real payloads are tens of kilobytes; a larger one is not read.
    static constexpr uint32_t kMaxSampleBytes = 4u << 20;

    // Whether the movie has a GPMF track; reads the movie box's track headers only.
    static bool hasGpmfTrack(SeekableFile& file);
    // The payloads of the first GPMF track, in order; empty without one. Samples the file does not
    // hold in full are left out.
    static std::vector<GpmfSample> samples(SeekableFile& file);
    // Every fix of every payload, in movie order, fixes without a lock included (marked NoFix).
    static std::vector<GPSFix> readFixes(SeekableFile& file);
    static std::vector<GPSFix> readFixes(const std::filesystem::path& movie);
};
