#include "SampleTime.h"

#include <chrono>
#include <cstdio>

std::optional<std::string> isoDateTime(const RMCINFO& fix) {
    const uint32_t fullYear = fix.Year < 100 ? fix.Year + 2000 : fix.Year;
    if (fullYear > 9999 || fix.Month > 12 || fix.Day > 31) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(int(fullYear)), std::chrono::month(fix.Month),
                                           std::chrono::day(fix.Day)};
    if (!date.ok() || fix.Hour > 23 || fix.Minute > 59 || fix.Second > 59) return std::nullopt;

    char text[32];
    std::snprintf(text, sizeof text, "%04u-%02u-%02uT%02u:%02u:%02u", unsigned(fullYear), unsigned(fix.Month),
                  unsigned(fix.Day), unsigned(fix.Hour), unsigned(fix.Minute), unsigned(fix.Second));
    return text;
}
