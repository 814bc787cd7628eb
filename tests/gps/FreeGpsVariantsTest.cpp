// The other block layouts, laid out byte by byte from their published descriptions (not by the
// sample generator, so that a shared misreading of an offset shows up here).

#include "FreeGpsVariants.h"
#include "GPSDataLoader.h"
#include "SyntheticMovie.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <string>

namespace {

constexpr std::size_t kBlockSize = 256;

Bytes emptyBlock(std::size_t size = kBlockSize) {
    Bytes block(size, 0);
    const Bytes head = {0, 0, uint8_t(size >> 8), uint8_t(size), 'f', 'r', 'e', 'e', 'G', 'P', 'S', ' ', 0xF0, 0, 0, 0};
    std::copy(head.begin(), head.end(), block.begin());
    return block;
}

void putLE(Bytes& b, std::size_t at, uint32_t v) {
    for (int i = 0; i < 4; ++i) b[at + std::size_t(i)] = uint8_t(v >> (8 * i));
}
void putBE(Bytes& b, std::size_t at, uint32_t v, int bytes) {
    for (int i = 0; i < bytes; ++i) b[at + std::size_t(i)] = uint8_t(v >> (8 * (bytes - 1 - i)));
}
void putText(Bytes& b, std::size_t at, std::string_view text) { std::copy(text.begin(), text.end(), b.begin() + long(at)); }

// Type 3: 12:34:56 on 2025-07-04 (year 25), float DDMM.MMMM coordinates, knots.
Bytes type3Block(char status, char ns, char ew, uint32_t month = 7) {
    Bytes b = emptyBlock();
    const uint32_t clock[] = {12, 34, 56, 25, month, 4};
    for (std::size_t i = 0; i < 6; ++i) putLE(b, 0x10 + 4 * i, clock[i]);
    b[0x28] = uint8_t(status), b[0x29] = uint8_t(ns), b[0x2A] = uint8_t(ew);
    putLE(b, 0x2C, std::bit_cast<uint32_t>(3352.2500f));  // 33 deg 52.25 min
    putLE(b, 0x30, std::bit_cast<uint32_t>(15112.5000f));
    putLE(b, 0x34, std::bit_cast<uint32_t>(10.0f));
    return b;
}

// Type 1: the plain text XOR 0xAA from byte 18.
Bytes type1Block(std::string_view plain) {
    Bytes b = emptyBlock();
    for (std::size_t i = 0; 18 + i < b.size(); ++i) b[18 + i] = uint8_t(i < plain.size() ? plain[i] : 0) ^ 0xAA;
    return b;
}
const std::string kType1Head("\0\0XKZD\xFE\xFE" "20250704123456" "\x0c" "LABEL          ", 38);

// Type 20: one big-endian record at 0x30.
Bytes type20Block(int32_t latitude, int32_t longitude, uint16_t year = 2025) {
    Bytes b = emptyBlock();
    putBE(b, 0x32, 1000, 2);  // 10 m/s
    putBE(b, 0x34, uint16_t(int16_t(-9000)), 2);
    putBE(b, 0x36, year, 2);
    b[0x38] = 7, b[0x39] = 4, b[0x3A] = 12, b[0x3B] = 34;
    putBE(b, 0x3C, 565, 2);
    putBE(b, 0x3F, uint32_t(latitude), 4);
    putBE(b, 0x43, uint32_t(longitude), 4);
    return b;
}

Bytes type2Block(std::string_view sentence) {
    Bytes b = emptyBlock();
    putText(b, 52, "20250704223456");
    putText(b, 0x50, sentence);
    return b;
}

struct Expected {
    GPSRecordForm form;
    bool fix;
    double latitude, longitude, metresPerSecond;
};

struct Case {
    const char* name;
    Bytes block;
    Expected expected;
};

constexpr double kKnot = 1852.0 / 3600.0;

TEST(FreeGpsVariantsTest, EachLayoutGivesItsFixOrNoFix) {
    const double lat = 33 + 52.25 / 60, lon = 151 + 12.5 / 60;
    const Case cases[] = {
        {"type3 south-east", type3Block('A', 'S', 'E'), {GPSRecordForm::Type3, true, -lat, lon, 10 * kKnot}},
        {"type3 north-west", type3Block('A', 'N', 'W'), {GPSRecordForm::Type3, true, lat, -lon, 10 * kKnot}},
        {"type3 V is no fix", type3Block('V', 'N', 'E'), {GPSRecordForm::Type3, false, 0, 0, 0}},
        {"type3 month 13", type3Block('A', 'N', 'E', 13), {GPSRecordForm::Type3, true, lat, lon, 10 * kKnot}},
        {"type1 eight-digit speed",
         type1Block(kType1Head + "S33522500W15112500000000036"),
         {GPSRecordForm::Type1, true, -lat, -lon, 36 / 3.6}},
        {"type1 signed field then speed",
         type1Block(kType1Head + "N33522500E151125000+0175072"),
         {GPSRecordForm::Type1, true, lat, lon, 72 / 3.6}},
        {"type1 without a position", type1Block(kType1Head + "   "), {GPSRecordForm::Type1, false, 0, 0, 0}},
        {"type20 south-west",
         type20Block(-338708333, -1512083333),
         {GPSRecordForm::Type20, true, -33.8708333, -151.2083333, 10}},
        {"type2 fix",
         type2Block(" $GPRMC,123456.000,A,3352.2500,S,15112.5000,E,10.00,90.0,040725,,,A*00\r\n"),
         {GPSRecordForm::Type2, true, -lat, lon, 10 * kKnot}},
        {"type2 V is no fix",
         type2Block(" $GPRMC,123456.000,V,3352.2500,S,15112.5000,E,10.00,90.0,040725,,,N*00\r\n"),
         {GPSRecordForm::Type2, false, 0, 0, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto form = detectFreeGpsVariant(std::span<const uint8_t, kGPSBlockSize>(c.block.data(), kGPSBlockSize));
        ASSERT_EQ(form, c.expected.form);
        const GPSFix fix = decodeFreeGpsVariant(*form, c.block);
        EXPECT_EQ(fix.quality != GPSFix::Quality::NoFix, c.expected.fix);
        if (!c.expected.fix) continue;
        EXPECT_NEAR(fix.latitude, c.expected.latitude, 1e-6);
        EXPECT_NEAR(fix.longitude, c.expected.longitude, 1e-6);
        ASSERT_TRUE(fix.speedMetresPerSecond);
        EXPECT_NEAR(*fix.speedMetresPerSecond, c.expected.metresPerSecond, 1e-4);
    }
}

TEST(FreeGpsVariantsTest, ClockIsReadAsStoredAndAnImpossibleDateIsDropped) {
    // 2025-07-04 12:34:56 as seconds since 1970 on the camera's clock.
    constexpr double kClock = 1751632496;
    const Bytes type3 = type3Block('A', 'N', 'E');
    EXPECT_EQ(decodeFreeGpsVariant(GPSRecordForm::Type3, type3).clockSeconds, kClock);
    EXPECT_FALSE(decodeFreeGpsVariant(GPSRecordForm::Type3, type3Block('A', 'N', 'E', 13)).clockSeconds);
    EXPECT_EQ(decodeFreeGpsVariant(GPSRecordForm::Type20, type20Block(0, 0)).clockSeconds, kClock + 0.5);
    EXPECT_EQ(decodeFreeGpsVariant(GPSRecordForm::Type1, type1Block(kType1Head + "N00000000E000000000")).clockSeconds,
              kClock);
}

TEST(FreeGpsVariantsTest, ClassicRecordsAndUnknownBlocksAreLeftToTheClassicReading) {
    Bytes classicToo = type3Block('A', 'N', 'E');
    classicToo[0x48] = 'V';  // the classic record's status byte claims the block first
    const Bytes others[] = {classicToo, emptyBlock(), Bytes(kBlockSize, 0x11), type20Block(0, 0, 1999)};
    for (const Bytes& block : others)
        EXPECT_FALSE(detectFreeGpsVariant(std::span<const uint8_t, kGPSBlockSize>(block.data(), kGPSBlockSize)));

    // Coordinates written as text behind the same marks are another maker's layout.
    Bytes text = type3Block('A', 'N', 'E');
    std::fill(text.begin() + 0x2C, text.begin() + 0x54, 0);
    putText(text, 0x2C, "3352.2500");
    putText(text, 0x40, "15112.5000");
    EXPECT_FALSE(detectFreeGpsVariant(std::span<const uint8_t, kGPSBlockSize>(text.data(), kGPSBlockSize)));
}

// The loader: block k becomes sample k whatever its layout; a block cut short by the end of the
// file still counts when its head is there, and is skipped when even that is missing.
TEST(FreeGpsVariantsTest, LoaderKeepsOneSampleABlockAndSurvivesTruncation) {
    const Bytes blocks[] = {type3Block('A', 'S', 'W'), type3Block('V', 'N', 'E'),
                            type2Block(" $GPRMC,123456.000,A,3352.2500,S,15112.5000,E,10.00,90.0,040725,,,A*00\r\n")};
    for (std::size_t cut : {std::size_t(0), std::size_t(120), std::size_t(200)}) {
        SCOPED_TRACE(cut);
        Bytes media;
        std::vector<uint32_t> offsets;
        const Bytes head = ftyp(32);
        const Bytes index = gpsIndex({0, 0, 0}, 3);  // fixed up below: offsets depend on the index's place
        const std::size_t mediaStart = head.size() + 8 + index.size() + 8 + 8 + 100 + 8;
        for (const Bytes& block : blocks) {
            offsets.push_back(uint32_t(mediaStart + media.size()));
            media.insert(media.end(), block.begin(), block.end());
        }
        media.resize(media.size() - cut);
        const Bytes movie = concat({head, box("moov", concat({box("mvhd", Bytes(100)), box("gps ", gpsIndex(offsets, 3))})),
                                    box("mdat", media)});
        MemoryFile file(movie);
        const GPSTrack track = GPSDataLoader::LoadTrack(file);
        const std::size_t expected = cut == 200 ? 2 : 3;  // 56 bytes left of the last block: not even its head
        ASSERT_EQ(track.samples.size(), expected);
        EXPECT_EQ(track.formCounts[std::size_t(GPSRecordForm::Type3)], 2u);
        EXPECT_NEAR(track.samples[0].Latitude(), -(33 + 52.25 / 60), 1e-5);
        EXPECT_NEAR(track.samples[0].Longitude(), -(151 + 12.5 / 60), 1e-4);
        EXPECT_EQ(track.samples[1].data().rmcinfo.Status, 'V');
        if (expected == 3) {
            // Cut inside its sentence, the NMEA block has no fix left in it.
            EXPECT_EQ(track.samples[2].data().rmcinfo.Status, cut == 0 ? 'A' : 'V');
        }
    }
}

}  // namespace
