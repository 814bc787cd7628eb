#include "HourShift.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

RMCINFO at(uint32_t year, uint32_t month, uint32_t day, uint32_t hour = 0, uint32_t minute = 0, uint32_t second = 0) {
    RMCINFO f;
    std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second) = std::tie(year, month, day, hour, minute, second);
    return f;
}

auto fields(const RMCINFO& f) { return std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second); }

TEST(ClockShiftTest, MovesByMinutesThroughTheCalendar) {
    const struct {
        const char* name;
        RMCINFO before;
        int minutes;
        RMCINFO after;
    } cases[] = {
        {"within the hour", at(24, 5, 6, 10, 15, 42), 30, at(24, 5, 6, 10, 45, 42)},
        {"into the next hour", at(24, 5, 6, 10, 45), 90, at(24, 5, 6, 12, 15)},
        {"back over midnight", at(24, 5, 6, 0, 10), -30, at(24, 5, 5, 23, 40)},
        {"over a month end", at(24, 1, 31, 23, 50), 20, at(24, 2, 1, 0, 10)},
        {"onto a leap day", at(24, 2, 28, 23, 0), 60, at(24, 2, 29, 0, 0)},
        {"no leap day in 2023", at(23, 2, 28, 23, 0), 60, at(23, 3, 1, 0, 0)},
        {"no leap day in 2100", at(2100, 2, 28, 23, 0), 60, at(2100, 3, 1, 0, 0)},
        {"back into the old year", at(24, 1, 1, 0, 10), -20, at(23, 12, 31, 23, 50)},
        {"a day less a minute", at(24, 6, 30, 0, 0), 1439, at(24, 6, 30, 23, 59)},
        {"a four-digit year stays so", at(2016, 12, 31, 23, 59, 59), 1, at(2017, 1, 1, 0, 0, 59)},
        {"out of the century: four digits", at(0, 1, 1, 0, 10), -20, at(1999, 12, 31, 23, 50)},
        {"no change", at(24, 5, 6, 10, 15), 0, at(24, 5, 6, 10, 15)},
        {"invalid day unchanged", at(24, 4, 31, 5), 60, at(24, 4, 31, 5)},
        {"invalid minute unchanged", at(24, 4, 1, 5, 60), 60, at(24, 4, 1, 5, 60)},
        {"empty record unchanged", at(0, 0, 0), -60, at(0, 0, 0)},
        {"past year 9999 unchanged", at(9999, 12, 31, 23, 30), 60, at(9999, 12, 31, 23, 30)},
    };
    for (const auto& c : cases) {
        RMCINFO f = c.before;
        shiftRecordTimeByMinutes(f, c.minutes);
        EXPECT_EQ(fields(f), fields(c.after)) << c.name;
    }
}

}  // namespace
