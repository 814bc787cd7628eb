#include "TimelineText.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

// The m:ss and h:mm:ss forms are durationText's, tested with the trips; here only the cap.
TEST(ClockTextTest, StopsAtAThousandHoursAndReadsNonNumbersAsZero) {
    EXPECT_EQ(clockText(1e300), "1000:00:00");
    EXPECT_EQ(clockText(std::numeric_limits<double>::infinity()), "0:00");
    EXPECT_EQ(clockText(std::numeric_limits<double>::quiet_NaN()), "0:00");
}

TEST(SeriesSummaryTest, NamesTheLengthAndTheHighestSpeed) {
    TimelineSeries series;
    series.totalSeconds = 180;
    EXPECT_EQ(seriesSummary(series, "KM/H"), "No speed recorded over 3:00");
    series.runs = {{{102, 87.5f, 0, 0}}};
    series.highest = series.runs[0][0];
    EXPECT_EQ(seriesSummary(series, "KM/H"), "Speed over 3:00, highest 87.5 KM/H at 1:42");
}

}  // namespace
