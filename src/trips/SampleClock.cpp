#include "SampleClock.h"

namespace {

bool isLeapYear(int64_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

uint32_t daysInMonth(int64_t year, uint32_t month) {
    static constexpr uint32_t kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : kDays[month - 1];
}

// Days from 1970-01-01 to the date in the proleptic Gregorian calendar.
int64_t daysFromCivil(int64_t year, uint32_t month, uint32_t day) {
    year -= month <= 2;
    const int64_t era = (year >= 0 ? year : year - 399) / 400;
    const int64_t yearOfEra = year - era * 400;
    const int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

}  // namespace

std::optional<int64_t> sampleClockSeconds(const RMCINFO& f) {
    // Two-digit years belong to this century; the cameras write no other.
    const int64_t year = f.Year < 100 ? int64_t(f.Year) + 2000 : int64_t(f.Year);
    if (year > 9999) return std::nullopt;
    if (f.Month < 1 || f.Month > 12) return std::nullopt;
    if (f.Day < 1 || f.Day > daysInMonth(year, f.Month)) return std::nullopt;
    if (f.Hour > 23 || f.Minute > 59 || f.Second > 59) return std::nullopt;
    return daysFromCivil(year, f.Month, f.Day) * 86400 + int64_t(f.Hour) * 3600 + int64_t(f.Minute) * 60 +
           int64_t(f.Second);
}
