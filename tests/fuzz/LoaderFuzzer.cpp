// Feeds arbitrary bytes to the track loader as if they were a movie file.
#include "GPSDataLoader.h"

#include <cstddef>
#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    MemoryFile file(std::vector<uint8_t>(data, data + size));
    const GPSTrack track = GPSDataLoader::LoadTrack(file);
    // Touch every text so the formatting of odd values runs too.
    std::size_t length = 0;
    for (const GPSData& sample : track.samples)
        length += sample.SpeedMPHText().size() + sample.SpeedKMHText().size() + sample.LatitudeText().size() +
                  sample.LongitudeText().size() + sample.DateText().size() + sample.TimeText().size();
    return length > 0 ? 0 : 0;
}
