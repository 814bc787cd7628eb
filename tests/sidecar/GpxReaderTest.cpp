#include "GpxReader.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Quality = GPSFix::Quality;

// 2024-05-01 12:00:00 UTC
constexpr double kNoon = 1714564800.0;

TEST(GpxReaderTest, ReadsGpx10TrackPoints) {
    const auto fixes = readGpxFixes(R"(<?xml version="1.0" encoding="UTF-8"?>
<gpx version="1.0" creator="logger" xmlns="http://www.topografix.com/GPX/1/0">
  <time>2024-05-01T11:00:00Z</time>
  <wpt lat="1.0" lon="1.0"><time>2024-05-01T11:30:00Z</time></wpt>
  <trk><name>drive</name><trkseg>
    <trkpt lat="48.1173" lon="-11.5166">
      <ele>545.4</ele>
      <time>2024-05-01T12:00:00Z</time>
      <course>84.4</course>
      <speed>11.5</speed>
      <fix>3d</fix>
    </trkpt>
    <trkpt lat='-33.8583' lon='151.2125'><time>2024-05-01T12:00:01Z</time><fix>none</fix></trkpt>
  </trkseg></trk>
</gpx>)");
    ASSERT_EQ(fixes.size(), 2u);
    EXPECT_DOUBLE_EQ(fixes[0].latitude, 48.1173);
    EXPECT_DOUBLE_EQ(fixes[0].longitude, -11.5166);
    EXPECT_DOUBLE_EQ(*fixes[0].altitudeMetres, 545.4);
    EXPECT_DOUBLE_EQ(*fixes[0].clockSeconds, kNoon);
    EXPECT_DOUBLE_EQ(*fixes[0].speedMetresPerSecond, 11.5);
    EXPECT_DOUBLE_EQ(*fixes[0].headingDegrees, 84.4);
    EXPECT_EQ(fixes[0].quality, Quality::Fix3D);
    EXPECT_FALSE(fixes[0].movieSeconds);
    EXPECT_DOUBLE_EQ(fixes[1].latitude, -33.8583);
    EXPECT_DOUBLE_EQ(*fixes[1].clockSeconds, kNoon + 1);
    EXPECT_FALSE(fixes[1].altitudeMetres);
    EXPECT_FALSE(fixes[1].speedMetresPerSecond);
    EXPECT_EQ(fixes[1].quality, Quality::NoFix);
}

TEST(GpxReaderTest, ReadsGpx11PointsAndTheirExtensions) {
    const auto fixes = readGpxFixes(R"(<?xml version="1.0"?>
<!DOCTYPE gpx [ <!ENTITY x "<trkpt lat='5' lon='5'></trkpt>"> ]>
<gpx:gpx version="1.1" xmlns:gpx="http://www.topografix.com/GPX/1/1"
     xmlns:gpxtpx="http://www.garmin.com/xmlschemas/TrackPointExtension/v2">
  <gpx:metadata><gpx:time>2020-01-01T00:00:00Z</gpx:time></gpx:metadata>
  <!-- <gpx:trkpt lat="9" lon="9"></gpx:trkpt> -->
  <gpx:trk><gpx:trkseg>
    <gpx:trkpt lat="+10.5" lon="20.25">
      <gpx:time>2024-05-01T14:00:00.250+02:00</gpx:time>
      <gpx:extensions><gpxtpx:TrackPointExtension>
        <gpxtpx:speed> 3.5 </gpxtpx:speed><gpxtpx:course>360</gpxtpx:course>
      </gpxtpx:TrackPointExtension></gpx:extensions>
    </gpx:trkpt>
    <gpx:trkpt lat="10.6" lon="20.35"><![CDATA[<ele>1</ele>]]>
      <gpx:speed>2.0</gpx:speed>
      <gpx:extensions><gpxtpx:TrackPointExtension><gpxtpx:speed>9.0</gpxtpx:speed>
      </gpxtpx:TrackPointExtension></gpx:extensions>
    </gpx:trkpt>
  </gpx:trkseg></gpx:trk>
  <gpx:rte><gpx:rtept lat="1" lon="2"/></gpx:rte>
</gpx:gpx>)");
    ASSERT_EQ(fixes.size(), 3u);
    EXPECT_DOUBLE_EQ(fixes[0].latitude, 10.5);
    EXPECT_DOUBLE_EQ(*fixes[0].clockSeconds, kNoon + 0.25);
    EXPECT_DOUBLE_EQ(*fixes[0].speedMetresPerSecond, 3.5);
    EXPECT_DOUBLE_EQ(*fixes[0].headingDegrees, 0.0);
    EXPECT_EQ(fixes[0].quality, Quality::Unknown);
    // The point's own speed outranks the extension's; CDATA holds no values.
    EXPECT_DOUBLE_EQ(*fixes[1].speedMetresPerSecond, 2.0);
    EXPECT_FALSE(fixes[1].altitudeMetres);
    EXPECT_DOUBLE_EQ(fixes[2].longitude, 2.0);
    EXPECT_FALSE(fixes[2].clockSeconds);
}

struct TimeCase {
    const char* text;
    std::optional<double> seconds;
};

class GpxTimeTest : public testing::TestWithParam<TimeCase> {};

