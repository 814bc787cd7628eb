// Feeds arbitrary bytes to the reader of NMEA kept in a movie's free box, as a whole file, and
// aborts when a fix breaks one of its rules.
#include "FixRules.h"
#include "NmeaBoxTrack.h"

#include <cstddef>
#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    MemoryFile file(std::vector<uint8_t>(data, data + size));
    const auto text = NmeaBoxTrack::findText(file);
    requireFix(!text || text->size() <= size, "NMEA box reader", "no more text than the file holds");
    for (const GPSFix& fix : NmeaBoxTrack::readFixes(file)) {
        requireSoundFix(fix, "NMEA box reader");
    }
    return 0;
}
