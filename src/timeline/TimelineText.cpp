#include "TimelineText.h"

#include "Phrase.h"
#include "TripText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

std::string clockText(double seconds) {
    // Beyond a thousand hours a time is not a trip's: it only has to print without overflowing.
    return durationText(std::isfinite(seconds) ? std::min(seconds, 3.6e6) : 0.0);
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
