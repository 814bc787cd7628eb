#pragma once
// NMEA sentences that a dash camera keeps inside its movie file rather than beside it.
//
// Layout read here: a top-level "free" box whose payload is child boxes (a copyright "cprt", the
// start time "sttm", thumbnails, accelerometer data...), one of them "gps ": ASCII lines, each a
// bracketed camera clock in milliseconds and a sentence, "[1483228795000]$GPRMC,...", NUL-padded
// at the end. The bracketed clock is the camera's, not UTC, and is not used: the sentences carry
// their own UTC time and date. Other "free" boxes (padding, other vendors' data) are passed over.

#include "GPSFix.h"
#include "SeekableFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class NmeaBoxTrack {
public:
    NmeaBoxTrack() = delete;

    // Hours of sentences at one a second fit many times over; a larger box is read this far.
    static constexpr uint64_t kMaxTextBytes = uint64_t(16) << 20;

    // The text of the first "gps " child of a top-level "free" box; absent when there is none.
    // Reads the top level's box headers, the free boxes' child headers, and the text.
    static std::optional<std::string> findText(SeekableFile& file);

    // The fixes of that text, in stored order, with clockSeconds (UTC) and no movieSeconds.
    // Checksums are not required to match: some cameras write ones that never do.
    static std::vector<GPSFix> readFixes(SeekableFile& file);
};
