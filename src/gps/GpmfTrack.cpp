#include "GpmfTrack.h"

#include "BigEndian.h"
#include "BoxChildren.h"
#include "GpmfPayload.h"
#include "TableStream.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace {

struct TrackBoxes {
    FileRange sampleTable;  // stbl
    uint32_t timescale = 0;
};

// The first `bytes` of a box's payload; absent when the box or the file is shorter.
template <std::size_t N>
std::optional<std::array<uint8_t, N>> leadingBytes(SeekableFile& file, FileRange box) {
    std::array<uint8_t, N> out{};
    if (box.length < N) return std::nullopt;
    file.seek(box.location);
    if (file.read(out) != N) return std::nullopt;
    return out;
}

bool hasFourCC(const uint8_t* p, std::string_view name) {
    return std::string_view(reinterpret_cast<const char*>(p), 4) == name;
}

std::optional<FileRange> findPath(SeekableFile& file, FileRange from, std::initializer_list<std::string_view> path) {
    std::optional<FileRange> at = from;
    for (std::string_view name : path) {
        at = BoxChildren::find(file, *at, name);
        if (!at) return std::nullopt;
    }
    return at;
}

std::optional<uint32_t> mediaTimescale(SeekableFile& file, FileRange mdia) {
    const std::optional<FileRange> mdhd = BoxChildren::find(file, mdia, "mdhd");
    if (!mdhd) return std::nullopt;
    const auto head = leadingBytes<24>(file, *mdhd);
    if (head) return readU32BE(&(*head)[(*head)[0] == 1 ? 20 : 12]);
    const auto shortHead = leadingBytes<16>(file, *mdhd);  // version 0 needs 16 bytes only
    if (!shortHead || (*shortHead)[0] == 1) return std::nullopt;
    return readU32BE(&(*shortHead)[12]);
}

// The first track whose handler is "meta" and whose sample entry is "gpmd"; the camera's other
// "meta" track (file recovery data) has another entry.
std::optional<TrackBoxes> findGpmfTrack(SeekableFile& file) {
    const std::optional<FileRange> moov = BoxChildren::find(file, BoxChildren::wholeFile(file), "moov");
    if (!moov) return std::nullopt;
    BoxChildren tracks(file, *moov);
    while (const std::optional<Box> trak = tracks.next()) {
        if (!trak->is("trak")) continue;
        const std::optional<FileRange> mdia = BoxChildren::find(file, trak->payload, "mdia");
        if (!mdia) continue;
        const std::optional<FileRange> hdlr = BoxChildren::find(file, *mdia, "hdlr");
        const auto handler = hdlr ? leadingBytes<12>(file, *hdlr) : std::nullopt;
        if (!handler || !hasFourCC(&(*handler)[8], "meta")) continue;
        const std::optional<FileRange> stbl = findPath(file, *mdia, {"minf", "stbl"});
        const std::optional<FileRange> stsd = stbl ? BoxChildren::find(file, *stbl, "stsd") : std::nullopt;
        // Version and flags, entry count, then the first entry's size and format.
        const auto entry = stsd ? leadingBytes<16>(file, *stsd) : std::nullopt;
        if (!entry || !hasFourCC(&(*entry)[12], "gpmd")) continue;
        const std::optional<uint32_t> timescale = mediaTimescale(file, *mdia);
        if (!timescale || *timescale == 0) continue;
        return TrackBoxes{*stbl, *timescale};
    }
    return std::nullopt;
}

// Hands each entry of a sample table box to take(entry bytes), as far as the box, the file and
// `cap` hold entries: the count the box states is only an upper bound. The count is the last
// word of the `headerBytes` before the entries.
template <typename Take>
void readTable(SeekableFile& file, FileRange box, uint64_t headerBytes, std::size_t entryBytes, uint64_t cap,
               Take take) {
    if (box.length < headerBytes) return;
    file.seek(box.location + headerBytes - 4);
    std::array<uint8_t, 4> countBytes{};
    if (file.read(countBytes) != countBytes.size()) return;
    const uint64_t inBox = (box.length - headerBytes) / entryBytes;
    TableStream table(file, box.location + headerBytes, std::min({uint64_t(readU32BE(countBytes.data())), inBox, cap}),
                      entryBytes);
    for (std::span<const uint8_t> run = table.nextRun(); !run.empty(); run = table.nextRun())
        for (std::size_t at = 0; at < run.size(); at += entryBytes) take(&run[at]);
}

