// Fixes of the formats that record several a second, or on their own clock, as the player's track
// of one sample a second.

#include "FixSamples.h"

#include <gtest/gtest.h>

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
