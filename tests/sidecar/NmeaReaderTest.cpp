#include "NmeaReader.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

using Quality = GPSFix::Quality;
using namespace std::string_literals;

// The textbook pair: 12:35:19 UTC on 23 March 1994 at 48°07.038'N 11°31.000'E, whose checksums are
// given with it wherever NMEA is described.
const std::string kRmc = "$GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6A";
const std::string kGga = "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*47";
constexpr double kRmcClock = 764426119.0;

// "$" + body + "*hh" with the checksum the body needs.
std::string sentence(const std::string& body) {
    unsigned sum = 0;
    for (const char c : body) sum ^= static_cast<unsigned char>(c);
    char checksum[4];
    std::snprintf(checksum, sizeof checksum, "*%02X", sum);
    return "$" + body + checksum;
}

struct CountCase {
    const char* what;
    std::string text;
    std::size_t sidecarFixes;   // checksums that are present must match
    std::size_t embeddedFixes;  // checksums ignored
};

class NmeaCountTest : public testing::TestWithParam<CountCase> {};

TEST_P(NmeaCountTest, TakesOrSkipsSentences) {
    const CountCase& c = GetParam();
    EXPECT_EQ(readNmeaFixes(c.text, NmeaReadOptions::forSidecar()).size(), c.sidecarFixes) << c.what;
    EXPECT_EQ(readNmeaFixes(c.text, NmeaReadOptions::forEmbeddedText()).size(), c.embeddedFixes) << c.what;
}

const std::string kBody = "GPRMC,101010,A,4529.87489,N,00912.12345,E,10.0,90.0,150624,,,A";

