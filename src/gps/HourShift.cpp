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
