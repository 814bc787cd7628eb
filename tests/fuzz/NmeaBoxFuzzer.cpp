// Feeds arbitrary bytes to the readers of NMEA kept in a movie (in its free box, and in the samples
// of a text track, as a whole file and as one sample), and aborts when a fix breaks one of its rules.
#include "FixRules.h"
#include "NmeaBoxTrack.h"
#include "NmeaTrack.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    MemoryFile file(std::vector<uint8_t>(data, data + size));
    const auto text = NmeaBoxTrack::findText(file);
    requireFix(!text || text->size() <= size, "NMEA box reader", "no more text than the file holds");
    for (const GPSFix& fix : NmeaBoxTrack::readFixes(file)) {
        requireSoundFix(fix, "NMEA box reader");
    }
    for (const GPSFix& fix : NmeaTrack::readFixes(file)) {
        requireSoundMovieFix(fix, "NMEA track reader");
    }
    for (const GPSFix& fix : NmeaTrack::readSample(std::span(data, size), 0, 1)) {
        requireSoundMovieFix(fix, "NMEA track sample");
        requireFix(fix.movieSeconds && *fix.movieSeconds >= 0 && *fix.movieSeconds < 1, "NMEA track sample",
                   "a fix's time within its sample");
    }
    return 0;
}
