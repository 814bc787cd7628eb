#include "NmeaTrack.h"

#include "MovieTracks.h"
#include "NmeaReader.h"

#include <algorithm>
#include <string>

namespace {

bool isNmeaCandidate(const MovieTrack& track) {
    if (track.handlerIs("text") || track.handlerIs("sbtl")) return true;
    return track.handlerIs("meta") && !track.sampleFormatIs("gpmd");
}

// The sample's printable runs, each on a line of its own.
std::string printableLines(std::span<const uint8_t> bytes) {
    std::string text(bytes.size(), '\n');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](uint8_t byte) { return byte >= 0x20 && byte < 0x7f ? char(byte) : '\n'; });
    return text;
}

}  // namespace

std::vector<GPSFix> NmeaTrack::readSample(std::span<const uint8_t> bytes, double startSeconds,
                                          double durationSeconds) {
    std::vector<GPSFix> fixes =
        readNmeaFixes(printableLines(bytes.first(std::min<std::size_t>(bytes.size(), kMaxSampleBytes))),
                      NmeaReadOptions::forEmbeddedText());
    for (std::size_t k = 0; k < fixes.size(); ++k)
        fixes[k].movieSeconds = startSeconds + durationSeconds * double(k) / double(fixes.size());
    return fixes;
}

std::vector<GPSFix> NmeaTrack::readFixes(SeekableFile& file) {
    const std::optional<MovieTrack> track = MovieTracks::findFirst(file, isNmeaCandidate);
    if (!track) return {};
    std::vector<GPSFix> fixes;
    std::vector<uint8_t> bytes;
    // Samples of a real file never overlap: reading more than the file's size means a table
    // naming the same bytes over and over.
    uint64_t budget = file.size();
    std::size_t read = 0;
    for (const TrackSample& sample : MovieTracks::samples(file, *track, kMaxSamples)) {
        if (++read > kSamplesProbed && fixes.empty()) break;  // not a track of NMEA text
        const uint32_t length = std::min(sample.bytes, kMaxSampleBytes);
        if (length > budget) break;
        budget -= length;
        bytes.resize(length);
        file.seek(sample.offset);
        if (file.read(bytes) != bytes.size()) continue;
        std::vector<GPSFix> more = readSample(bytes, sample.startSeconds, sample.durationSeconds);
        const std::size_t room = kMaxNmeaFixes - fixes.size();
        fixes.insert(fixes.end(), more.begin(), more.begin() + std::ptrdiff_t(std::min(room, more.size())));
        if (fixes.size() == kMaxNmeaFixes) break;
    }
    return fixes;
}
