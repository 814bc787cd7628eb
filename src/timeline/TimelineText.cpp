#include "TimelineText.h"

#include "Phrase.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

std::string clockText(double seconds) {
    // Beyond a thousand hours a time is not a trip's: it only has to print without overflowing.
    const double whole = std::isfinite(seconds) ? std::floor(std::clamp(seconds, 0.0, 3.6e6)) : 0.0;
    const long total = static_cast<long>(whole);
    char text[32];
    if (total >= 3600)
        std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", total / 3600, total / 60 % 60, total % 60);
    else
        std::snprintf(text, sizeof text, "%ld:%02ld", total / 60, total % 60);
    return text;
}

std::string speedText(float speed, std::string_view unitName) {
    char number[32];
    std::snprintf(number, sizeof number, "%.1f", std::isfinite(speed) ? double(speed) : 0.0);
    std::string text = number;
    if (!unitName.empty()) text.append(" ").append(unitName);
    return text;
}

std::string seriesSummary(const TimelineSeries& series, std::string_view unitName, const SeriesPhrases& phrases) {
    const std::string length = clockText(series.totalSeconds);
    if (!series.highest) return fillPhrase(phrases.noSpeed, {length});
    return fillPhrase(phrases.highest,
                      {length, speedText(series.highest->speed, unitName), clockText(series.highest->seconds)});
}
