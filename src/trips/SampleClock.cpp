#include "SampleClock.h"

#include <chrono>

std::optional<int64_t> sampleClockSeconds(const RMCINFO& f) {
    using namespace std::chrono;
    // Two-digit years belong to this century; the cameras write no other.
    const int64_t fullYear = f.Year < 100 ? int64_t(f.Year) + 2000 : int64_t(f.Year);
    if (fullYear > 9999 || f.Month > 12 || f.Day > 31) return std::nullopt;
    const year_month_day date{year{int(fullYear)}, month{f.Month}, day{f.Day}};
    if (!date.ok() || f.Hour > 23 || f.Minute > 59 || f.Second > 59) return std::nullopt;
    return int64_t(sys_days{date}.time_since_epoch().count()) * 86400 + int64_t(f.Hour) * 3600 +
           int64_t(f.Minute) * 60 + int64_t(f.Second);
}
