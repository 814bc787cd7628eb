#include "GPSBlockReader.h"
#include "GPSDataLoader.h"
#include "SyntheticMovie.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>

namespace {

// A movie whose GPS blocks sit in the media data, listed by a "gps " box after the movie header.
Bytes indexMovie(std::size_t ftypSize, const std::vector<Bytes>& blocks, std::optional<uint32_t> entryCount = {}) {
    const Bytes head = ftyp(ftypSize);
    Bytes media;
    std::vector<uint32_t> offsets;
    for (const Bytes& block : blocks) {
        media.insert(media.end(), 40, 0x55);  // stands in for a second of picture and sound
        offsets.push_back(uint32_t(head.size() + 8 + media.size()));
        media.insert(media.end(), block.begin(), block.end());
    }
    const Bytes index = gpsIndex(offsets, entryCount.value_or(uint32_t(offsets.size())));
    return concat({head, box("mdat", media), box("moov", concat({box("mvhd", Bytes(100)), box("gps ", index)}))});
}

struct SoundFormat {
    uint16_t channels, bits, rate;
    uint32_t gpsOffset;
};

// A movie with one GPS block after each sound chunk, at the distance the sound format implies.
Bytes soundChunkMovie(const SoundFormat& format, const std::vector<Bytes>& blocks, std::size_t ftypSize = 20,
                      std::optional<uint32_t> entryCount = {}, bool videoTrackWithoutHeader = false) {
    const Bytes head = ftyp(ftypSize);
    Bytes media;
    std::vector<uint32_t> chunks;
    for (const Bytes& block : blocks) {
        chunks.push_back(uint32_t(head.size() + 8 + media.size()));
        media.resize(media.size() + format.gpsOffset, 0x11);
        media.insert(media.end(), block.begin(), block.end());
    }
    Bytes video = track(1920, 1080, Bytes(48), stco({}, 0));
    if (videoTrackWithoutHeader) video = box("trak", box("mdia", Bytes(8)));
    const Bytes sound = track(0, 0, soundStsd(format.channels, format.bits, format.rate),
                              stco(chunks, entryCount.value_or(uint32_t(chunks.size()))));
    return concat({head, box("mdat", media), box("moov", concat({box("mvhd", Bytes(100)), video, sound}))});
}

Bytes fixedBlock(int32_t latitude, uint32_t speed = 1000, uint8_t tail = 0) {
    return gpsBlock(fixedPointRecord(latitude, 1142500000, speed), tail);
}

GPSTrack load(const Bytes& bytes) {
    MemoryFile file(bytes);
    return GPSDataLoader::LoadTrack(file);
}

std::vector<std::string> latitudes(const GPSTrack& track) {
    std::vector<std::string> texts;
    for (const GPSData& sample : track.samples) texts.push_back(sample.LatitudeText());
    return texts;
}

using Texts = std::vector<std::string>;

TEST(IndexLayoutTest, ReadsBlocksInIndexOrderAndSkipsBadOnes) {
    const GPSTrack track = load(indexMovie(
        20, {fixedBlock(10000000), fixedBlock(20000000, 0, 0x4C), fixedBlock(30000000), fixedBlock(40000000)}));
    EXPECT_EQ(track.layout, GPSLayout::Index);
    EXPECT_EQ(latitudes(track), (Texts{"01.00000", "03.00000", "04.00000"}));
}

TEST(IndexLayoutTest, FtypLengthChoosesTheMp4Form) {
    const std::vector<Bytes> blocks(3, gpsBlock(mp4Record(255.48216f, 'N', 0, 'E', 10)));
    const GPSTrack mp4 = load(indexMovie(28, blocks));
    EXPECT_TRUE(mp4.isMP4);
    EXPECT_EQ(latitudes(mp4), Texts(3, "22.50000"));
    EXPECT_EQ(mp4.formCounts[std::size_t(GPSRecordForm::MP4)], 3u);

    EXPECT_FALSE(load(concat({box("moov"), box("gps ", gpsIndex({}, 0))})).isMP4);  // no ftyp at all
    const GPSTrack other = load(indexMovie(32, blocks));                            // Year 16: the scaled form
    EXPECT_FALSE(other.isMP4);
    EXPECT_EQ(other.formCounts[std::size_t(GPSRecordForm::Scaled)], 3u);
    EXPECT_EQ(latitudes(other), Texts(3, "02.56079"));
}

TEST(IndexLayoutTest, FollowsEntriesNotFilePosition) {
    // The index example of two entries pointing far into the file, listed out of file order.
    Bytes movie = concat({ftyp(20), box("moov", box("gps ", gpsIndex({131072, 65536}, 2)))});
    movie.resize(131072 + kGPSBlockSize, 0);
    const Bytes first = fixedBlock(10000000), second = fixedBlock(20000000);
    std::copy(first.begin(), first.end(), movie.begin() + 131072);
    std::copy(second.begin(), second.end(), movie.begin() + 65536);
    EXPECT_EQ(latitudes(load(movie)), (Texts{"01.00000", "02.00000"}));
}

TEST(IndexLayoutTest, StopsAtTheEntriesTheIndexHolds) {
    const std::vector<Bytes> blocks{fixedBlock(10000000), fixedBlock(20000000)};
    EXPECT_EQ(load(indexMovie(20, blocks, 0)).samples.size(), 0u);
    EXPECT_EQ(load(indexMovie(20, blocks, 1)).samples.size(), 1u);
    EXPECT_EQ(load(indexMovie(20, blocks, 0xFFFFFFFF)).samples.size(), 2u);
}

TEST(IndexLayoutTest, BlocksOutsideTheFileAreSkipped) {
    // Entries pointing past the end of the file and at a block cut off by it.
    const Bytes head = concat({ftyp(20), box("moov")});
    const uint32_t cutBlockAt = uint32_t(head.size() + 8 + 8 + 3 * 8);
    const Bytes block = fixedBlock(20000000);
    const Bytes movie = concat({head, box("gps ", gpsIndex({0xFFFFFF00, cutBlockAt, cutBlockAt + 45}, 3)),
                                Bytes(block.begin(), block.begin() + 90)});
    EXPECT_TRUE(load(movie).samples.empty());
    EXPECT_EQ(load(concat({movie, Bytes{0, 0}})).samples.size(), 1u);  // two bytes more make it whole
    // An index shorter than its own header.
    EXPECT_TRUE(load(concat({ftyp(20), box("moov"), box("gps ", Bytes(6, 0xFF))})).samples.empty());
}

TEST(IndexLayoutTest, MaximumSpeedIsTheLargestStoredSpeed) {
    auto block = [](float speed) { return gpsBlock(mp4Record(200, 'N', 2200, 'E', speed)); };
    EXPECT_FLOAT_EQ(load(indexMovie(28, {block(10), block(55.5f), block(30)})).maxSpeed, 55.5f);
    EXPECT_EQ(load(indexMovie(28, {block(0), block(0)})).maxSpeed, 0.0f);
    EXPECT_EQ(load(indexMovie(28, {block(-500), block(7)})).maxSpeed, 200.0f);  // the stored speed is capped
}

// Bytes in memory that keep a count of the reads starting at a GPS block.
class BlockReadCountingFile final : public SeekableFile {
public:
    BlockReadCountingFile(Bytes bytes, std::vector<uint32_t> blockOffsets)
        : file_(std::move(bytes)), size_(file_.size()), blockOffsets_(std::move(blockOffsets)) {}
    uint64_t size() const override { return size_; }

