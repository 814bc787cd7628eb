#include "ChartColumns.h"

#include <gtest/gtest.h>

namespace {

// Ten columns, rows 0-100 for speeds 100-0: a speed's row is 100 less the speed.
const TimelineScale kScale{0, 10, 0, 100, 10, 100};

TEST(ChartColumnsTest, FlatRunIsALineOfItsWidthOverAnAreaAndNothingOutsideIt) {
    const auto columns = chartColumns({{{2.5, 40, 40}, {6, 40, 40}}}, kScale, 10, 2);
    for (int c : {0, 1, 6, 9}) EXPECT_EQ(columns[c].coverage, 0) << c;
    EXPECT_FLOAT_EQ(columns[2].coverage, 0.5f);  // the run starts mid-column
    for (int c = 3; c < 6; ++c) {
        EXPECT_FLOAT_EQ(columns[c].coverage, 1) << c;
        EXPECT_FLOAT_EQ(columns[c].areaTop, 60) << c;
        EXPECT_FLOAT_EQ(columns[c].lineTop, 59) << c;
        EXPECT_FLOAT_EQ(columns[c].lineBottom, 61) << c;
    }
}

// A column's line spans every speed drawn in it: a merged column's range, and a steep climb's
// rise across the column.
TEST(ChartColumnsTest, LineSpansTheSpeedsWithinEachColumn) {
    const auto columns = chartColumns({{{0.5, 10, 10}, {1.5, 20, 80}, {2.5, 20, 20}, {3, 60, 60}}}, kScale, 10, 0);
    EXPECT_FLOAT_EQ(columns[1].lineTop, 20);     // 80 at x 1.5
    EXPECT_FLOAT_EQ(columns[1].lineBottom, 85);  // halfway from 10 to 20 at x 1
    EXPECT_FLOAT_EQ(columns[2].lineTop, 40);
    EXPECT_FLOAT_EQ(columns[2].lineBottom, 80);
}

TEST(ChartColumnsTest, LoneSampleFillsItsColumn) {
    const auto columns = chartColumns({{{4.2, 30, 50}}}, kScale, 10, 0);
    EXPECT_EQ(columns[4].coverage, 1);
    EXPECT_FLOAT_EQ(columns[4].lineTop, 50);
    EXPECT_FLOAT_EQ(columns[4].lineBottom, 70);
    EXPECT_EQ(columns[3].coverage + columns[5].coverage, 0);
}

}  // namespace
