#pragma once
// The GPS fixes of an action camera's movie: the timed metadata track that holds GPMF payloads.
//
// Layout read here (ISO base media / QuickTime boxes):
//   moov/trak/mdia/hdlr   handler type "meta" at payload offset 8
//   moov/trak/mdia/mdhd   time scale (offset 12 in version 0, 20 in version 1)
//   .../minf/stbl/stsd    first sample entry of format "gpmd"
//   .../stbl/stsz         sample sizes (one for all, or one each)
//   .../stbl/stco|co64    chunk offsets, 32 or 64 bits
//   .../stbl/stsc         runs of chunks with the same count of samples
//   .../stbl/stts         runs of samples with the same duration, in time-scale units
// One sample is one GPMF payload, about a second of telemetry. Edit lists are not applied: the
// cameras start this track with the movie.

#include "GPSFix.h"
#include "SeekableFile.h"

#include <cstdint>
#include <filesystem>
#include <vector>

// Where one payload lies in the file and in the movie.
struct GpmfSample {
    uint64_t offset = 0;
    uint32_t bytes = 0;
    double startSeconds = 0;
    double durationSeconds = 0;
};

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
