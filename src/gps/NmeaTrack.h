#pragma once
// NMEA sentences a dash camera keeps in a track of its movie, one sample a second or so.
//
// The track is a text or subtitle track (handler "text" or "sbtl"), or a timed metadata track
// ("meta") whose sample entry is not GPMF's "gpmd". Cameras wrap the sentences in binary of their
// own; one layout is a u16 length, four zero bytes, a 14-digit YYYYMMDDhhmmss clock and 2 bytes,
// three int32 accelerometer values, then a 128-byte $GPRMC and a 128-byte $GPGGA, NUL-padded, with
// checksums that never validate. Rather than follow each wrapping, the printable runs of a sample
// are read as NMEA text: the binary around them cannot form a sentence.
// Fixes keep the UTC clock of their sentences and take their movie time from the sample's.

#include "GPSFix.h"
#include "SeekableFile.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class NmeaTrack {
public:
    NmeaTrack() = delete;

    // Three days of one sample a second.
    static constexpr std::size_t kMaxSamples = std::size_t(1) << 18;
    // Real samples are a few hundred bytes to a kilobyte; a larger one is read this far.
    static constexpr uint32_t kMaxSampleBytes = 64u << 10;
    // A track is claimed only when one of its first samples holds an RMC fix.
    static constexpr std::size_t kSamplesProbed = 8;

    // The fixes of one sample that starts startSeconds into the movie and lasts durationSeconds;
    // several fixes share the sample's time evenly.
    static std::vector<GPSFix> readSample(std::span<const uint8_t> bytes, double startSeconds, double durationSeconds);

    // Every fix of the first text or metadata track that holds NMEA, in movie order; empty when
    // there is no such track. Reads the movie box, one track's tables and its samples.
    static std::vector<GPSFix> readFixes(SeekableFile& file);
};
