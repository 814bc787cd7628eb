#include "GPSDataLoader.h"

#include "BigEndian.h"
#include "GPSBlockReader.h"
#include "OtherTrackReaders.h"
#include "TableStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>

namespace {

constexpr uint64_t kBoxHeaderSize = 8;
constexpr std::size_t kMP4FtypPayload = 20;  // major, minor and three compatible brands
constexpr std::size_t kSoundEntryBytes = 48;
constexpr uint64_t kChunkAlignment = 32768;

// Reads exactly n bytes at the current position, or nothing.
std::optional<std::vector<uint8_t>> readExactly(SeekableFile& file, uint64_t n) {
    // Never allocate more than the file can still give: sizes read from files are not trusted.
    const uint64_t available = file.size() > file.position() ? file.size() - file.position() : 0;
    if (n > available) return std::nullopt;
    std::vector<uint8_t> bytes(n);
    if (file.read(bytes) != n) return std::nullopt;
    return bytes;
}

// Entries of `entryBytes` each that fit both in `payload` bytes from `start` and in the file:
// counts read from files are not trusted.
uint64_t entriesHeld(const SeekableFile& file, uint64_t start, uint64_t payload, uint64_t entryBytes) {
    const uint64_t inFile = file.size() > start ? file.size() - start : 0;
    return std::min(payload, inFile) / entryBytes;
}

// Accumulates accepted samples and the largest stored speed, up to a ceiling on the track's size.
class TrackBuilder {
public:
    TrackBuilder(SeekableFile& file, GPSTrack& track) : blocks_(file), track_(track) {}

    // Reads the block at offsets[0]; the rest are the offsets to come, which lets close
    // neighbours be read together. A block that fails the header test or that the file does
    // not hold in full is skipped.
    // True when the block was accepted.
    bool addBlockAt(const BlockOffsets& offsets, bool isMP4) {
        const std::optional<GPSBlockContent> block = blocks_.blockAt(offsets);
        if (!block) return false;
        GPSData sample;
        GPSRecordForm form;
        if (block->variant) {
            // Block k is shown from second k, whatever its layout, as the classic records are.
            sample = GPSData::fromFix(block->fix);
            form = *block->variant;
        } else {
            sample.SetData(block->record, isMP4);
            form = GPSData::formOf(block->record, isMP4);
        }
        max_ = std::max(max_, double(sample.data().rmcinfo.Speed));
        track_.formCounts[std::size_t(form)]++;
        track_.samples.push_back(sample);
        return true;
    }

    bool full() const { return track_.samples.size() >= GPSDataLoader::kMaxTrackSamples; }

    // Adds the block at every offset the table yields, until the table or the track's room ends.
    void addBlocksFrom(TableStream& table, uint64_t distance, bool isMP4) {
        const std::size_t stride = table.entryBytes();
        for (std::span<const uint8_t> run = table.nextRun(); !run.empty(); run = table.nextRun()) {
            const uint8_t* const runEnd = run.data() + run.size();
            for (const uint8_t* entry = run.data(); entry < runEnd; entry += stride) {
                const uint64_t offset = uint64_t(readU32BE(entry)) + distance;
                // A table that names one place over and over must cost next to nothing per entry.
                if (offset == lastRejected_) continue;
                if (!addBlockAt(BlockOffsets({entry, runEnd}, stride, distance), isMP4)) lastRejected_ = offset;
                if (full()) return;
            }
        }
    }

