#include "TimelineText.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

struct ClockCase {
    double seconds;
    const char* text;
};

class ClockTextTest : public ::testing::TestWithParam<ClockCase> {};

TEST_P(ClockTextTest, ReadsAsAClock) { EXPECT_EQ(clockText(GetParam().seconds), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Times, ClockTextTest,
                         ::testing::Values(ClockCase{0, "0:00"}, ClockCase{59.9, "0:59"}, ClockCase{180, "3:00"},
                                           ClockCase{3599, "59:59"}, ClockCase{3600, "1:00:00"},
                                           ClockCase{37'325, "10:22:05"}, ClockCase{-5, "0:00"},
                                           ClockCase{std::numeric_limits<double>::quiet_NaN(), "0:00"},
                                           ClockCase{1e300, "1000:00:00"}));

TEST(SeriesSummaryTest, NamesTheLengthAndTheHighestSpeed) {
    TimelineSeries series;
    series.totalSeconds = 180;
    EXPECT_EQ(seriesSummary(series, "KM/H"), "No speed recorded over 3:00");
    series.runs = {{{102, 87.5f, 0, 0}}};
    series.highest = series.runs[0][0];
    EXPECT_EQ(seriesSummary(series, "KM/H"), "Speed over 3:00, highest 87.5 KM/H at 1:42");
}

}  // namespace