struct SampleTable {
    std::vector<uint32_t> sizes;
    std::vector<uint64_t> chunkOffsets;
    std::vector<std::pair<uint32_t, uint32_t>> chunkRuns;     // first chunk (from 1), samples per chunk
    std::vector<std::pair<uint32_t, uint32_t>> durationRuns;  // sample count, duration
};

SampleTable readSampleTable(SeekableFile& file, FileRange stbl) {
    SampleTable t;
    const uint64_t cap = GpmfTrack::kMaxSamples;
    if (const std::optional<FileRange> stsz = BoxChildren::find(file, stbl, "stsz")) {
        // Version and flags, one size for every sample (0: a table follows), sample count.
        const auto head = leadingBytes<12>(file, *stsz);
        const uint32_t common = head ? readU32BE(&(*head)[4]) : 0;
        if (head && common != 0)
            t.sizes.assign(std::min<uint64_t>(readU32BE(&(*head)[8]), cap), common);
        else
            readTable(file, *stsz, 12, 4, cap, [&](const uint8_t* e) { t.sizes.push_back(readU32BE(e)); });
    }
    if (const std::optional<FileRange> stco = BoxChildren::find(file, stbl, "stco"))
        readTable(file, *stco, 8, 4, cap, [&](const uint8_t* e) { t.chunkOffsets.push_back(readU32BE(e)); });
    else if (const std::optional<FileRange> co64 = BoxChildren::find(file, stbl, "co64"))
        readTable(file, *co64, 8, 8, cap,
                  [&](const uint8_t* e) { t.chunkOffsets.push_back(uint64_t(readU32BE(e)) << 32 | readU32BE(e + 4)); });
    if (const std::optional<FileRange> stsc = BoxChildren::find(file, stbl, "stsc"))
        readTable(file, *stsc, 8, 12, cap,
                  [&](const uint8_t* e) { t.chunkRuns.emplace_back(readU32BE(e), readU32BE(e + 4)); });
    if (const std::optional<FileRange> stts = BoxChildren::find(file, stbl, "stts"))
        readTable(file, *stts, 8, 8, cap,
                  [&](const uint8_t* e) { t.durationRuns.emplace_back(readU32BE(e), readU32BE(e + 4)); });
    return t;
}

// Hands out each sample's duration from the runs; 0 once they are used up.
class Durations {
public:
    explicit Durations(const std::vector<std::pair<uint32_t, uint32_t>>& runs) : runs_(runs) {}
    uint32_t next() {
        while (run_ < runs_.size() && usedInRun_ >= runs_[run_].first) {
            ++run_;
            usedInRun_ = 0;
        }
        if (run_ == runs_.size()) return 0;
        ++usedInRun_;
        return runs_[run_].second;
    }

private:
    const std::vector<std::pair<uint32_t, uint32_t>>& runs_;
    std::size_t run_ = 0;
    uint32_t usedInRun_ = 0;
};

std::vector<GpmfSample> locateSamples(const SampleTable& t, uint32_t timescale, uint64_t fileSize) {
    std::vector<GpmfSample> out;
    Durations durations(t.durationRuns);
    uint64_t ticks = 0;
    std::size_t sample = 0, run = 0;
    for (std::size_t chunk = 0; chunk < t.chunkOffsets.size() && sample < t.sizes.size(); ++chunk) {
        // The run that covers this chunk: the last whose first chunk is not after it.
        while (run + 1 < t.chunkRuns.size() && t.chunkRuns[run + 1].first <= chunk + 1) ++run;
        const uint64_t perChunk = run < t.chunkRuns.size() ? t.chunkRuns[run].second : 1;
        uint64_t offset = t.chunkOffsets[chunk];
        for (uint64_t k = 0; k < perChunk && sample < t.sizes.size(); ++k, ++sample) {
            const uint32_t bytes = t.sizes[sample];
            const uint32_t duration = durations.next();
            const GpmfSample located{offset, bytes, double(ticks) / timescale, double(duration) / timescale};
            ticks += duration;
            if (offset <= fileSize && bytes <= fileSize - offset) out.push_back(located);
            offset += bytes;
        }
    }
    return out;
}

}  // namespace

bool GpmfTrack::hasGpmfTrack(SeekableFile& file) { return findGpmfTrack(file).has_value(); }

std::vector<GpmfSample> GpmfTrack::samples(SeekableFile& file) {
    const std::optional<TrackBoxes> track = findGpmfTrack(file);
    if (!track) return {};
    return locateSamples(readSampleTable(file, track->sampleTable), track->timescale, file.size());
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
