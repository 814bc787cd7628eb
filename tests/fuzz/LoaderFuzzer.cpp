// Feeds arbitrary bytes to the track loader as if they were a movie file, and aborts when the
// track breaks one of its rules.
#include "GPSDataLoader.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void require(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "track loader broke a rule: %s\n", rule);
    std::abort();
}

std::string printed(const char* pattern, double value) {
    char text[64];
    std::snprintf(text, sizeof text, pattern, value);
    return text;
}

std::string printedTriple(uint32_t a, uint32_t b, uint32_t c, char separator) {
    char text[48];
    std::snprintf(text, sizeof text, "%02d%c%02d%c%02d", int(a), separator, int(b), separator, int(c));
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    MemoryFile file(std::vector<uint8_t>(data, data + size));
    const GPSTrack track = GPSDataLoader::LoadTrack(file);
    const auto& samples = track.samples;

    require(track.opened, "a file in memory always opens");
    require(samples.size() <= GPSDataLoader::kMaxTrackSamples, "the track stays within its ceiling");
    // Every sample comes from a table entry of at least 4 bytes that the file holds.
    require(samples.size() <= size / 4, "no more samples than table entries the file can hold");
    require(samples.empty() || track.layout != GPSLayout::None, "samples come from a layout");
    require(track.formCounts[0] + track.formCounts[1] + track.formCounts[2] == samples.size(),
            "every sample has one form");

    double largest = 0.0;  // as the loader keeps it: a speed not above the maximum leaves it
    for (const GPSData& sample : samples)
        if (double(sample.data().rmcinfo.Speed) > largest) largest = double(sample.data().rmcinfo.Speed);
    require(track.maxSpeed == float(largest), "the maximum is the largest stored speed");

    // The texts of the first samples: enough to meet every form, few enough to keep the fuzzer fast.
    constexpr std::size_t kTextChecks = 64;
    for (std::size_t i = 0; i < samples.size() && i < kTextChecks; ++i) {
        const GPSData& sample = samples[i];
        const RMCINFO& f = sample.data().rmcinfo;
        require(std::bit_cast<uint32_t>(sample.SpeedMPH()) == std::bit_cast<uint32_t>(f.Speed), "MPH is the stored speed");
        require(sample.SpeedMPHText() == printed("%05.02f", double(sample.SpeedMPH())), "speed text");
        require(sample.SpeedKMHText() == printed("%05.02f", double(sample.SpeedKMH())), "KM/H speed text");
        require(sample.LatitudeText() == printed("%08.05f", double(sample.Latitude())), "latitude text");
        require(sample.LongitudeText() == printed("%08.05f", double(sample.Longitude())), "longitude text");
        require(sample.DateText() == printedTriple(f.Month, f.Day, f.Year, '/'), "date text");
        require(sample.TimeText() == printedTriple(f.Hour, f.Minute, f.Second, ':'), "time text");
    }
    return 0;
}
