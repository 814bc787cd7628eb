// Feeds arbitrary bytes to the GPMF reader, once as one payload and once as a movie, and aborts
// when the fixes break one of their rules. Seeds: tests/fuzz/gpmf-seeds (camera payloads and a
// small movie); dictionary: gpmf.dict. For example:
//   gps_gpmf_fuzzer -max_total_time=10 -dict=tests/fuzz/gpmf.dict CORPUS tests/fuzz/gpmf-seeds
#include "FixRules.h"
#include "FixSamples.h"
#include "GpmfPayload.h"
#include "GpmfTrack.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

// GPMF's speeds and heights are whatever its SCAL makes them: only the rules below hold for them.
void require(bool holds, const char* rule) { requireFix(holds, "GPMF reader", rule); }

bool finiteOrAbsent(const std::optional<double>& v) { return !v || std::isfinite(*v); }

void requirePlaceable(const GPSFix& fix) {
    require(std::fabs(fix.latitude) <= 90 && std::fabs(fix.longitude) <= 180, "positions lie on the globe");
    require(finiteOrAbsent(fix.altitudeMetres) && finiteOrAbsent(fix.speedMetresPerSecond), "values are finite");
    require(finiteOrAbsent(fix.clockSeconds), "times are finite");
    require(fix.movieSeconds && std::isfinite(*fix.movieSeconds), "every fix has its place in the movie");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const std::span<const uint8_t> bytes(data, size);

    const GpmfFixes payload = GpmfPayload::read(bytes, 2.0, 1.0);
    // The smallest sample that gives a fix is five one-byte fields.
    require(payload.fixes.size() <= size / 5, "no more fixes than samples the bytes can hold");
    for (const GPSFix& fix : payload.fixes) {
        requirePlaceable(fix);
        require(*fix.movieSeconds >= 2.0 && *fix.movieSeconds < 3.0, "fixes lie within their payload");
    }

    MemoryFile file(std::vector<uint8_t>(bytes.begin(), bytes.end()));
    const std::vector<GpmfSample> samples = GpmfTrack::samples(file);
    require(samples.size() <= GpmfTrack::kMaxSamples, "samples stay within their ceiling");
    for (const GpmfSample& sample : samples)
        require(sample.offset + sample.bytes <= size, "samples lie within the file");
    require(samples.empty() || GpmfTrack::hasGpmfTrack(file), "samples come from a GPMF track");
    const std::vector<GPSFix> fixes = GpmfTrack::readFixes(file);
    require(fixes.size() <= GpmfTrack::kMaxFixes && fixes.size() <= size / 5, "the track stays within its ceilings");
    for (const GPSFix& fix : fixes) requirePlaceable(fix);
    // One sample a second of a movie no longer than its fixes' last second.
    require(samplesFromFixes(fixes, 0).size() <= 1u << 18, "the samples stay within their ceiling");
    return 0;
}
