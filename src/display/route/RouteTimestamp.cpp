#include "RouteTimestamp.h"

#include <cstdio>
#include <ctime>

namespace {

// Two-digit years belong to this century; the cameras write no other.
uint32_t fullYear(uint32_t year) { return year < 100 ? year + 2000 : year; }

bool isLeapYear(uint32_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

uint32_t daysInMonth(uint32_t year, uint32_t month) {
    static constexpr uint32_t kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : kDays[month - 1];
}

}  // namespace

std::string routeDateText(const RMCINFO& f) {
    // The fields print as signed ints, as the log always showed them; a huge value reads negative.
    char text[128];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d %s", int(fullYear(f.Year)), int(f.Month),
                  int(f.Day), int(f.Hour % 12), int(f.Minute), int(f.Second), f.Hour > 11 ? "PM" : "AM");
    return text;
}

double routeTimestamp(const RMCINFO& f) {
    const uint32_t year = fullYear(f.Year);
    // Larger years print with five or more digits (or, past INT_MAX, a minus sign): no date.
    if (year > 9999) return 0;
    if (f.Month < 1 || f.Month > 12) return 0;
    if (f.Day < 1 || f.Day > daysInMonth(year, f.Month)) return 0;
    if (f.Minute > 59 || f.Second > 59) return 0;

    // The 12-hour text keeps only hour mod 12 and the half of the day.
    const int hour = int(f.Hour % 12) + (f.Hour > 11 ? 12 : 0);

    std::tm local{};
    local.tm_year = int(year) - 1900;
    local.tm_mon = int(f.Month) - 1;
    local.tm_mday = int(f.Day);
    local.tm_hour = hour;
    local.tm_min = int(f.Minute);
    local.tm_sec = int(f.Second);
    local.tm_isdst = -1;  // let the zone's rules say whether summer time applies
    // A wall time skipped by a summer-time change moves forward by the change, as mktime does.
    return double(std::mktime(&local));
}
