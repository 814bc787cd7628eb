#include "TripText.h"

#include <cmath>
#include <cstdio>

namespace {

// Days since 1970-01-01 to a civil date (proleptic Gregorian).
void civilFromDays(int64_t days, int64_t& year, unsigned& month, unsigned& day) {
    days += 719468;
    const int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const auto dayOfEra = static_cast<unsigned>(days - era * 146097);
    const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned mp = (5 * dayOfYear + 2) / 153;
    day = dayOfYear - (153 * mp + 2) / 5 + 1;
    month = mp < 10 ? mp + 3 : mp - 9;
    year = int64_t(yearOfEra) + era * 400 + (month <= 2);
}

}  // namespace

std::string durationText(double seconds) {
    const int64_t whole = std::isfinite(seconds) && seconds > 0 ? int64_t(std::min(seconds, 1e9)) : 0;
    char text[32];
    if (whole < 3600)
        std::snprintf(text, sizeof text, "%d:%02d", int(whole / 60), int(whole % 60));
    else
        std::snprintf(text, sizeof text, "%lld:%02d:%02d", static_cast<long long>(whole / 3600), int(whole / 60 % 60),
                      int(whole % 60));
    return text;
}

std::string distanceText(double metres) {
    char text[32];
    if (!std::isfinite(metres) || metres < 0) metres = 0;
    if (metres < 1000)
        std::snprintf(text, sizeof text, "%d m", int(std::lround(metres)));
    else if (metres < 100000)
        std::snprintf(text, sizeof text, "%.1f km", metres / 1000);
    else
        std::snprintf(text, sizeof text, "%.0f km", metres / 1000);
    return text;
}

std::string clockText(int64_t seconds) {
    const int64_t days = seconds >= 0 ? seconds / 86400 : (seconds - 86399) / 86400;
    const int64_t ofDay = seconds - days * 86400;
    int64_t year = 0;
    unsigned month = 0, day = 0;
    civilFromDays(days, year, month, day);
    char text[48];
    std::snprintf(text, sizeof text, "%04lld-%02u-%02u %02d:%02d", static_cast<long long>(year), month, day,
                  int(ofDay / 3600), int(ofDay / 60 % 60));
    return text;
}

std::string tripHeadingText(const TripInfo& trip) {
    if (!trip.known) return "…";
    return durationText(trip.durationSeconds) + " · " + distanceText(trip.distanceMetres);
}

std::string tripSummaryText(const TripInfo& trip, std::size_t number, std::size_t tripCount) {
    std::string text = "Trip " + std::to_string(number) + " of " + std::to_string(tripCount);
    if (!trip.known) return text;
    text += ": " + std::to_string(trip.span.count) + (trip.span.count == 1 ? " clip" : " clips");
    if (const auto start = trip.startSampleSeconds ? trip.startSampleSeconds : trip.startCreationSeconds)
        text += ", from " + clockText(*start);
    return text + ", " + durationText(trip.durationSeconds) + ", " + distanceText(trip.distanceMetres);
}