TEST_P(GpxTimeTest, ReadsIsoTimesAsUtc) {
    const std::string document =
        std::string(R"(<gpx><trk><trkseg><trkpt lat="0" lon="0"><time>)") + GetParam().text + "</time></trkpt>";
    const auto fixes = readGpxFixes(document);
    ASSERT_EQ(fixes.size(), 1u) << GetParam().text;
    EXPECT_EQ(fixes[0].clockSeconds, GetParam().seconds) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, GpxTimeTest,
    testing::Values(TimeCase{"2024-05-01T12:00:00Z", kNoon}, TimeCase{"2024-05-01T12:00:00", kNoon},
                    TimeCase{"2024-05-01t12:00:00z", kNoon}, TimeCase{"2024-05-01T12:00:00.5Z", kNoon + 0.5},
                    TimeCase{"2024-05-01T12:00:00.125000Z", kNoon + 0.125},
                    TimeCase{"2024-05-01T14:30:00+02:30", kNoon}, TimeCase{"2024-05-01T08:30:00-0330", kNoon},
                    TimeCase{"2024-05-02T01:00:00+13", kNoon}, TimeCase{"2024-04-30T23:00:00-13:00", kNoon},
                    TimeCase{"\n  2024-05-01T12:00:00Z\n", kNoon},
                    TimeCase{"2024-05-01T12:00:60Z", kNoon + 60},  // a leap second
                    TimeCase{"2024-02-30T12:00:00Z", std::nullopt}, TimeCase{"2024-05-01T24:00:00Z", std::nullopt},
                    TimeCase{"2024-05-01T12:00Z", std::nullopt}, TimeCase{"2024-05-01T12:00:00+2", std::nullopt},
                    TimeCase{"2024-05-01T12:00:00+24:00", std::nullopt},
                    TimeCase{"2024-05-01T12:00:00Zjunk", std::nullopt}, TimeCase{"2024-05-01", std::nullopt},
                    TimeCase{"99999-05-01T12:00:00Z", std::nullopt}, TimeCase{"1e9", std::nullopt}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

struct HostileCase {
    const char* what;
    std::string document;
    std::size_t fixes;
};

class GpxHostileTest : public testing::TestWithParam<HostileCase> {};

TEST_P(GpxHostileTest, KeepsWhatIsSound) {
    EXPECT_EQ(readGpxFixes(GetParam().document).size(), GetParam().fixes) << GetParam().what;
}

const std::string kPoint = R"(<trkpt lat="1" lon="2"><ele>3</ele></trkpt>)";

INSTANTIATE_TEST_SUITE_P(
    Cases, GpxHostileTest,
    testing::Values(
        HostileCase{"empty", "", 0}, HostileCase{"not XML", "lat=1 lon=2 trkpt", 0},
        HostileCase{"cut inside a tag", kPoint + R"(<trkpt lat="1" lo)", 1},
        HostileCase{"cut inside a point", kPoint + R"(<trkpt lat="1" lon="2"><ele>3)", 1},
        HostileCase{"cut inside an attribute", kPoint + R"(<trkpt lat="1 lon="2"></trkpt>)", 1},
        HostileCase{"unterminated comment", kPoint + "<!-- " + kPoint, 1},
        HostileCase{"unterminated CDATA", kPoint + "<![CDATA[" + kPoint, 1},
        HostileCase{"unterminated DOCTYPE", "<!DOCTYPE gpx [" + kPoint, 0},
        HostileCase{"missing end tag of a point", R"(<trkseg><trkpt lat="1" lon="2"></trkseg>)" + kPoint, 2},
        HostileCase{"missing end tag of a value", R"(<trkpt lat="1" lon="2"><ele>3</trkpt>)" + kPoint, 2},
        HostileCase{"stray end tags", "</trkpt></gpx>" + kPoint + "</trkpt>", 1},
        HostileCase{"point inside a point", R"(<trkpt lat="1" lon="2">)" + kPoint + "</trkpt>", 1},
        HostileCase{"no lon", R"(<trkpt lat="1"></trkpt>)", 0},
        HostileCase{"lat 91", R"(<trkpt lat="91" lon="2"></trkpt>)", 0},
        HostileCase{"lon -180.5", R"(<trkpt lat="1" lon="-180.5"></trkpt>)", 0},
        HostileCase{"huge lat", R"(<trkpt lat="1e400" lon="2"></trkpt>)", 0},
        HostileCase{"nan lat", R"(<trkpt lat="nan" lon="2"></trkpt>)", 0},
        HostileCase{"lat as a long string", R"(<trkpt lat=")" + std::string(100000, '1') + R"(" lon="2"/>)", 0},
        HostileCase{"attributes without quotes", R"(<trkpt lat=1 lon=2></trkpt>)", 0},
        HostileCase{"'<' that opens nothing", "< " + kPoint + "<<>" + kPoint, 2},
        HostileCase{"depth beyond the cap",
                    [] {
                        std::string deep;
                        for (int i = 0; i < 100000; ++i) deep += "<a>";
                        return kPoint + deep + kPoint;
                    }(),
                    1}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

TEST(GpxReaderTest, DecodesEntitiesAndDropsOnlyBadValues) {
    const auto fixes = readGpxFixes(R"(<trkpt lat="&#52;8.5" lon="&#x31;1"><ele>1&amp;2</ele>)"
                                    R"(<speed>-3</speed><course>12.5</course><time>)" +
                                    std::string(200, ' ') + "2024-05-01T12:00:00Z</time></trkpt>");
    ASSERT_EQ(fixes.size(), 1u);
    EXPECT_DOUBLE_EQ(fixes[0].latitude, 48.5);
    EXPECT_DOUBLE_EQ(fixes[0].longitude, 11.0);
    EXPECT_FALSE(fixes[0].altitudeMetres);
    EXPECT_FALSE(fixes[0].speedMetresPerSecond);
    EXPECT_DOUBLE_EQ(*fixes[0].headingDegrees, 12.5);
    EXPECT_DOUBLE_EQ(*fixes[0].clockSeconds, kNoon);
}

}  // namespace
