#pragma once
// Position fixes from NMEA 0183 text, as sidecar logs, text tracks and boxes of dash cameras hold it.
//
// The subset read:
//  - RMC (talker GP or GN): UTC time hhmmss[.s], status A (fix) or V (no fix), latitude ddmm.mmmm
//    with N/S, longitude dddmm.mmmm with E/W, speed over ground in knots, course over ground in
//    degrees true, date ddmmyy (years 80-99 are 19xx, 00-79 are 20xx); a mode indicator N marks no fix.
//  - GGA (talker GP or GN): fix quality (0 = none) and altitude above mean sea level in metres,
//    merged into the RMC fix of the same time of day that comes just before or just after it.
//    GGA has no date, so a GGA without its RMC gives no fix.
// Every other sentence is passed over.
//
// The text around sentences is forgiving, because cameras write it in many ways: lines may end in
// CR, LF or both, NUL padding and blanks are ignored, several sentences may share a line separated
// by ';' or by their '$', the '$' may be missing, and anything before a '$' (a bracketed camera
// clock, say) is not part of the sentence. A sentence longer than any real one, or one with a
// malformed or out-of-range value in a field that is read, is skipped whole; empty fields are absent.

#include "GPSFix.h"

#include <cstddef>
#include <string_view>
#include <vector>

struct NmeaReadOptions {
    // When set, a sentence whose "*hh" checksum does not match its text is skipped. A sentence
    // without a checksum is accepted either way: many loggers leave it off, and the fields are
    // checked one by one anyway. Some cameras write checksums into their movies that never match,
    // so text taken from a movie is read with this off.
    bool requireValidChecksum = true;

    static NmeaReadOptions forSidecar() { return {.requireValidChecksum = true}; }
    static NmeaReadOptions forEmbeddedText() { return {.requireValidChecksum = false}; }
};

// A sentence is never longer than this (the standard allows 82 characters; cameras pad to 128).
inline constexpr std::size_t kMaxNmeaSentenceChars = 256;
// No more fixes than this are read from one text: over a day at ten a second.
inline constexpr std::size_t kMaxNmeaFixes = std::size_t(1) << 20;

// One fix per accepted RMC sentence, in the order of the text, with clockSeconds (UTC) and no
// movieSeconds. The fix of a sentence without a date has no clockSeconds.
std::vector<GPSFix> readNmeaFixes(std::string_view text, NmeaReadOptions options = {});
