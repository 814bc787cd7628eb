// Raw payloads from real cameras, and built ones for the faults cameras are known to write.
#include "GpmfBytes.h"
#include "GpmfPayload.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

namespace {

using Quality = GPSFix::Quality;

Bytes readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

struct CameraPayload {
    const char* file;
    std::size_t fixes;  // samples the payload's GPS5 (or GPS9) items hold
    double firstClock;  // its first GPSU, or for GPS9 the first sample's own time
    Quality quality;
    double latitude, longitude;  // roughly where the camera was
};

class CameraPayloads : public testing::TestWithParam<CameraPayload> {};

TEST_P(CameraPayloads, WalkWholeAndGiveTheirFixesInOrder) {
    const CameraPayload& c = GetParam();
    const Bytes payload = readFile(std::filesystem::path(DASHTRACK_CAMERA_DIR) / c.file);
    ASSERT_FALSE(payload.empty());
    const GpmfFixes read = GpmfPayload::read(payload, 5.0, 1.0);
    EXPECT_TRUE(read.intact);
    ASSERT_EQ(read.fixes.size(), c.fixes);
    EXPECT_NEAR(*read.fixes.front().clockSeconds, c.firstClock, 0.0005);
    for (std::size_t i = 0; i < read.fixes.size(); ++i) {
        const GPSFix& fix = read.fixes[i];
        EXPECT_EQ(fix.quality, c.quality);
        EXPECT_NEAR(fix.latitude, c.latitude, 0.01);
        EXPECT_NEAR(fix.longitude, c.longitude, 0.01);
        EXPECT_NEAR(*fix.movieSeconds, 5.0 + double(i) / double(c.fixes), 1e-9);
        EXPECT_LT(*fix.speedMetresPerSecond, 20.0);
        if (i > 0) {
            EXPECT_GE(*fix.clockSeconds, *read.fixes[i - 1].clockSeconds);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Gpmf, CameraPayloads,
    testing::Values(
        CameraPayload{"hero5.raw", 18, utc(2017, 4, 17, 17, 31, 3.0), Quality::Fix3D, 33.1265, -117.3274},
        // GPSF 0: the camera had no lock, its positions are kept but marked.
        CameraPayload{"hero6.raw", 17, utc(2018, 1, 24, 19, 28, 1.699), Quality::NoFix, 33.1266, -117.3271},
        CameraPayload{"hero6+ble.raw", 18, utc(2018, 3, 23, 22, 51, 39.829), Quality::NoFix, 33.1267, -117.3274},
        CameraPayload{"Fusion.raw", 19, utc(2018, 3, 23, 17, 25, 37.375), Quality::Fix3D, 33.1266, -117.3274},
        // Seventeen payloads in a row, each with its own GPSU.
        CameraPayload{"gopro-telemetry/hero7.raw", 308, utc(2019, 1, 3, 16, 33, 34.094), Quality::Fix3D, 42.342,
                      -8.7526},
        // GPS9 (day 8298, 48576.899 s) wins over the GPS5 beside it.
        CameraPayload{"gopro-telemetry/hero11.raw", 110, utc(2022, 9, 20, 13, 29, 36.899), Quality::Fix3D, 42.426,
                      -8.650}));

const Bytes kSouthWest = gps5({{{-34.6037, -58.3816, 2.5}}, {{-34.6038, -58.3817, 2.6}}});

struct BuiltPayload {
    const char* name;
    Bytes payload;
    std::size_t fixes;
    bool intact;
    std::optional<Quality> quality;  // of the first fix
    bool clock;                      // whether the first fix has a time of day
};

class BuiltPayloads : public testing::TestWithParam<BuiltPayload> {};

TEST_P(BuiltPayloads, GiveWhatTheBytesHold) {
    const BuiltPayload& c = GetParam();
    const GpmfFixes read = GpmfPayload::read(c.payload, 0, 1);
    EXPECT_EQ(read.intact, c.intact);
    ASSERT_EQ(read.fixes.size(), c.fixes);
    if (c.fixes == 0) return;
    EXPECT_EQ(read.fixes.front().quality, *c.quality);
    EXPECT_EQ(read.fixes.front().clockSeconds.has_value(), c.clock);
    EXPECT_DOUBLE_EQ(read.fixes.front().latitude, -34.6037);
    EXPECT_DOUBLE_EQ(read.fixes.front().longitude, -58.3816);
}

const Bytes kGood = nest("DEVC", {nest("STRM", {gpsf(3), gpsu("191118234514.000"), gps5Scale(), kSouthWest})});
const Bytes kLateTimeAndFix = nest("STRM", {gps5Scale(), kSouthWest, gpsu("191118234514.000"), gpsf(2)});
const Bytes kOtherStreamsScale = concat({nest("STRM", {gps5Scale()}), nest("STRM", {kSouthWest})});
const Bytes kZeroScale = nest("STRM", {scal({10000000, 0, 1000, 1000, 100}), kSouthWest});

Bytes nestedDeep(int levels) {
    return levels == 0 ? concat({gps5Scale(), kSouthWest}) : nest("STRM", {nestedDeep(levels - 1)});
}

using P = BuiltPayload;
INSTANTIATE_TEST_SUITE_P(
    Gpmf, BuiltPayloads,
    testing::Values(P{"SouthWest", kGood, 2, true, Quality::Fix3D, true},
                    P{"TimeAndFixAfterTheSamples", kLateTimeAndFix, 2, true, Quality::Fix2D, true},
                    P{"NoFixKept", nest("STRM", {gpsf(0), gps5Scale(), kSouthWest}), 2, true, Quality::NoFix, false},
                    P{"NoScale", nest("STRM", {gpsf(3), kSouthWest}), 0, true, {}, false},
                    P{"ZeroScale", kZeroScale, 0, true, {}, false},
                    P{"ScaleOfAnotherStream", kOtherStreamsScale, 0, true, {}, false},
                    P{"RepeatZero", nest("STRM", {gps5Scale(), item("GPS5", 'l', 20, 0, {})}), 0, true, {}, false},
                    P{"GarbageTime", nest("STRM", {gpsu("1911x8234514.000"), gps5Scale(), kSouthWest}), 2, true,
                      Quality::Unknown, false},
                    P{"ImpossibleDate", nest("STRM", {gpsu("190230234514.000"), gps5Scale(), kSouthWest}), 2, true,
                      Quality::Unknown, false},
                    // Cut inside the second sample: the first is whole and kept.
                    P{"Truncated", Bytes(kGood.begin(), kGood.end() - 12), 1, false, Quality::Fix3D, true},
                    P{"HeaderOnly", Bytes(kGood.begin(), kGood.begin() + 8), 0, false, {}, false},
                    P{"TwoDeepIsRead", nestedDeep(2), 2, true, Quality::Unknown, false},
                    P{"TooDeep", nestedDeep(8), 0, false, {}, false}),
    [](const testing::TestParamInfo<BuiltPayload>& info) { return std::string(info.param.name); });

TEST(GpmfPayload, SpreadsGps5OverThePayloadFromItsTimeOfDay) {
    const Bytes payload = nest(
        "STRM", {gpsu("191118234514.250"), gps5Scale(), gps5({{{1, 2, 0}}, {{1, 2, 0}}, {{1, 2, 0}}, {{1, 2, 0}}})});
    const GpmfFixes read = GpmfPayload::read(payload, 10.0, 2.0);
    ASSERT_EQ(read.fixes.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_DOUBLE_EQ(*read.fixes[i].movieSeconds, 10.0 + 0.5 * double(i));
        EXPECT_DOUBLE_EQ(*read.fixes[i].clockSeconds, utc(2019, 11, 18, 23, 45, 14.25 + 0.5 * double(i)));
    }
}

}  // namespace
