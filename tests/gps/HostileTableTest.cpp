// Tables whose counts and sizes claim gigabytes: the loader must stay within a small buffer, read
// each repeated block once and keep the track within its ceiling.
#include "GPSDataLoader.h"
#include "SyntheticMovie.h"
#include "TableStream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string_view>

namespace {

// A file of any claimed size that holds real bytes at a few places and, from `patternFrom` on, a
// repeating pattern (zeros when none): a sparse file without the disk. Counts what is asked of it.
class SparseFakeFile final : public SeekableFile {
public:
    SparseFakeFile(uint64_t size, Bytes pattern = {}, uint64_t patternFrom = UINT64_MAX)
        : size_(size), pattern_(std::move(pattern)), patternFrom_(patternFrom) {}

    void place(uint64_t offset, const Bytes& bytes) { pieces_[offset] = bytes; }
    uint64_t size() const override { return size_; }

    uint64_t reads = 0;
    uint64_t blockReads = 0;  // reads of one GPS block's size
    std::size_t largestRead = 0;

protected:
    std::size_t readAt(uint64_t offset, std::span<uint8_t> buffer) override {
        ++reads;
        if (buffer.size() == kGPSBlockSize) ++blockReads;
        largestRead = std::max(largestRead, buffer.size());
        if (offset >= size_) return 0;
        const std::size_t n = std::size_t(std::min<uint64_t>(buffer.size(), size_ - offset));
        for (std::size_t i = 0; i < n; ++i) {
            const uint64_t at = offset + i;
            buffer[i] = at >= patternFrom_ && !pattern_.empty() ? pattern_[(at - patternFrom_) % pattern_.size()] : 0;
        }
        for (const auto& [start, bytes] : pieces_) {
            const uint64_t from = std::max(start, offset), to = std::min(start + bytes.size(), offset + n);
            for (uint64_t at = from; at < to; ++at) buffer[at - offset] = bytes[at - start];
        }
        return n;
    }

private:
    uint64_t size_;
    Bytes pattern_;
    uint64_t patternFrom_;
    std::map<uint64_t, Bytes> pieces_;
};

// A box header claiming `payload` bytes that the caller's file must then provide.
Bytes boxHeader(std::string_view type, uint64_t payload) {
    Bytes out;
    appendU32BE(out, uint32_t(payload + 8));
    out.insert(out.end(), type.begin(), type.end());
    return out;
}

Bytes u32Pattern(std::initializer_list<uint32_t> words) {
    Bytes out;
    for (uint32_t w : words) appendU32BE(out, w);
    return out;
}

constexpr uint64_t kMiB = uint64_t(1) << 20;
constexpr uint64_t kGiB = uint64_t(1) << 30;
constexpr uint32_t kClaimedCount = 0xFFFFFFFF;

// ftyp, then a "gps " box at the top level whose index claims `payload` bytes and a huge count,
// every entry naming `blockOffset`. The entries start at byte 28 + 8 + 8 = 44.
SparseFakeFile hostileIndex(uint64_t payload, uint64_t fileSize, uint32_t blockOffset) {
    constexpr uint64_t indexAt = 28 + 8;
    SparseFakeFile file(fileSize, u32Pattern({blockOffset, 0}), indexAt + 8);
    file.place(0, concat({ftyp(28), boxHeader("gps ", payload), u32Pattern({0, kClaimedCount})}));
    return file;
}

TEST(HostileTableTest, IndexOfOneValidBlockStopsAtTheTrackCeiling) {
    // A file that claims a terabyte: the box's own payload bounds the walk.
    const uint64_t payload = 8 * (GPSDataLoader::kMaxTrackSamples + 1000);
    const uint32_t blockAt = uint32_t(36 + payload);
    SparseFakeFile file = hostileIndex(payload, 1024 * kGiB, blockAt);
    file.place(blockAt, gpsBlock(fixedPointRecord(10000000, 1142500000, 1000)));
    const GPSTrack track = GPSDataLoader::LoadTrack(file);
    EXPECT_EQ(track.samples.size(), GPSDataLoader::kMaxTrackSamples);
    EXPECT_EQ(track.formCounts[std::size_t(GPSRecordForm::MP4)], GPSDataLoader::kMaxTrackSamples);
    EXPECT_EQ(track.samples.back().LatitudeText(), track.samples.front().LatitudeText());
    EXPECT_EQ(file.blockReads, 1u);
}

// A non-MP4 movie whose sound track's stco claims `payload` bytes and a huge count, every chunk
// offset equal to `chunk`; the sound format puts blocks 32768 bytes after a chunk's start.
Bytes chunkTableHead(uint64_t payload) {
    const Bytes sound =
        concat({box("tkhd", tkhd(0, 0)), boxHeader("mdia", 0), boxHeader("minf", 0), boxHeader("stbl", 0),
                box("stsd", soundStsd(1, 16, 8000)), boxHeader("stco", payload), u32Pattern({0, kClaimedCount})});
    return concat({ftyp(20), boxHeader("moov", 0), boxHeader("trak", sound.size()), sound});
}

SparseFakeFile hostileChunkTable(uint64_t payload, uint64_t fileSize, uint32_t chunk) {
    const Bytes head = chunkTableHead(payload);
    SparseFakeFile file(fileSize, u32Pattern({chunk}), head.size());
    file.place(0, head);
    return file;
}

TEST(HostileTableTest, TablesOfNothingAreBoundedByTheFileAndReadWithinOneBuffer) {
    // The tables claim 2 GiB, the file holds 16 MiB of them; every entry names offset 0, where no
    // GPS block lies: one read of a block, and the table in whole buffers plus the box headers.
    for (const bool index : {true, false}) {
        SparseFakeFile file = index ? hostileIndex(2 * kGiB, 16 * kMiB, 0) : hostileChunkTable(2 * kGiB, 16 * kMiB, 0);
        const GPSTrack track = GPSDataLoader::LoadTrack(file);
        EXPECT_TRUE(track.samples.empty()) << index;
        EXPECT_EQ(track.layout, index ? GPSLayout::Index : GPSLayout::SoundChunk);
        EXPECT_LE(file.largestRead, TableStream::kBufferBytes) << index;
        EXPECT_EQ(file.blockReads, 1u) << index;
        EXPECT_LE(file.reads, 16 * kMiB / TableStream::kBufferBytes + 20) << index;
    }
}

TEST(HostileTableTest, ChunkTableOfOneValidBlockStopsAtTheTrackCeiling) {
    const uint64_t payload = 8 + 4 * (GPSDataLoader::kMaxTrackSamples + 1000);
    const uint32_t chunkAt = uint32_t(chunkTableHead(payload).size() - 8 + payload);  // just past the table
    SparseFakeFile file = hostileChunkTable(payload, chunkAt + 32768 + kGPSBlockSize, chunkAt);
    file.place(chunkAt + 32768, gpsBlock(fixedPointRecord(20000000, 1142500000, 1000)));
    const GPSTrack track = GPSDataLoader::LoadTrack(file);
    EXPECT_EQ(track.samples.size(), GPSDataLoader::kMaxTrackSamples);
    EXPECT_EQ(track.samples.front().LatitudeText(), "02.00000");
    EXPECT_EQ(file.blockReads, 1u);
}

TEST(HostileTableTest, ChunkTableStopsAtItsOwnBox) {
    // The count claims three entries, the box holds two; the word after the box names the same
    // valid chunk, so reading past the box would give a third sample.
    const uint32_t chunkAt = 20 + 8;  // the media data's payload, after a 20-byte ftyp
    Bytes media(32768 + kGPSBlockSize, 0x11);
    const Bytes block = gpsBlock(fixedPointRecord(10000000, 1142500000, 1000));
    std::copy(block.begin(), block.end(), media.begin() + 32768);
    const Bytes stbl = concat({box("stsd", soundStsd(1, 16, 8000)), box("stco", u32Pattern({0, 3, chunkAt, chunkAt}))});
    const Bytes sound = box("trak", concat({box("tkhd", tkhd(0, 0)), box("mdia", box("minf", box("stbl", stbl)))}));
    const Bytes movie = concat({ftyp(20), box("mdat", media), box("moov", sound), u32Pattern({chunkAt})});
    MemoryFile file(movie);
    EXPECT_EQ(GPSDataLoader::LoadTrack(file).samples.size(), 2u);
}

// The same hostile chunk table as a sparse file on disk and as bytes in memory: the hole, which
// the loader hands out as zeros without reading, must load exactly like the zeros it stands for.
TEST(HostileTableTest, SparseFileLoadsLikeTheBytesItHolds) {
    const auto path = std::filesystem::temp_directory_path() / "dashtrack-hostile-sparse.mov";
    for (const bool validBlock : {true, false}) {
        SCOPED_TRACE(validBlock);
        constexpr uint64_t fileSize = 16 * kMiB;
        Bytes bytes = chunkTableHead(2 * kGiB);
        bytes.resize(fileSize, 0);
        // Zero chunk offsets put every block at 32768, right after the sound format's second.
        const Bytes block = gpsBlock(fixedPointRecord(10000000, 1142500000, 1000), validBlock ? 0 : 0x4C);
        std::copy(block.begin(), block.end(), bytes.begin() + 32768);
        {
            std::ofstream out(path, std::ios::binary | std::ios::trunc);
            out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(32768 + block.size()));
        }
        std::filesystem::resize_file(path, fileSize);  // the rest is a hole

        const GPSTrack fromDisk = GPSDataLoader::LoadTrack(path);
        MemoryFile memory(bytes);
        const GPSTrack fromMemory = GPSDataLoader::LoadTrack(memory);
        EXPECT_EQ(fromDisk.samples.size(), validBlock ? GPSDataLoader::kMaxTrackSamples : 0u);
        EXPECT_EQ(fromDisk.samples.size(), fromMemory.samples.size());
        EXPECT_EQ(fromDisk.maxSpeed, fromMemory.maxSpeed);
    }
    std::filesystem::remove(path);
}

}  // namespace
