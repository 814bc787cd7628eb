#include "RouteTimestamp.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

namespace {

RMCINFO fields(uint32_t year, uint32_t month, uint32_t day, uint32_t hour, uint32_t minute, uint32_t second) {
    RMCINFO f;
    f.Year = year, f.Month = month, f.Day = day, f.Hour = hour, f.Minute = minute, f.Second = second;
    return f;
}

TEST(RouteTimestamp, TextAndInstantOfTheRecordedFields) {
    const TimeZoneGuard utc{"UTC0"};
    const struct {
        const char* name;
        RMCINFO fields;
        const char* text;
        double timestamp;  // seconds since 1970 UTC; 0 for no date
    } cases[] = {
        {"afternoon", fields(23, 5, 7, 14, 3, 9), "2023-05-07 02:03:09 PM", 1683468189},
        {"two-digit year", fields(5, 1, 1, 0, 0, 0), "2005-01-01 00:00:00 AM", 1104537600},
        {"three-digit year kept", fields(150, 3, 4, 5, 6, 7), "0150-03-04 05:06:07 AM", -57428247233.0},
        {"four-digit year kept", fields(9999, 12, 31, 23, 59, 59), "9999-12-31 11:59:59 PM", 253402300799.0},
        {"five-digit year", fields(10000, 1, 1, 0, 0, 0), "10000-01-01 00:00:00 AM", 0},
        {"noon", fields(23, 5, 7, 12, 0, 0), "2023-05-07 00:00:00 PM", 1683460800},
        {"hour 24 reads as noon", fields(23, 5, 7, 24, 0, 0), "2023-05-07 00:00:00 PM", 1683460800},
        {"leap day", fields(24, 2, 29, 8, 0, 0), "2024-02-29 08:00:00 AM", 1709193600},
        {"leap day of a common year", fields(23, 2, 29, 8, 0, 0), "2023-02-29 08:00:00 AM", 0},
        {"month 0", fields(23, 0, 7, 8, 0, 0), "2023-00-07 08:00:00 AM", 0},
        {"day 0", fields(23, 5, 0, 8, 0, 0), "2023-05-00 08:00:00 AM", 0},
        {"second 60", fields(23, 5, 7, 8, 0, 60), "2023-05-07 08:00:60 AM", 0},
        {"huge month prints negative", fields(23, 0xFFFFFFFFu, 7, 8, 0, 0), "2023--1-07 08:00:00 AM", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(routeDateText(c.fields), c.text) << c.name;
        EXPECT_EQ(routeTimestamp(c.fields), c.timestamp) << c.name;
    }
}

// The recorded time is local time of the user's zone, summer time included.
TEST(RouteTimestamp, ReadsTheFieldsAsLocalTime) {
    const TimeZoneGuard berlin{"CET-1CEST,M3.5.0,M10.5.0/3"};
    EXPECT_EQ(routeTimestamp(fields(23, 7, 1, 12, 0, 0)), 1688205600);   // 10:00 UTC
    EXPECT_EQ(routeTimestamp(fields(23, 1, 15, 12, 0, 0)), 1673780400);  // 11:00 UTC
}

}  // namespace
