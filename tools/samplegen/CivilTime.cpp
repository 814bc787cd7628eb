#include "CivilTime.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace {

std::optional<int> parseField(std::string_view text, std::size_t at, std::size_t width) {
    if (at + width > text.size()) return std::nullopt;
    int value = 0;
    const char* first = text.data() + at;
    const auto [end, error] = std::from_chars(first, first + width, value);
    if (error != std::errc() || end != first + width) return std::nullopt;
    return value;
}

}  // namespace

int64_t toClockSeconds(const CivilTime& t) {
    using namespace std::chrono;
    const sys_days day = year_month_day{year{t.year}, month{unsigned(t.month)}, std::chrono::day{unsigned(t.day)}};
    return int64_t(day.time_since_epoch().count()) * 86400 + t.hour * 3600 + t.minute * 60 + t.second;
}

CivilTime fromClockSeconds(int64_t seconds) {
    using namespace std::chrono;
    int64_t days = seconds / 86400;
    int64_t rest = seconds % 86400;
    if (rest < 0) {
        rest += 86400;
        --days;
    }
    const year_month_day date{sys_days{std::chrono::days{days}}};
    return {int(date.year()), int(unsigned(date.month())), int(unsigned(date.day())),
            int(rest / 3600), int(rest / 60 % 60),         int(rest % 60)};
}

std::optional<CivilTime> parseIsoDateTime(std::string_view text) {
    if (text.size() != 19 || text[4] != '-' || text[7] != '-' || (text[10] != 'T' && text[10] != ' ') ||
        text[13] != ':' || text[16] != ':')
        return std::nullopt;
    const auto year = parseField(text, 0, 4), month = parseField(text, 5, 2), day = parseField(text, 8, 2);
    const auto hour = parseField(text, 11, 2), minute = parseField(text, 14, 2), second = parseField(text, 17, 2);
    if (!year || !month || !day || !hour || !minute || !second) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year{*year}, std::chrono::month{unsigned(*month)},
                                           std::chrono::day{unsigned(*day)}};
    if (!date.ok() || *hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
    return CivilTime{*year, *month, *day, *hour, *minute, *second};
}

int64_t localInstant(const CivilTime& t) {
    std::tm parts{};
    parts.tm_year = t.year - 1900;
    parts.tm_mon = t.month - 1;
    parts.tm_mday = t.day;
    parts.tm_hour = t.hour;
    parts.tm_min = t.minute;
    parts.tm_sec = t.second;
    parts.tm_isdst = -1;  // let the zone's rules decide
    return int64_t(std::mktime(&parts));
}

std::string clockDigits(const CivilTime& t) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d%02d%02d%02d%02d%02d", t.year, t.month, t.day, t.hour, t.minute, t.second);
    return text;
}
