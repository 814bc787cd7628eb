#include "GPSSamples.h"
#include "HeadingTracker.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

// Degrees, minutes, seconds south (negative) or north.
double dms(double degrees, double minutes, double seconds) {
    return std::copysign(std::fabs(degrees) + minutes / 60 + seconds / 3600, degrees);
}

// Vincenty's own worked example.
const GeoPoint kFlindersPeak{dms(-37, 57, 3.72030), dms(144, 25, 29.52440)};
const GeoPoint kBuninyong{dms(-37, 39, 10.15610), dms(143, 55, 35.38390)};

}  // namespace

TEST(Geodesy, KnownDistancesOnTheEllipsoid) {
    const struct {
        const char* what;
        GeoPoint from, to;
        double metres, tolerance;
    } cases[] = {
        {"1 degree of longitude on the equator", {0, 0}, {0, 1}, 111319.491, 1e-3},
        {"1 degree of latitude from the equator", {0, 0}, {1, 0}, 110574.389, 1e-3},
        {"Flinders Peak - Buninyong", kFlindersPeak, kBuninyong, 54972.271, 1e-3},
        {"the same point", {48.1, 11.5}, {48.1, 11.5}, 0, 0},
        // Where the iteration fails the sphere stands in, within 0.1 % of the true geodesic.
        {"nearly antipodal", {0, 0}, {0.5, 179.7}, 19944127.421, 19944.1},
        {"antipodal on the equator", {0, 0}, {0, 180}, 20003931.459, 20003.9},
    };
    for (const auto& c : cases) EXPECT_NEAR(geodesicDistanceMetres(c.from, c.to), c.metres, c.tolerance) << c.what;
    // Across the date line the short way round is taken.
    EXPECT_NEAR(geodesicDistanceMetres({10, 179.5}, {10, -179.5}), geodesicDistanceMetres({10, -0.5}, {10, 0.5}), 1e-6);
}

TEST(Geodesy, BearingsAreClockwiseFromNorth) {
    const struct {
        GeoPoint to;
        double degrees;
    } cases[] = {{{1, 0}, 0}, {{0, 1}, 90}, {{-1, 0}, 180}, {{0, -1}, 270}};
    for (const auto& c : cases) EXPECT_NEAR(initialBearingDegrees({0, 0}, c.to).value_or(-1), c.degrees, 1e-9);
    EXPECT_NEAR(initialBearingDegrees(kFlindersPeak, kBuninyong).value_or(-1), dms(306, 52, 5.37), 1e-5);
    EXPECT_EQ(initialBearingDegrees({48.1, 11.5}, {48.1, 11.5}), std::nullopt);
}

TEST(Geodesy, TrackDistancePassesOverSamplesWithoutAPlace) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::vector<GPSData> track = {
        GPSData(),  // the player's empty lead-in
        fixedPointSample(480000000, 110000000, 0),
        scaledSample(nan, 11, 0),
        fixedPointSample(480010000, 110000000, 0),
        fixedPointSample(0, 0, 0),
        fixedPointSample(480020000, 110000000, 0),
    };
    // Float coordinates put each sample within half a metre.
    EXPECT_NEAR(trackDistanceMetres(track), geodesicDistanceMetres({48, 11}, {48.002, 11}), 1.0);
    EXPECT_EQ(trackDistanceMetres({}), 0);
}

TEST(HeadingTracker, TurnsOnlyWhenTheCarHasMovedFarEnough) {
    HeadingTracker tracker;
    const double step = 1e-5;  // about 1.1 m of latitude
    EXPECT_EQ(tracker.update({48, 11}), std::nullopt);
    EXPECT_EQ(tracker.update({48 + step, 11}), std::nullopt) << "1.1 m is standing";
    EXPECT_NEAR(tracker.update({48 + 2 * step, 11}).value_or(-1), 0, 1e-6) << "creeping adds up";
    EXPECT_NEAR(tracker.update({48 + 2 * step, 11 + step}).value_or(-1), 0, 1e-6) << "0.7 m of jitter";
    EXPECT_NEAR(tracker.update({48 + 2 * step, 11 - step}).value_or(-1), 0, 1e-6) << "0.7 m of jitter";
    tracker.restart();
    EXPECT_NEAR(tracker.update({47, 10}).value_or(-1), 0, 1e-6) << "a seek keeps the heading";
    EXPECT_NEAR(tracker.update({47, 10 + 5 * step}).value_or(-1), 90, 1e-3);
    EXPECT_NEAR(tracker.heading().value_or(-1), 90, 1e-3);
}
