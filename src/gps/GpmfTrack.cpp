#include "GpmfTrack.h"

#include "GpmfPayload.h"

#include <algorithm>

namespace {

// The first track whose handler is "meta" and whose sample entry is "gpmd"; the camera's other
// "meta" track (file recovery data) has another entry.
std::optional<MovieTrack> findGpmfTrack(SeekableFile& file) {
    return MovieTracks::findFirst(
        file, [](const MovieTrack& track) { return track.handlerIs("meta") && track.sampleFormatIs("gpmd"); });
}

}  // namespace

bool GpmfTrack::hasGpmfTrack(SeekableFile& file) { return findGpmfTrack(file).has_value(); }

std::vector<GpmfSample> GpmfTrack::samples(SeekableFile& file) {
    const std::optional<MovieTrack> track = findGpmfTrack(file);
    if (!track) return {};
    return MovieTracks::samples(file, *track, kMaxSamples);
}

std::vector<GPSFix> GpmfTrack::readFixes(SeekableFile& file) {
    std::vector<GPSFix> fixes;
    std::vector<uint8_t> payload;
    // Payloads of a real file never overlap: reading more than the file's size means a table
    // naming the same bytes over and over.
    uint64_t budget = file.size();
    for (const GpmfSample& sample : samples(file)) {
        if (sample.bytes > kMaxSampleBytes) continue;
        if (sample.bytes > budget) break;
        budget -= sample.bytes;
        payload.resize(sample.bytes);
        file.seek(sample.offset);
        if (file.read(payload) != payload.size()) continue;
        GpmfFixes read = GpmfPayload::read(payload, sample.startSeconds, sample.durationSeconds);
        const std::size_t room = kMaxFixes - fixes.size();
        fixes.insert(fixes.end(), read.fixes.begin(),
                     read.fixes.begin() + std::ptrdiff_t(std::min(room, read.fixes.size())));
        if (fixes.size() == kMaxFixes) break;
    }
    return fixes;
}

std::vector<GPSFix> GpmfTrack::readFixes(const std::filesystem::path& movie) {
    const std::unique_ptr<PosixFile> file = PosixFile::open(movie);
    if (!file) return {};
    return readFixes(*file);
}
