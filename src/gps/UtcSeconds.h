#pragma once
// A UTC calendar date and time of day as seconds since 1970-01-01 00:00:00, the clock of
// GPSFix::clockSeconds. Track formats state UTC, so no time zone or daylight saving applies.

#include <chrono>
#include <optional>

// Absent unless the date exists in the calendar, the year is 1900-2199, hour 0-23, minute 0-59 and
// second in [0, 61): a leap second's 60 is allowed, as receivers may send it.
inline std::optional<double> utcSeconds(int year, unsigned month, unsigned day, int hour, int minute, double second) {
    if (year < 1900 || year > 2199) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
    if (!date.ok()) return std::nullopt;
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || !(second >= 0 && second < 61)) return std::nullopt;
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return double(days) * 86400.0 + hour * 3600.0 + minute * 60.0 + second;
}
