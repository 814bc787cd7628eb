#include "MovieTracks.h"

#include "BigEndian.h"
#include "BoxChildren.h"
#include "TableStream.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// The first `bytes` of a box's payload; absent when the box or the file is shorter.
template <std::size_t N>
std::optional<std::array<uint8_t, N>> leadingBytes(SeekableFile& file, FileRange box) {
    std::array<uint8_t, N> out{};
    if (box.length < N) return std::nullopt;
    file.seek(box.location);
    if (file.read(out) != N) return std::nullopt;
    return out;
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

SampleTable readSampleTable(SeekableFile& file, FileRange stbl, uint64_t cap) {
    SampleTable t;
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
        readTable(file, *co64, 8, 8, cap, [&](const uint8_t* e) { t.chunkOffsets.push_back(readU64BE(e)); });
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

std::vector<TrackSample> locateSamples(const SampleTable& t, uint32_t timescale, uint64_t fileSize) {
    std::vector<TrackSample> out;
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
            const TrackSample located{offset, bytes, double(ticks) / timescale, double(duration) / timescale};
            ticks += duration;
            if (offset <= fileSize && bytes <= fileSize - offset) out.push_back(located);
            offset += bytes;
        }
    }
    return out;
}

}  // namespace

std::optional<MovieTrack> MovieTracks::findFirst(SeekableFile& file,
                                                 const std::function<bool(const MovieTrack&)>& wanted) {
    const std::optional<FileRange> moov = BoxChildren::find(file, BoxChildren::wholeFile(file), "moov");
    if (!moov) return std::nullopt;
    BoxChildren tracks(file, *moov);
    while (const std::optional<Box> trak = tracks.next()) {
        if (!trak->is("trak")) continue;
        const std::optional<FileRange> mdia = BoxChildren::find(file, trak->payload, "mdia");
        if (!mdia) continue;
        const std::optional<FileRange> hdlr = BoxChildren::find(file, *mdia, "hdlr");
        const auto handler = hdlr ? leadingBytes<12>(file, *hdlr) : std::nullopt;
        if (!handler) continue;
        const std::optional<FileRange> stbl = findPath(file, *mdia, {"minf", "stbl"});
        const std::optional<FileRange> stsd = stbl ? BoxChildren::find(file, *stbl, "stsd") : std::nullopt;
        // Version and flags, entry count, then the first entry's size and format.
        const auto entry = stsd ? leadingBytes<16>(file, *stsd) : std::nullopt;
        if (!entry) continue;
        const std::optional<uint32_t> timescale = mediaTimescale(file, *mdia);
        if (!timescale || *timescale == 0) continue;
        MovieTrack track{.sampleTable = *stbl, .timescale = *timescale};
        std::copy_n(&(*handler)[8], 4, track.handler.begin());
        std::copy_n(&(*entry)[12], 4, track.sampleFormat.begin());
        if (wanted(track)) return track;
    }
    return std::nullopt;
}

std::vector<TrackSample> MovieTracks::samples(SeekableFile& file, const MovieTrack& track, std::size_t maxSamples) {
    return locateSamples(readSampleTable(file, track.sampleTable, maxSamples), track.timescale, file.size());
}