    std::size_t blockReads = 0;
    std::size_t largestBlockRead = 0;

protected:
    std::size_t readAt(uint64_t offset, std::span<uint8_t> buffer) override {
        if (std::find(blockOffsets_.begin(), blockOffsets_.end(), offset) != blockOffsets_.end()) {
            ++blockReads;
            largestBlockRead = std::max(largestBlockRead, buffer.size());
        }
        file_.seek(offset);
        return file_.read(buffer);
    }

private:
    MemoryFile file_;
    uint64_t size_;
    std::vector<uint32_t> blockOffsets_;
};

TEST(IndexLayoutTest, CloseBlocksListedInFileOrderShareAReadThatStaysBounded) {
    constexpr std::size_t kClose = 40, kFar = GPSBlockReader::kNeighbourGap + 1;
    const struct {
        const char* what;
        std::size_t blocks;
        std::size_t gap;  // bytes between one block's end and the next one's start
        std::vector<std::size_t> order;  // the index's entries as block numbers; empty: in file order
        std::size_t expectedReads;
    } cases[] = {
        {"close, in file order", 5, kClose, {}, 1},
        {"close, listed backwards", 5, kClose, {4, 3, 2, 1, 0}, 5},
        {"far apart", 5, kFar, {}, 5},
        {"close, listed again", 3, kClose, {0, 1, 0, 1, 2, 2, 0}, 1},
        // 132 bytes a block: 496 fit in one bounded read.
        {"more than one read holds", 2000, kClose, {}, 5},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const Bytes head = ftyp(20);
        Bytes media;
        std::vector<uint32_t> offsets;
        for (std::size_t i = 0; i < c.blocks; ++i) {
            media.insert(media.end(), c.gap, 0x55);
            offsets.push_back(uint32_t(head.size() + 8 + media.size()));
            const Bytes block = fixedBlock(int32_t(i + 1) * 10000);
            media.insert(media.end(), block.begin(), block.end());
        }
        std::vector<std::size_t> order = c.order;
        for (std::size_t i = 0; order.size() < c.blocks && c.order.empty(); ++i) order.push_back(i);
        std::vector<uint32_t> listed;
        for (const std::size_t i : order) listed.push_back(offsets[i]);
        const Bytes movie =
            concat({head, box("mdat", media), box("moov", box("gps ", gpsIndex(listed, uint32_t(listed.size()))))});
        BlockReadCountingFile file(movie, offsets);
        const GPSTrack track = GPSDataLoader::LoadTrack(file);
        ASSERT_EQ(track.samples.size(), order.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            EXPECT_EQ(track.samples[i].data().rmcinfo.Latitude, float((order[i] + 1) * 10000) / 10000000.0f) << i;
        EXPECT_EQ(file.blockReads, c.expectedReads);
        EXPECT_LE(file.largestBlockRead, GPSBlockReader::kSpanBytes);
    }
}

TEST(SoundChunkLayoutTest, FindsABlockAfterEverySoundChunk) {
    const std::vector<Bytes> blocks{fixedBlock(10000000), fixedBlock(20000000)};
    for (const SoundFormat& format :
         {SoundFormat{1, 16, 8000, 32768}, SoundFormat{1, 16, 22050, 65536}, SoundFormat{2, 16, 48000, 196608},
          SoundFormat{1, 16, 32768, 98304}, SoundFormat{1, 8, 8000, 32768}}) {
        const GPSTrack track = load(soundChunkMovie(format, blocks));
        EXPECT_EQ(track.layout, GPSLayout::SoundChunk) << format.rate;
        EXPECT_EQ(latitudes(track), (Texts{"01.00000", "02.00000"})) << format.rate;
    }
    // The chunk table as far as its count goes.
    const SoundFormat format{1, 16, 8000, 32768};
    EXPECT_TRUE(load(soundChunkMovie(format, blocks, 20, 0)).samples.empty());
    EXPECT_EQ(load(soundChunkMovie(format, blocks, 20, 1)).samples.size(), 1u);
    EXPECT_EQ(load(soundChunkMovie(format, blocks, 20, 0x40000000)).samples.size(), 2u);
}

TEST(SoundChunkLayoutTest, MoviesWhereNoBlockFollowsASoundChunk) {
    const struct {
        const char* name;
        Bytes movie;
    } cases[] = {
        // Blocks written where 8000 Hz would put them, in a movie that says 22050 Hz.
        {"wrong distance", soundChunkMovie({1, 16, 22050, 32768}, {fixedBlock(10000000)})},
        {"the MP4 form has no sound-chunk fallback", soundChunkMovie({1, 16, 8000, 32768}, {fixedBlock(10000000)}, 28)},
        {"no sound track", concat({ftyp(20), box("moov", track(640, 480, Bytes(48), stco({}, 0)))})},
    };
    for (const auto& c : cases) EXPECT_TRUE(load(c.movie).samples.empty()) << c.name;
    EXPECT_EQ(load(cases[1].movie).layout, GPSLayout::None) << "not even tried";
}

TEST(SoundChunkLayoutTest, TrackWithoutHeaderIsSkipped) {
    const GPSTrack track = load(soundChunkMovie({1, 16, 8000, 32768}, {fixedBlock(10000000)}, 20, {}, true));
    EXPECT_EQ(latitudes(track), (Texts{"01.00000"}));
}

TEST(LoadGPSDataListTest, UnopenableAndSpecialFilesGiveAnEmptyTrackWithoutBlocking) {
    const std::filesystem::path tmp = std::filesystem::temp_directory_path();
    for (const auto& path : {tmp / "dashtrack-no-such-file.mov", tmp}) {
        float maxSpeed = 99;
        EXPECT_TRUE(GPSDataLoader::LoadGPSDataList(path, &maxSpeed).empty()) << path;
        EXPECT_EQ(maxSpeed, 0.0f);
        EXPECT_NE(GPSDataLoader::LoadTrack(path).openError, 0);
    }
    EXPECT_TRUE(GPSDataLoader::LoadGPSDataList(tmp, nullptr).empty());
    const std::filesystem::path fifo = std::filesystem::temp_directory_path() / "dashtrack-loader-test.fifo";
    std::filesystem::remove(fifo);
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(GPSDataLoader::LoadTrack(fifo).openError, EINVAL);
    EXPECT_EQ(GPSDataLoader::LoadTrack("/dev/null").openError, EINVAL);
    EXPECT_EQ(GPSDataLoader::LoadTrack(tmp).openError, EISDIR);
    std::filesystem::remove(fifo);
}

// Every prefix of a valid movie must load without harm, giving at most the whole track.
TEST(LoadGPSDataListTest, TruncatedMoviesNeverGiveMoreThanTheWhole) {
    const Bytes indexed = indexMovie(28, std::vector<Bytes>(3, gpsBlock(mp4Record(200, 'N', 2200, 'E', 9))));
    const Bytes chunked = soundChunkMovie({1, 16, 8000, 32768}, {fixedBlock(1), fixedBlock(2), fixedBlock(3)});
    for (const Bytes* movie : {&indexed, &chunked}) {
        const std::size_t whole = load(*movie).samples.size();
        ASSERT_EQ(whole, 3u);
        const std::size_t stride = movie->size() > 10000 ? 61 : 1;
        for (std::size_t length = 0; length < movie->size(); length += stride) {
            const GPSTrack track = load(Bytes(movie->begin(), movie->begin() + std::ptrdiff_t(length)));
            EXPECT_LE(track.samples.size(), whole) << length;
        }
    }
}

}  // namespace
