#include "RouteTimestamp.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

namespace {

struct DateCase {
    const char* name;
    uint32_t year, month, day, hour, minute, second;
    const char* text;
    double timestamp;  // seconds since 1970 UTC, in UTC; 0 for no date
};

RMCINFO fieldsOf(const DateCase& c) {
    RMCINFO f;
    f.Year = c.year;
    f.Month = c.month;
    f.Day = c.day;
    f.Hour = c.hour;
    f.Minute = c.minute;
    f.Second = c.second;
    return f;
}

void PrintTo(const DateCase& c, std::ostream* out) { *out << c.name; }

class RouteTimestampTest : public testing::TestWithParam<DateCase> {
protected:
    TimeZoneGuard utc{"UTC0"};
};

TEST_P(RouteTimestampTest, TextAndInstant) {
    const DateCase& c = GetParam();
    EXPECT_EQ(routeDateText(fieldsOf(c)), c.text);
    EXPECT_EQ(routeTimestamp(fieldsOf(c)), c.timestamp);
}

INSTANTIATE_TEST_SUITE_P(
    Dates, RouteTimestampTest,
    testing::Values(
        DateCase{"Afternoon", 23, 5, 7, 14, 3, 9, "2023-05-07 02:03:09 PM", 1683468189},
        DateCase{"TwoDigitYear", 5, 1, 1, 0, 0, 0, "2005-01-01 00:00:00 AM", 1104537600},
        DateCase{"ThreeDigitYearKept", 150, 3, 4, 5, 6, 7, "0150-03-04 05:06:07 AM", -57428247233.0},
        DateCase{"FourDigitYearKept", 9999, 12, 31, 23, 59, 59, "9999-12-31 11:59:59 PM", 253402300799.0},
        DateCase{"FiveDigitYear", 10000, 1, 1, 0, 0, 0, "10000-01-01 00:00:00 AM", 0},
        DateCase{"Midnight", 23, 5, 7, 0, 0, 0, "2023-05-07 00:00:00 AM", 1683417600},
        DateCase{"Noon", 23, 5, 7, 12, 0, 0, "2023-05-07 00:00:00 PM", 1683460800},
        DateCase{"LastSecond", 23, 5, 7, 23, 59, 59, "2023-05-07 11:59:59 PM", 1683503999},
        DateCase{"Hour24ReadsAsNoon", 23, 5, 7, 24, 0, 0, "2023-05-07 00:00:00 PM", 1683460800},
        DateCase{"Hour25ReadsAsOnePM", 23, 5, 7, 25, 0, 0, "2023-05-07 01:00:00 PM", 1683464400},
        DateCase{"LeapDay", 24, 2, 29, 8, 0, 0, "2024-02-29 08:00:00 AM", 1709193600},
        DateCase{"LeapDayOfCommonYear", 23, 2, 29, 8, 0, 0, "2023-02-29 08:00:00 AM", 0},
        DateCase{"Month0", 23, 0, 7, 8, 0, 0, "2023-00-07 08:00:00 AM", 0},
        DateCase{"Month13", 23, 13, 7, 8, 0, 0, "2023-13-07 08:00:00 AM", 0},
        DateCase{"Day0", 23, 5, 0, 8, 0, 0, "2023-05-00 08:00:00 AM", 0},
        DateCase{"April31", 23, 4, 31, 8, 0, 0, "2023-04-31 08:00:00 AM", 0},
        DateCase{"Minute60", 23, 5, 7, 8, 60, 0, "2023-05-07 08:60:00 AM", 0},
        DateCase{"Second60", 23, 5, 7, 8, 0, 60, "2023-05-07 08:00:60 AM", 0},
        DateCase{"HugeMonthPrintsNegative", 23, 0xFFFFFFFFu, 7, 8, 0, 0, "2023--1-07 08:00:00 AM", 0}),
    [](const auto& info) { return std::string(info.param.name); });

// The recorded time is local time of the user's zone, summer time included.
TEST(RouteTimestampZoneTest, ReadsTheFieldsAsLocalTime) {
    TimeZoneGuard berlin{"CET-1CEST,M3.5.0,M10.5.0/3"};
    RMCINFO summer;
    summer.Year = 23, summer.Month = 7, summer.Day = 1, summer.Hour = 12;
    EXPECT_EQ(routeTimestamp(summer), 1688205600);  // 10:00 UTC
    RMCINFO winter;
    winter.Year = 23, winter.Month = 1, winter.Day = 15, winter.Hour = 12;
    EXPECT_EQ(routeTimestamp(winter), 1673780400);  // 11:00 UTC
}

}  // namespace