    double max() const { return max_; }

private:
    GPSBlockReader blocks_;
    GPSTrack& track_;
    double max_ = 0.0;
    uint64_t lastRejected_ = UINT64_MAX;  // no block lies there: table offsets are 32-bit
};

void readIndexLayout(SeekableFile& file, FileRange gps, bool isMP4, TrackBuilder& builder) {
    constexpr uint64_t headerBytes = 8;  // a word nobody reads, then the entry count
    constexpr uint64_t entryBytes = 8;   // the block offset, then a word nobody reads
    file.seek(gps.location);
    const auto header = readExactly(file, std::min(headerBytes, gps.length));
    if (!header || header->size() < headerBytes) return;
    const uint32_t entryCount = readU32BE(header->data() + 4);
    // Stop at the entries the index actually holds, whatever its count claims.
    const uint64_t held = entriesHeld(file, gps.location + headerBytes, gps.length - headerBytes, entryBytes);
    TableStream table(file, gps.location + headerBytes, std::min<uint64_t>(entryCount, held), entryBytes);
    builder.addBlocksFrom(table, 0, isMP4);
}

// The byte distance from a sound chunk's start to its GPS block: one second of sound rounded up
// past the next 32 KiB boundary.
uint64_t chunkGPSOffset(std::span<const uint8_t> soundEntry) {
    const uint64_t channels = readU16BE(soundEntry.data() + 32);
    const uint64_t sampleBits = soundEntry[35];
    const uint64_t rate = readU16BE(soundEntry.data() + 40);
    const uint64_t bytesPerSecond = channels * rate * sampleBits / 8;
    return (bytesPerSecond + kChunkAlignment) & ~(kChunkAlignment - 1);
}

// Walks sibling boxes from offset, stopping at end; the public search is this without a bound.
FileRange scanForBox(std::string_view name, SeekableFile& file, uint64_t offset, uint64_t end) {
    if (file.position() != offset) file.seek(offset);
    std::array<uint8_t, kBoxHeaderSize> header;
    for (uint64_t at = offset; at < end;) {
        if (file.read(header) != header.size()) return {};
        const uint32_t size = readU32BE(header.data());
        // A box smaller than its own header cannot be stepped over (size 0 would loop for ever),
        // and its payload cannot be read: the scan ends here.
        if (size < kBoxHeaderSize) return {};
        // The type as text up to its first zero byte: a type holding a zero never matches.
        const char* type = reinterpret_cast<const char*>(header.data() + 4);
        if (std::string_view(type, strnlen(type, 4)) == name) return {at + kBoxHeaderSize, size - kBoxHeaderSize};
        at += size;
        file.seek(at);
    }
    return {};
}

// The end of the header box of the first track without a picture size, searched from the movie
// box's payload.
std::optional<uint64_t> findSoundTrackHeaderEnd(SeekableFile& file, uint64_t from) {
    uint64_t offset = from;
    for (;;) {
        const FileRange trak = GPSDataLoader::loadBox("trak", file, offset);
        if (!trak.found()) return std::nullopt;
        offset = trak.location + trak.length;

        // Only the track's own header counts; a track without one is skipped. Bounding the search
        // also keeps files of many tiny tracks from costing quadratic time.
        const FileRange tkhd = scanForBox("tkhd", file, trak.location, offset);
        if (!tkhd.found() || tkhd.length < 8 || tkhd.location + tkhd.length > offset) continue;
        file.seek(tkhd.location + tkhd.length - 8);
        const auto size = readExactly(file, 8);
        if (!size) return std::nullopt;
        const uint32_t width = readU32BE(size->data()) >> 16;
        const uint32_t height = readU32BE(size->data() + 4) >> 16;
        if (width == 0 && height == 0) return tkhd.location + tkhd.length;
    }
}

void readSoundChunkLayout(SeekableFile& file, uint64_t moovLocation, TrackBuilder& builder, GPSTrack& track) {
    const std::optional<uint64_t> afterTkhd = findSoundTrackHeaderEnd(file, moovLocation);
    if (!afterTkhd) return;

    const FileRange mdia = GPSDataLoader::loadBox("mdia", file, *afterTkhd);
    if (!mdia.found()) return;
    const FileRange minf = GPSDataLoader::loadBox("minf", file, mdia.location);
    if (!minf.found()) return;
    const FileRange stbl = GPSDataLoader::loadBox("stbl", file, minf.location);
    if (!stbl.found()) return;
    const FileRange stsd = GPSDataLoader::loadBox("stsd", file, stbl.location);
    if (!stsd.found()) return;
    file.seek(stsd.location);
    const auto soundEntry = readExactly(file, kSoundEntryBytes);
    if (!soundEntry) return;
    const uint64_t gpsOffset = chunkGPSOffset(*soundEntry);

    const FileRange stco = GPSDataLoader::loadBox("stco", file, stbl.location);
    if (!stco.found()) return;
    track.layout = GPSLayout::SoundChunk;
    file.seek(stco.location);
    constexpr uint64_t headerBytes = 8;  // version and flags, then the entry count
    constexpr uint64_t entryBytes = 4;
    const auto head = readExactly(file, headerBytes);
    if (!head) return;
    const uint32_t entryCount = readU32BE(head->data() + 4);
    // The table as far as both its box and the file hold it.
    const uint64_t payload = stco.length > headerBytes ? stco.length - headerBytes : 0;
    const uint64_t held = entriesHeld(file, stco.location + headerBytes, payload, entryBytes);
    TableStream table(file, stco.location + headerBytes, std::min<uint64_t>(entryCount, held), entryBytes);
    builder.addBlocksFrom(table, gpsOffset, false);
}

}  // namespace

FileRange GPSDataLoader::loadBox(std::string_view name, SeekableFile& file, uint64_t offset) {
    return scanForBox(name, file, offset, UINT64_MAX);
}

bool GPSDataLoader::IsMP4(SeekableFile& file, FileRange range) {
    if (file.position() != range.location) file.seek(range.location);
    return range.length == kMP4FtypPayload;
}

bool GPSDataLoader::isGPSData(const uint8_t* header) {
    if (header == nullptr) return false;
    return std::memcmp(header + 8, "GPS ", 4) == 0 && header[15] == 0;
}

GPSTrack GPSDataLoader::LoadTrack(SeekableFile& file) {
    GPSTrack track;
    track.opened = true;
    TrackBuilder builder(file, track);

    const FileRange ftyp = loadBox("ftyp", file, 0);
    track.isMP4 = IsMP4(file, ftyp);
    const FileRange moov = loadBox("moov", file, 0);
    const FileRange gps = loadBox("gps ", file, moov.location);

    if (gps.found()) {
        track.layout = GPSLayout::Index;
        readIndexLayout(file, gps, track.isMP4, builder);
    } else if (!track.isMP4) {
        readSoundChunkLayout(file, moov.location, builder, track);
    }
    track.maxSpeed = float(builder.max());
    return track;
}

GPSTrack GPSDataLoader::LoadTrack(const std::filesystem::path& url) {
    const std::unique_ptr<PosixFile> file = PosixFile::open(url);
    if (!file) {
        GPSTrack track;
        track.openError = errno;
        return track;
    }
    GPSTrack track = LoadTrack(*file);
    // The camera blocks come first: an index claims the movie even empty, the sound chunks only
    // with blocks after them. Only then may another reader claim it.
    const bool blocksClaim = track.layout == GPSLayout::Index || !track.samples.empty();
    if (!blocksClaim) {
        if (std::optional<GPSTrack> other = readOtherTrack(*file, url)) return std::move(*other);
    }
    return track;
}

std::vector<GPSData> GPSDataLoader::LoadGPSDataList(const std::filesystem::path& url, float* maxSpeed) {
    GPSTrack track = LoadTrack(url);
    if (maxSpeed) *maxSpeed = track.maxSpeed;
    return std::move(track.samples);
}
