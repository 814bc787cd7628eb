// Feeds arbitrary bytes to the NMEA reader as a sidecar and as text from a movie, and aborts when a
// fix breaks one of its rules.
#include "FixRules.h"
#include "NmeaReader.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto checked = readNmeaFixes(text, NmeaReadOptions::forSidecar());
    const auto unchecked = readNmeaFixes(text, NmeaReadOptions::forEmbeddedText());

    // The shortest sentence that makes a fix, "GPRMC,000000,V", and a separator before the next.
    requireFix(unchecked.size() <= size / 15 + 1, "NMEA reader", "no more fixes than sentences the text can hold");
    requireFix(checked.size() <= unchecked.size(), "NMEA reader", "checking checksums never adds a fix");
    for (const auto* fixes : {&checked, &unchecked}) {
        for (const GPSFix& fix : *fixes) {
            requireSoundFix(fix, "NMEA reader");
            requireFix(fix.quality != GPSFix::Quality::Unknown, "NMEA reader", "RMC always states its quality");
            requireFix(fix.quality != GPSFix::Quality::Fix3D || fix.altitudeMetres, "NMEA reader",
                       "a 3D fix has an altitude");
        }
    }
    return 0;
}
