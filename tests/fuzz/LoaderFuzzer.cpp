// Feeds arbitrary bytes to the track loader as if they were a movie file, and aborts when the
// track breaks one of its rules.
#include "GPSDataLoader.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

namespace {

void require(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "track loader broke a rule: %s\n", rule);
    std::abort();
}

// A value text read back names the value it was made from, to its last printed digit. Values too
// large or not finite are only required to give some text.
void requireReadsBack(const std::string& text, float value, double lastDigit, const char* rule) {
    require(!text.empty(), rule);
    if (!std::isfinite(value) || std::fabs(value) > 1e6f) return;
    require(std::fabs(std::strtod(text.c_str(), nullptr) - double(value)) <= lastDigit, rule);
}

// "a?b?c" read back gives the three fields, as the signed numbers they are printed as.
void requireTriple(const std::string& text, uint32_t a, uint32_t b, uint32_t c, char separator, const char* rule) {
    int x = 0, y = 0, z = 0;
    const char pattern[] = {'%', 'd', separator, '%', 'd', separator, '%', 'd', '\0'};
    require(std::sscanf(text.c_str(), pattern, &x, &y, &z) == 3, rule);
    require(x == int(a) && y == int(b) && z == int(c), rule);
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
    require(std::accumulate(std::begin(track.formCounts), std::end(track.formCounts), std::size_t(0)) == samples.size(),
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
        requireReadsBack(sample.SpeedMPHText(), sample.SpeedMPH(), 0.0051, "speed text");
        requireReadsBack(sample.SpeedKMHText(), sample.SpeedKMH(), 0.0051, "KM/H speed text");
        requireReadsBack(sample.LatitudeText(), sample.Latitude(), 0.0000051, "latitude text");
        requireReadsBack(sample.LongitudeText(), sample.Longitude(), 0.0000051, "longitude text");
        requireTriple(sample.DateText(), f.Month, f.Day, f.Year, '/', "date text");
        requireTriple(sample.TimeText(), f.Hour, f.Minute, f.Second, ':', "time text");
    }
    return 0;
}
