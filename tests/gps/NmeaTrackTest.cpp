// One sample of a camera's NMEA text track, as the cameras wrap the sentences in binary.
#include "NmeaTrack.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::string kRmc = "$GPRMC,101530,A,2217.8920,N,11410.2450,E,12.5,90.0,310526,,,A*00";
const std::string kGga = "$GPGGA,101530,2217.8920,N,11410.2450,E,1,08,0.9,45.0,M,0.0,M,,*00";

std::string padded(const std::string& text, std::size_t width) { return text + std::string(width - text.size(), '\0'); }

// Binary that is printable in places and holds '$', ',' and ';' bytes, as int32 values can.
const std::string kNoise = std::string("\x01\x22\0\0\0\0", 6) + "20260531101530" + std::string("\0\0", 2) +
                           std::string("$\x0c\0\0;\xd8\xff\xff,\x04\0\0", 12);

struct SampleCase {
    const char* name;
    std::string bytes;
    std::size_t fixes;
};

}  // namespace

TEST(NmeaTrack, FindsTheSentencesInEachWayOfWrappingThem) {
    const SampleCase cases[] = {
        {"header, padded RMC and GGA", kNoise + padded(kRmc, 128) + padded(kGga, 128), 1},
        {"RMC after a kilobyte of binary", std::string(1000, '\x07') + kNoise + padded(kRmc, 80), 1},
        {"semicolon-separated without $", "gsensori,4,512,-10,-7;" + kRmc.substr(1) + ";CAR,0,0,0,0.0,0,0;", 1},
        {"two RMC share the sample", kNoise + padded(kRmc, 128) + padded(kRmc, 128), 2},
        {"GGA alone gives no fix", kNoise + padded(kGga, 128), 0},
        {"RMC cut short by the sample's end", kNoise + kRmc.substr(0, 30), 0},
        {"binary only", kNoise + kNoise, 0},
        {"empty", "", 0},
    };
    for (const SampleCase& c : cases) {
        SCOPED_TRACE(c.name);
        const auto* data = reinterpret_cast<const uint8_t*>(c.bytes.data());
        const std::vector<GPSFix> fixes = NmeaTrack::readSample({data, c.bytes.size()}, 7.0, 1.0);
        ASSERT_EQ(fixes.size(), c.fixes);
        for (std::size_t k = 0; k < fixes.size(); ++k) {
            EXPECT_NEAR(fixes[k].latitude, 22 + 17.892 / 60, 1e-9);
            EXPECT_NEAR(fixes[k].longitude, 114 + 10.245 / 60, 1e-9);
            EXPECT_DOUBLE_EQ(fixes[k].movieSeconds.value_or(-1), 7.0 + double(k) / double(fixes.size()));
            EXPECT_TRUE(fixes[k].clockSeconds.has_value());
        }
    }
}

// Bytes past the per-sample cap are not read, however long the sample claims to be.
TEST(NmeaTrack, ReadsNoFurtherThanTheSampleCap) {
    std::string bytes(NmeaTrack::kMaxSampleBytes - 10, '\0');
    bytes += kRmc;
    const auto* data = reinterpret_cast<const uint8_t*>(bytes.data());
    EXPECT_TRUE(NmeaTrack::readSample({data, bytes.size()}, 0, 1).empty());
    EXPECT_EQ(NmeaTrack::readSample({data + kRmc.size(), bytes.size() - kRmc.size()}, 0, 1).size(), 1u);
}
