#pragma once
// The tracks of a movie box and where each track's samples lie: what the readers of timed
// metadata and text tracks share.
//
// Layout read here (ISO base media / QuickTime boxes):
//   moov/trak/mdia/hdlr   handler type at payload offset 8
//   moov/trak/mdia/mdhd   time scale (offset 12 in version 0, 20 in version 1)
//   .../minf/stbl/stsd    first sample entry's format at payload offset 12
//   .../stbl/stsz         sample sizes (one for all, or one each)
//   .../stbl/stco|co64    chunk offsets, 32 or 64 bits
//   .../stbl/stsc         runs of chunks with the same count of samples
//   .../stbl/stts         runs of samples with the same duration, in time-scale units
// Edit lists are not applied: the cameras start these tracks with the movie.

#include "FileRange.h"
#include "SeekableFile.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

// Where one sample lies in the file and in the movie.
struct TrackSample {
    uint64_t offset = 0;
    uint32_t bytes = 0;
    double startSeconds = 0;
    double durationSeconds = 0;
};

struct MovieTrack {
    std::array<char, 4> handler{};       // "vide", "soun", "meta", "text"...
    std::array<char, 4> sampleFormat{};  // the first sample entry's format: "avc1", "gpmd", "tx3g"...
    FileRange sampleTable;               // stbl
    uint32_t timescale = 0;              // never 0

    bool handlerIs(std::string_view name) const { return std::string_view(handler.data(), 4) == name; }
    bool sampleFormatIs(std::string_view name) const { return std::string_view(sampleFormat.data(), 4) == name; }
};

class MovieTracks {
public:
    MovieTracks() = delete;

    // The first track of the movie box that `wanted` accepts; tracks without a handler, a sample
    // entry or a time scale are passed over. Reads track headers only.
    static std::optional<MovieTrack> findFirst(SeekableFile& file, const std::function<bool(const MovieTrack&)>& wanted);

    // The track's samples in order, at most maxSamples of them (the table's counts are only
    // upper bounds). Samples the file does not hold in full are left out.
    static std::vector<TrackSample> samples(SeekableFile& file, const MovieTrack& track, std::size_t maxSamples);
};
