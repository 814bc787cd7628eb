#include "SampleTime.h"

#include <chrono>

namespace {

// Two or four digits, zero-padded; the caller has checked the range.
void appendDigits(std::string& out, uint32_t value, int digits) {
    char text[4];
    for (int i = digits - 1; i >= 0; --i, value /= 10) text[i] = char('0' + value % 10);
    out.append(text, std::size_t(digits));
}

uint32_t fullYearOf(const RMCINFO& fix) { return fix.Year < 100 ? fix.Year + 2000 : fix.Year; }

}  // namespace

bool hasCalendarTime(const RMCINFO& fix) {
    const uint32_t fullYear = fullYearOf(fix);
    if (fullYear > 9999 || fix.Month > 12 || fix.Day > 31) return false;
    const std::chrono::year_month_day date{std::chrono::year(int(fullYear)), std::chrono::month(fix.Month),
                                           std::chrono::day(fix.Day)};
    return date.ok() && fix.Hour <= 23 && fix.Minute <= 59 && fix.Second <= 59;
}

bool appendIsoDateTime(std::string& out, const RMCINFO& fix) {
    if (!hasCalendarTime(fix)) return false;
    appendDigits(out, fullYearOf(fix), 4);
    out += '-';
    appendDigits(out, fix.Month, 2);
    out += '-';
    appendDigits(out, fix.Day, 2);
    out += 'T';
    appendDigits(out, fix.Hour, 2);
    out += ':';
    appendDigits(out, fix.Minute, 2);
    out += ':';
    appendDigits(out, fix.Second, 2);
    return true;
}

std::optional<std::string> isoDateTime(const RMCINFO& fix) {
    std::string text;
    if (!appendIsoDateTime(text, fix)) return std::nullopt;
    return text;
}
