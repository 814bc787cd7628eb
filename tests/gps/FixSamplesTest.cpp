// Fixes of the formats that record several a second, or on their own clock, as the player's track
// of one sample a second.

#include "FixSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

namespace {

GPSFix fixAt(double movieSeconds, double latitude, GPSFix::Quality quality = GPSFix::Quality::Fix3D) {
    GPSFix fix;
    fix.movieSeconds = movieSeconds;
    // 2019-11-18 23:45:14 UTC plus the movie time.
    fix.clockSeconds = 1574120714.0 + movieSeconds;
    fix.latitude = latitude;
    fix.longitude = -117.32734;
    fix.speedMetresPerSecond = 10.0;
    fix.quality = quality;
    return fix;
}

TEST(GPSDataFromFix, IsTheNormalisedSampleTheReadOutsShow) {
    const GPSData sample = GPSData::fromFix(fixAt(0.5, -33.12677));
    EXPECT_FLOAT_EQ(sample.Latitude(), -33.12677f);
    EXPECT_FLOAT_EQ(sample.Longitude(), -117.32734f);
    EXPECT_EQ(sample.data().rmcinfo.NSInd, 'S');
    EXPECT_EQ(sample.data().rmcinfo.EWInd, 'W');
    EXPECT_EQ(sample.SpeedKMHText(), "36.00") << "10 m/s";
    EXPECT_EQ(sample.DateText(), "11/18/19");
    EXPECT_EQ(sample.TimeText(), "23:45:14");
    EXPECT_EQ(GPSData::fromFix(fixAt(1, 1, GPSFix::Quality::NoFix)).data().rmcinfo.Status, 'V');
    EXPECT_EQ(GPSData::fromFix(GPSFix{}).TimeText(), "00:00:00") << "no clock, no time";
}

// What the camera record has no room for stays beside it, and only where the format stated it: an
// export or the car's marker must not mistake a missing height or heading for 0.
TEST(GPSDataFromFix, KeepsAltitudeHeadingAndFixKindBesideTheRecord) {
    constexpr double kHuge = 1e300;  // past float's range: would read out as infinity
    const struct {
        const char* what;
        std::optional<double> altitude, heading;
        GPSFix::Quality quality;
        std::optional<float> expectedAltitude, expectedHeading;
    } cases[] = {
        {"all stated", 1234.5, 271.25, GPSFix::Quality::Fix3D, 1234.5f, 271.25f},
        {"below sea level, due north", -28.0, 0.0, GPSFix::Quality::Fix2D, -28.0f, 0.0f},
        {"none stated", {}, {}, GPSFix::Quality::Unknown, {}, {}},
        {"not numbers", std::nan(""), kHuge, GPSFix::Quality::Fix3D, {}, {}},
    };
    for (const auto& c : cases) {
        GPSFix fix = fixAt(1, 10, c.quality);
        fix.altitudeMetres = c.altitude;
        fix.headingDegrees = c.heading;
        const GPSData sample = GPSData::fromFix(fix);
        EXPECT_EQ(sample.altitudeMetres(), c.expectedAltitude) << c.what;
        EXPECT_EQ(sample.heading(), c.expectedHeading) << c.what;
        EXPECT_EQ(sample.fixQuality(), c.quality) << c.what;
        // A held-over place is no fix, whatever it was; a format that never said still says nothing.
        const GPSFix::Quality held = c.quality == GPSFix::Quality::Unknown ? c.quality : GPSFix::Quality::NoFix;
        EXPECT_EQ(sample.heldOver().fixQuality(), held) << c.what;
        EXPECT_EQ(sample.heldOver().altitudeMetres(), c.expectedAltitude) << c.what;
    }
}

TEST(FixSamples, OneSampleASecondPreferringARealFixAndHoldingOverGaps) {
    const std::vector<GPSFix> fixes = {
        fixAt(0.2, 10),                            // before second 1: never shown on its own
        fixAt(1.0, 11, GPSFix::Quality::NoFix),    // second 1: a real fix later in it wins
        fixAt(1.5, 12), fixAt(1.9, 13),            //
        fixAt(3.1, 14),                            // second 2 has none: second 1's is held
        fixAt(99, 99),                             // beyond the movie
    };
    const std::vector<GPSData> samples = samplesFromFixes(fixes, 4.5);
    ASSERT_EQ(samples.size(), 4u);
    const struct {
        float latitude;
        char status;
    } expected[] = {{12, 'A'}, {12, 'V'}, {14, 'A'}, {14, 'V'}};
    for (std::size_t k = 0; k < samples.size(); ++k) {
        EXPECT_FLOAT_EQ(samples[k].Latitude(), expected[k].latitude) << "second " << k + 1;
        EXPECT_EQ(samples[k].data().rmcinfo.Status, expected[k].status) << "second " << k + 1;
    }
    // Seconds before the first fix hold it; an unknown duration runs to the last fix's second.
    const std::vector<GPSData> late = samplesFromFixes(std::vector{fixAt(3.5, 20)}, 0);
    ASSERT_EQ(late.size(), 3u);
    EXPECT_FLOAT_EQ(late[0].Latitude(), 20);
    EXPECT_EQ(late[0].data().rmcinfo.Status, 'V');
    EXPECT_EQ(late[2].data().rmcinfo.Status, 'A');
    GPSFix untimed = fixAt(1, 1);
    untimed.movieSeconds.reset();
    EXPECT_TRUE(samplesFromFixes(std::vector{untimed}, 10).empty());
}

}  // namespace