INSTANTIATE_TEST_SUITE_P(
    Framing, NmeaCountTest,
    testing::Values(
        CountCase{"valid checksum", kRmc, 1, 1},
        CountCase{"wrong checksum", "$GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6B", 0, 1},
        CountCase{"checksum not hex", "$" + kBody + "*ZZ", 0, 1},
        CountCase{"no checksum", "$" + kBody, 1, 1},
        CountCase{"no dollar", kBody, 1, 1},
        CountCase{"lower-case checksum", kRmc.substr(0, kRmc.size() - 1) + "a", 1, 1},
        CountCase{"GN talker", sentence("GNRMC" + kBody.substr(5)), 1, 1},
        CountCase{"GLONASS-only talker is not read", sentence("GLRMC" + kBody.substr(5)), 0, 0},
        CountCase{"other sentences", sentence("GPVTG,084.4,T,077.8,M,022.4,N,041.5,K") + "\r\n" +
                                         sentence("GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1"), 0, 0},
        CountCase{"CRLF, LF, CR and NUL padding", sentence(kBody) + "\r\n" + sentence(kBody) + "\n" +
                                                      sentence(kBody) + "\r" + sentence(kBody) + "\0\0\0"s,
                  4, 4},
        CountCase{"several on one line by ';'", "gsensori,4,512,-3,21;" + kBody + ";CAR,0,0,0", 1, 1},
        CountCase{"two glued by '$'", sentence(kBody) + sentence(kBody), 2, 2},
        CountCase{"a camera clock before the '$'", "[1718446210000]" + sentence(kBody), 1, 1},
        CountCase{"blanks around", "  " + sentence(kBody) + " \t", 1, 1},
        CountCase{"longer than any sentence", "$" + kBody + std::string(300, '0'), 0, 0},
        CountCase{"empty text", "", 0, 0}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

// Each body breaks one field of an otherwise good RMC; the sentence must go, not become a fix.
INSTANTIATE_TEST_SUITE_P(
    MalformedFields, NmeaCountTest,
    testing::Values(
        CountCase{"hour 24", "GPRMC,241010,A,4529.87489,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"minute 60", "GPRMC,106010,A,4529.87489,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"short time", "GPRMC,1010,A,4529.87489,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"no time", "GPRMC,,A,4529.87489,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"status B", "GPRMC,101010,B,4529.87489,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"minutes 60", "GPRMC,101010,A,4560.00000,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"latitude 91", "GPRMC,101010,A,9100.00000,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"longitude 181", "GPRMC,101010,A,4529.87489,N,18100.00000,E,10.0,90.0,150624", 0, 0},
        CountCase{"huge latitude", "GPRMC,101010,A,99999999999999999999999999.9,N,00912.12345,E,1,9,150624", 0, 0},
        CountCase{"longer than any number",
                  "GPRMC,101010,A,4529.000000000000000000000000000000000000001,N,00912.12345,E,1,9,150624", 0, 0},
        CountCase{"signed latitude", "GPRMC,101010,A,-4529.87489,N,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"hemisphere X", "GPRMC,101010,A,4529.87489,X,00912.12345,E,10.0,90.0,150624", 0, 0},
        CountCase{"half a position", "GPRMC,101010,A,4529.87489,N,,,10.0,90.0,150624", 0, 0},
        CountCase{"fix without position", "GPRMC,101010,A,,,,,10.0,90.0,150624", 0, 0},
        CountCase{"exponent speed", "GPRMC,101010,A,4529.87489,N,00912.12345,E,1e3,90.0,150624", 0, 0},
        CountCase{"nan speed", "GPRMC,101010,A,4529.87489,N,00912.12345,E,nan,90.0,150624", 0, 0},
        CountCase{"negative speed", "GPRMC,101010,A,4529.87489,N,00912.12345,E,-1.0,90.0,150624", 0, 0},
        CountCase{"supersonic speed", "GPRMC,101010,A,4529.87489,N,00912.12345,E,99999,90.0,150624", 0, 0},
        CountCase{"course 361", "GPRMC,101010,A,4529.87489,N,00912.12345,E,10.0,361,150624", 0, 0},
        CountCase{"31 February", "GPRMC,101010,A,4529.87489,N,00912.12345,E,10.0,90.0,310224", 0, 0},
        CountCase{"date 000000", "GPRMC,101010,A,4529.87489,N,00912.12345,E,10.0,90.0,000000", 0, 0},
        CountCase{"date too long", "GPRMC,101010,A,4529.87489,N,00912.12345,E,10.0,90.0,15062024", 0, 0},
        CountCase{"fields cut short", "GPRMC,101010,A,4529.87", 0, 0},
        CountCase{"empty speed, course and date are absent",
                  "GPRMC,101010,A,4529.87489,N,00912.12345,E,,,", 1, 1}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

TEST(NmeaReaderTest, ReadsTheRmcFields) {
    const auto fixes = readNmeaFixes(kRmc);
    ASSERT_EQ(fixes.size(), 1u);
    const GPSFix& fix = fixes[0];
    EXPECT_NEAR(fix.latitude, 48 + 7.038 / 60, 1e-9);
    EXPECT_NEAR(fix.longitude, 11 + 31.0 / 60, 1e-9);
    EXPECT_NEAR(*fix.speedMetresPerSecond, 22.4 * 1852 / 3600, 1e-9);
    EXPECT_DOUBLE_EQ(*fix.headingDegrees, 84.4);
    EXPECT_DOUBLE_EQ(*fix.clockSeconds, kRmcClock);
    EXPECT_FALSE(fix.movieSeconds);
    EXPECT_FALSE(fix.altitudeMetres);
    EXPECT_EQ(fix.quality, Quality::Fix2D);
}

TEST(NmeaReaderTest, SouthAndWestAreNegative) {
    const auto fixes = readNmeaFixes(sentence("GPRMC,000001.25,A,3351.5000,S,15112.7500,W,0.0,,010100"));
    ASSERT_EQ(fixes.size(), 1u);
    EXPECT_NEAR(fixes[0].latitude, -(33 + 51.5 / 60), 1e-9);
    EXPECT_NEAR(fixes[0].longitude, -(151 + 12.75 / 60), 1e-9);
    EXPECT_FALSE(fixes[0].headingDegrees);
    // 2000-01-01 00:00:01.25: a two-digit year below 80 is in this century, and fractions count.
    EXPECT_DOUBLE_EQ(*fixes[0].clockSeconds, 946684801.25);
}

TEST(NmeaReaderTest, VoidStatusIsNoFixEvenWithoutPosition) {
    const auto fixes = readNmeaFixes(sentence("GPRMC,101010,V,,,,,,,150624,,,N") + "\n" +
                                     sentence("GPRMC,101011,A,4529.87489,N,00912.12345,E,0.1,,150624,,,N"));
    ASSERT_EQ(fixes.size(), 2u);
    EXPECT_EQ(fixes[0].quality, Quality::NoFix);
    EXPECT_TRUE(fixes[0].clockSeconds);
    // Mode N says "data not valid" even where the status says A.
    EXPECT_EQ(fixes[1].quality, Quality::NoFix);
}

TEST(NmeaReaderTest, DateRollsOverAtMidnightAndNewYear) {
    const std::string text = sentence("GPRMC,235959.50,A,4529.87489,N,00912.12345,E,1,0,311223") + "\r\n" +
                             sentence("GPGGA,235959.50,4529.87489,N,00912.12345,E,1,08,0.9,100.0,M,,M,,") + "\r\n" +
                             sentence("GPGGA,000000.50,4529.87489,N,00912.12345,E,1,08,0.9,101.0,M,,M,,") + "\r\n" +
                             sentence("GPRMC,000000.50,A,4529.87489,N,00912.12345,E,1,0,010124") + "\r\n";
    const auto fixes = readNmeaFixes(text);
    ASSERT_EQ(fixes.size(), 2u);
    EXPECT_DOUBLE_EQ(*fixes[0].clockSeconds, 1704067199.5);
    EXPECT_DOUBLE_EQ(*fixes[1].clockSeconds, 1704067200.5);
    // Each GGA joins the RMC of its own time, whichever side of it it stands.
    EXPECT_DOUBLE_EQ(*fixes[0].altitudeMetres, 100.0);
    EXPECT_DOUBLE_EQ(*fixes[1].altitudeMetres, 101.0);
}

struct MergeCase {
    const char* what;
    std::string text;
    std::optional<double> altitude;
    Quality quality;
};

class NmeaMergeTest : public testing::TestWithParam<MergeCase> {};

TEST_P(NmeaMergeTest, GgaJoinsTheRmcOfItsTime) {
    const MergeCase& c = GetParam();
    const auto fixes = readNmeaFixes(c.text);
    ASSERT_EQ(fixes.size(), 1u) << c.what;
    EXPECT_EQ(fixes[0].altitudeMetres, c.altitude) << c.what;
    EXPECT_EQ(fixes[0].quality, c.quality) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, NmeaMergeTest,
    testing::Values(MergeCase{"RMC then GGA", kRmc + "\r\n" + kGga, 545.4, Quality::Fix3D},
                    MergeCase{"GGA then RMC", kGga + "\r\n" + kRmc, 545.4, Quality::Fix3D},
                    MergeCase{"GGA of another second", kRmc + "\n" + sentence("GPGGA,123520,,,,,1,08,0.9,545.4,M,,M,,"),
                              std::nullopt, Quality::Fix2D},
                    MergeCase{"GGA with no fix", kRmc + "\n" + sentence("GPGGA,123519,,,,,0,00,,,M,,M,,"),
                              std::nullopt, Quality::NoFix},
                    MergeCase{"GGA without altitude", kRmc + "\n" + sentence("GPGGA,123519,,,,,1,04,2.0,,,,,,"),
                              std::nullopt, Quality::Fix2D},
                    MergeCase{"below sea level", kRmc + "\n" + sentence("GPGGA,123519,,,,,2,09,0.8,-27.5,M,,M,,"),
                              -27.5, Quality::Fix3D},
                    MergeCase{"altitude in feet is not metres",
                              kRmc + "\n" + sentence("GPGGA,123519,,,,,1,08,0.9,1789.0,F,,M,,"), std::nullopt,
                              Quality::Fix2D},
                    MergeCase{"altitude beyond the atmosphere",
                              kRmc + "\n" + sentence("GPGGA,123519,,,,,1,08,0.9,999999999,M,,M,,"), std::nullopt,
                              Quality::Fix2D},
                    MergeCase{"GGA with a bad checksum", kRmc + "\n" + kGga.substr(0, kGga.size() - 2) + "48",
                              std::nullopt, Quality::Fix2D}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

TEST(NmeaReaderTest, OneGgaJoinsOneRmc) {
    // A repeated RMC of the same second (GP and GN from one receiver) does not take the GGA twice.
    const auto fixes = readNmeaFixes(kRmc + "\n" + kGga + "\n" + kRmc);
    ASSERT_EQ(fixes.size(), 2u);
    EXPECT_TRUE(fixes[0].altitudeMetres);
    EXPECT_FALSE(fixes[1].altitudeMetres);
}

}  // namespace
