#include "GPSSamples.h"
#include "TimelineScale.h"
#include "TimelineSeries.h"
#include "TripClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// The player's track: the empty lead-in, then one record per (recorded second, speed in cm/s).
std::vector<GPSData> trackOf(std::vector<std::pair<uint32_t, uint32_t>> records) {
    std::vector<GPSData> track(1);
    for (auto [second, speed] : records)
        track.push_back(fixedPointSample(480000000, 110000000, speed, {2023, 5, 7, 10, 0, second}));
    return track;
}

}  // namespace

TEST(TripClock, NamesTheClipAndTimeOnTheTripsLine) {
    const TripClock clock({0, 10, 0, 5});
    const struct {
        double tripSeconds;
        TripClock::Place place;
    } cases[] = {
        {-1, {1, 0}}, {kNaN, {1, 0}},   {0, {1, 0}},  {4, {1, 4}},
        {10, {3, 0}}, {12.5, {3, 2.5}}, {15, {3, 5}}, {99, {3, 5}},
    };
    for (const auto& c : cases) EXPECT_EQ(clock.placeAt(c.tripSeconds), c.place) << c.tripSeconds;
    const struct {
        std::size_t clip;
        double clipSeconds, tripSeconds;
    } back[] = {{3, 2, 12}, {1, 99, 10}, {1, -3, 0}, {3, kNaN, 10}};
    for (const auto& c : back) EXPECT_EQ(clock.tripSecondsAt(c.clip, c.clipSeconds), c.tripSeconds) << c.clipSeconds;
    EXPECT_EQ(TripClock({-3, kNaN, 4}).totalSeconds(), 4);
}

TEST(TimelineSeries, RunsBreakWhereTheGPSDoes) {
    // Clip 0 (6.5 s): a 4 s jump in the records, and a last record past the clip's end. Clip 1
    // has no GPS; clip 3 has no length. Clip 4 carries on from clip 2.
    const std::vector<GPSData> tracks[] = {
        trackOf({{0, 500}, {1, 600}, {2, 700}, {6, 900}, {7, 2000}, {8, 800}, {9, 3000}}),
        {},
        trackOf({{10, 100}, {11, 100}, {12, 100}}),
        trackOf({{12, 100}, {13, 100}}),
        trackOf({{13, 100}, {14, 100}}),
    };
    const double durations[] = {6.5, 3, 4, 0, 5};
    std::vector<TimelineClip> clips;
    for (int c = 0; c < 5; ++c) clips.push_back({tracks[c], durations[c]});
    const TimelineSeries series = buildTimelineSeries(clips);

    using Where = std::pair<std::size_t, std::size_t>;
    std::vector<std::vector<Where>> runs;
    for (const auto& run : series.runs) {
        runs.emplace_back();
        for (const TimelinePoint& p : run) runs.back().emplace_back(p.clip, p.sampleIndex);
    }
    const std::vector<std::vector<Where>> expected = {
        {{0, 1}, {0, 2}, {0, 3}}, {{0, 4}, {0, 5}, {0, 6}}, {{2, 1}, {2, 2}, {2, 3}, {4, 1}, {4, 2}}};
    EXPECT_EQ(runs, expected);
    EXPECT_EQ(series.totalSeconds, 18.5);
    ASSERT_TRUE(series.highest);
    EXPECT_EQ(std::pair(series.highest->clip, series.highest->sampleIndex), Where(0, 5));
    EXPECT_EQ(series.maxSpeed, tracks[0][5].Speed());

    const struct {
        double seconds;
        std::optional<Where> shown;
    } cases[] = {{0.5, {}},         {3.5, Where(0, 3)},  {4, Where(0, 4)}, {8, {}},   {13.7, {}},
                 {15, Where(4, 1)}, {16.4, Where(4, 2)}, {16.6, {}},       {18.5, {}}};
    for (const auto& c : cases) {
        const std::optional<TimelinePoint> point = series.pointAt(c.seconds);
        EXPECT_EQ(point ? std::optional(Where(point->clip, point->sampleIndex)) : std::nullopt, c.shown) << c.seconds;
    }
    const TimelineSeries none = buildTimelineSeries({});
    EXPECT_TRUE(none.empty());
    EXPECT_GT(none.maxSpeed, 0);
}

TEST(TimelineScale, MapsBothWaysAndClampsToTheChart) {
    const TimelineScale scale{.left = 10, .width = 200, .top = 5, .height = 100, .totalSeconds = 50, .maxSpeed = 80};
    for (double seconds : {0.0, 12.5, 37.0, 50.0}) EXPECT_NEAR(scale.timeAtX(scale.xAtTime(seconds)), seconds, 1e-9);
    const struct {
        double in, x, time, y;
    } cases[] = {
        {-5, 10, 0, 105}, {25, 110, 3.75, 73.75}, {80, 210, 17.5, 5}, {500, 210, 50, 5}, {kNaN, 10, 0, 105},
    };
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(scale.xAtTime(c.in), c.x) << c.in;
        EXPECT_DOUBLE_EQ(scale.timeAtX(c.in), c.time) << c.in;
        EXPECT_DOUBLE_EQ(scale.yAtSpeed(c.in), c.y) << c.in;
    }
    for (TimelineScale empty : {TimelineScale{.left = 10, .width = 0, .totalSeconds = 50}, TimelineScale{.left = 10}}) {
        EXPECT_EQ(empty.timeAtX(30), 0);
        EXPECT_EQ(empty.xAtTime(30), 10);
    }
    EXPECT_DOUBLE_EQ((TimelineScale{.top = 0, .height = 100, .maxSpeed = 0}.yAtSpeed(0.5)), 50);
}
