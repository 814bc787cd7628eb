// Feeds arbitrary bytes to the GPX reader and aborts when a fix breaks one of its rules.
#include "FixRules.h"
#include "GpxReader.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const std::string_view document(reinterpret_cast<const char*>(data), size);
    const auto fixes = readGpxFixes(document);
    // The shortest point: <trkpt lat="0"lon="0"/>
    requireFix(fixes.size() <= size / 23, "GPX reader", "no more fixes than points the text can hold");
    for (const GPSFix& fix : fixes) requireSoundFix(fix, "GPX reader");
    return 0;
}
