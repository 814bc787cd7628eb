#include "HourShift.h"

#include <chrono>
#include <ctime>

namespace {

bool isValidWallClock(uint32_t year, uint32_t month, uint32_t day, const RMCINFO& fix) {
    using namespace std::chrono;
    if (year > 9999 || fix.Hour > 23 || fix.Minute > 59 || fix.Second > 59) return false;
    return year_month_day{std::chrono::year(int(year)), std::chrono::month(month), std::chrono::day(day)}.ok();
}

}  // namespace

void shiftRecordTimeByHours(RMCINFO& fix, int hours) {
    const uint32_t year = fix.Year < 100 ? fix.Year + 2000 : fix.Year;
    if (!isValidWallClock(year, fix.Month, fix.Day, fix)) return;

    std::tm local{};
    local.tm_year = int(year) - 1900;
    local.tm_mon = int(fix.Month) - 1;
    local.tm_mday = int(fix.Day);
    local.tm_hour = int(fix.Hour);
    local.tm_min = int(fix.Minute);
    local.tm_sec = int(fix.Second);
    local.tm_isdst = -1;  // let the zone's rules decide, as reading a local wall-clock text would
    const std::time_t instant = std::mktime(&local);
    if (instant == std::time_t(-1)) return;

    const std::time_t moved = instant + std::time_t(hours) * 3600;
    std::tm result{};
    if (!localtime_r(&moved, &result)) return;
    fix.Year = uint32_t(result.tm_year + 1900);
    fix.Month = uint32_t(result.tm_mon + 1);
    fix.Day = uint32_t(result.tm_mday);
    fix.Hour = uint32_t(result.tm_hour);
    fix.Minute = uint32_t(result.tm_min);
    fix.Second = uint32_t(result.tm_sec);
}

void shiftRecordTimeByMinutes(RMCINFO& fix, int minutes) {
    using namespace std::chrono;
    if (minutes == 0) return;
    const bool twoDigitYear = fix.Year < 100;
    const uint32_t year = twoDigitYear ? fix.Year + 2000 : fix.Year;
    if (!isValidWallClock(year, fix.Month, fix.Day, fix)) return;

    const sys_days day{year_month_day{std::chrono::year(int(year)), std::chrono::month(fix.Month),
                                      std::chrono::day(fix.Day)}};
    const sys_seconds moved = day + hours(fix.Hour) + std::chrono::minutes(int64_t(fix.Minute) + minutes) +
                              seconds(fix.Second);
    const sys_days movedDay = floor<days>(moved);
    const year_month_day date{movedDay};
    const int movedYear = int(date.year());
    if (movedYear < 1 || movedYear > 9999) return;
    const hh_mm_ss clock{moved - movedDay};
    fix.Year = twoDigitYear && movedYear >= 2000 && movedYear < 2100 ? uint32_t(movedYear - 2000) : uint32_t(movedYear);
    fix.Month = unsigned(date.month());
    fix.Day = unsigned(date.day());
    fix.Hour = uint32_t(clock.hours().count());
    fix.Minute = uint32_t(clock.minutes().count());
    fix.Second = uint32_t(clock.seconds().count());
}
