#pragma once
// The file type box and the movie box (one picture track, one sound track, and optionally a timed
// track of GPMF payloads or NMEA text, and the "gps " index) of the movies the generator writes.

#include "SampleTable.h"

#include <cstdint>
#include <optional>
#include <vector>

// The ftyp the GPS loader looks at: a 28-byte ISO one marks the MP4 record form; QuickTime
// movies carry a 20-byte one.
enum class FileBrand { IsoMp4, QuickTime };

struct VideoTrack {
    uint16_t width = 0;
    uint16_t height = 0;
    uint32_t timescale = 0;
    std::vector<uint8_t> avcC;  // the decoder configuration record
    SampleTable samples;
};

// 16-bit little-endian PCM ('sowt').
struct SoundTrack {
    uint16_t channels = 0;
    uint16_t sampleRate = 0;
    SampleTable samples;  // one sample per PCM frame
};

// A timed track of data samples, in milliseconds: GPMF payloads (handler "meta", sample entry
// "gpmd") or a camera's NMEA text (handler "text", sample entry "text").
struct TimedDataTrack {
    const char* handler = "meta";
    const char* sampleFormat = "gpmd";
    SampleTable samples;
};

struct MovieDescription {
    FileBrand brand = FileBrand::QuickTime;
    uint32_t creationTime = 0;  // seconds since 1904-01-01 00:00:00 UTC
    uint32_t durationSeconds = 0;
    VideoTrack video;
    SoundTrack sound;
    std::optional<std::vector<uint8_t>> gpsIndex;  // payload of the "gps " box
    std::optional<TimedDataTrack> dataTrack;
};

std::vector<uint8_t> fileTypeBox(FileBrand brand);
std::vector<uint8_t> movieBox(const MovieDescription& movie);

// Seconds between 1904-01-01 (the epoch of movie headers) and 1970-01-01.
inline constexpr int64_t kMovieEpochOffset = 2082844800;
