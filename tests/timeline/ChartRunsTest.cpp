#include "ChartRuns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

TimelineSeries seriesOf(double totalSeconds, std::vector<std::vector<std::pair<double, float>>> runs) {
    TimelineSeries series;
    series.totalSeconds = totalSeconds;
    for (const auto& run : runs) {
        series.runs.emplace_back();
        for (auto [seconds, speed] : run) series.runs.back().push_back({seconds, speed, 0, 0});
    }
    return series;
}

TimelineScale scaleOf(double width, double totalSeconds) { return {0, width, 0, 100, totalSeconds, 100}; }

// An hour on 1,280 columns: at most one vertex per column, and each column's range holds every
// sample drawn in it, the top speed included.
TEST(ChartRunsTest, DenseSamplesMergeIntoOneVertexPerColumnKeepingTheirRange) {
    std::vector<std::pair<double, float>> points;
    for (int t = 0; t < 3600; ++t) points.push_back({t, float(50 + 40 * std::sin(t * 1.3))});
    points[1234].second = 140;
    const TimelineScale scale = scaleOf(1280, 3600);
    const auto runs = chartRuns(seriesOf(3600, {points}), scale);
    ASSERT_EQ(runs.size(), 1u);
    const ChartRun& run = runs[0];
    ASSERT_LE(run.size(), 1281u);
    for (std::size_t i = 1; i < run.size(); ++i) ASSERT_LT(std::floor(run[i - 1].x), std::floor(run[i].x));
    for (auto [seconds, speed] : points) {
        const double column = std::floor(scale.xAtTime(seconds));
        const auto vertex =
            std::find_if(run.begin(), run.end(), [&](const ChartVertex& v) { return std::floor(v.x) == column; });
        ASSERT_NE(vertex, run.end()) << seconds;
        ASSERT_TRUE(vertex->low <= speed && speed <= vertex->high) << seconds;
    }
}

// A sample a pixel keeps its own vertex, the run reaching the end of its last second; a gap stays
// a gap, and points that are not numbers are left out without ending their run.
TEST(ChartRunsTest, RunsStaySeparateAndBadPointsAreLeftOut) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto runs = chartRuns(
        seriesOf(100,
                 {{{0, 10}, {nan, 99}, {1, 12}}, {{2, std::numeric_limits<float>::infinity()}}, {{50, 30}, {51, 31}}}),
        scaleOf(100, 100));
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0], (ChartRun{{0, 10, 10}, {1, 12, 12}, {2, 12, 12}}));
    EXPECT_EQ(runs[1].front().x, 50);
    EXPECT_EQ(runs[1].back().x, 52);
}

}  // namespace
