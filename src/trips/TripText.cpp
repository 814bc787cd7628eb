#include "TripText.h"

#include "Phrase.h"

#include <chrono>
#include <cmath>
#include <cstdio>

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
    using namespace std::chrono;
    const sys_seconds instant{std::chrono::seconds{seconds}};
    const sys_days day = floor<days>(instant);
    const year_month_day date{day};
    const hh_mm_ss clock{instant - day};
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d", int(date.year()), unsigned(date.month()),
                  unsigned(date.day()), int(clock.hours().count()), int(clock.minutes().count()));
    return text;
}

std::string tripHeadingText(const TripInfo& trip) {
    if (!trip.known) return "…";
    return durationText(trip.durationSeconds) + " · " + distanceText(trip.distanceMetres);
}

std::string tripSummaryText(const TripInfo& trip, std::size_t number, std::size_t tripCount,
                            const TripPhrases& phrases) {
    const std::string numberText = std::to_string(number);
    const std::string countText = std::to_string(tripCount);
    if (!trip.known) return fillPhrase(phrases.unknownTrip, {numberText, countText});
    const std::string clips =
        fillPhrase(trip.span.count == 1 ? phrases.oneClip : phrases.clips, {std::to_string(trip.span.count)});
    const std::string length = durationText(trip.durationSeconds);
    const std::string distance = distanceText(trip.distanceMetres);
    if (const auto start = trip.startSampleSeconds ? trip.startSampleSeconds : trip.startCreationSeconds)
        return fillPhrase(phrases.tripFrom, {numberText, countText, clips, clockText(*start), length, distance});
    return fillPhrase(phrases.tripWithoutStart, {numberText, countText, clips, length, distance});
}
