#include "GPSDataLoader.h"
#include "SyntheticMovie.h"

#include <gtest/gtest.h>

namespace {

FileRange find(const Bytes& bytes, std::string_view name, uint64_t offset = 0) {
    MemoryFile file(bytes);
    return GPSDataLoader::loadBox(name, file, offset);
}

TEST(BoxReaderTest, FindsTopLevelBoxesPastMediaData) {
    const Bytes movie = concat({ftyp(28), box("mdat", Bytes(1000, 0xAB)), box("moov", box("mvhd", Bytes(100, 0)))});
    EXPECT_EQ(find(movie, "ftyp"), (FileRange{8, 20}));
    EXPECT_EQ(find(movie, "moov"), (FileRange{28 + 1008 + 8, 108}));
    EXPECT_FALSE(find(movie, "trak").found());
    // A match leaves the file at its payload.
    MemoryFile file(movie);
    EXPECT_EQ(file.position(), 0u);
    const FileRange moov = GPSDataLoader::loadBox("moov", file, 0);
    EXPECT_EQ(file.position(), moov.location);
}

TEST(BoxReaderTest, ChildSearchRunsOnPastTheEnclosingBox) {
    const Bytes movie = concat({ftyp(28), box("moov", box("mvhd", Bytes(12, 0))), box("gps ", Bytes(16, 1))});
    const FileRange moov = find(movie, "moov");
    EXPECT_EQ(find(movie, "gps ", moov.location), (FileRange{28 + 28 + 8, 16}));
}

TEST(BoxReaderTest, MatchesTypesExactly) {
    const struct {
        const char* name;
        Bytes movie;
        std::string_view wanted;
        bool found;
    } cases[] = {
        {"case matters", box("gps ", Bytes(4)), "GPS ", false},
        {"a zero byte in the type never matches", box(std::string_view("gp\0 ", 4), Bytes(4)),
         std::string_view("gp\0 ", 4), false},
        {"a prefix is no match", box("gpsx", Bytes(4)), "gps", false},
        {"an empty payload matches", box("free"), "free", true},
    };
    for (const auto& c : cases) EXPECT_EQ(find(c.movie, c.wanted).found(), c.found) << c.name;
}

Bytes rawBox(uint32_t size, std::string_view type) {
    Bytes out;
    appendU32BE(out, size);
    out.insert(out.end(), type.begin(), type.end());
    return out;
}

TEST(BoxReaderTest, BrokenSizesAndShortFilesEndTheScan) {
    for (std::size_t size = 0; size < 8; ++size) EXPECT_FALSE(find(Bytes(size, 0x10), "ftyp").found()) << size;
    EXPECT_FALSE(find(concat({box("free", Bytes(8)), Bytes{0, 0, 0, 16, 'm', 'o'}}), "moov").found());
    const Bytes target = box("moov", Bytes(8));
    for (uint32_t size : {0u, 1u, 7u})
        EXPECT_FALSE(find(concat({rawBox(size, "free"), Bytes(16), target}), "moov").found()) << size;
    // A size running past the end of the file hides what follows, but the box itself is found.
    EXPECT_FALSE(find(concat({rawBox(1u << 30, "free"), target}), "moov").found());
    EXPECT_EQ(find(concat({rawBox(1u << 30, "moov")}), "moov"), (FileRange{8, (1u << 30) - 8}));
    // A matching box too small for its own header is no box.
    EXPECT_FALSE(find(rawBox(4, "moov"), "moov").found());
}

TEST(GPSHeaderTest, NeedsTheTagAndAZeroLastByte) {
    EXPECT_FALSE(GPSDataLoader::isGPSData(nullptr));
    const uint8_t good[16] = {0, 0, 0, 92, 'f', 'r', 'e', 'e', 'G', 'P', 'S', ' ', 0x11, 0x22, 0x33, 0};
    EXPECT_TRUE(GPSDataLoader::isGPSData(good));  // bytes 0..7 and 12..14 do not matter
    for (const auto& [at, value] : {std::pair{15, 0x4C}, {11, 0}, {8, 'g'}}) {
        uint8_t header[16];
        std::copy_n(good, 16, header);
        header[at] = uint8_t(value);
        EXPECT_FALSE(GPSDataLoader::isGPSData(header)) << at;
    }
}

}  // namespace
