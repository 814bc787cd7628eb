#pragma once
// The timeline's words: times as a clock shows them and the summary read out for the chart.

#include "TimelineSeries.h"

#include <string>
#include <string_view>

// A time on the line as durationText writes it ("m:ss", "h:mm:ss"), up to a thousand hours;
// negative or non-finite times read 0:00.
std::string clockText(double seconds);

// A speed with one decimal and its unit: "87.5 KM/H".
std::string speedText(float speed, std::string_view unitName);

// The summary's words, with numbered places (see fillPhrase); English unless the user interface
// fills them in its own language.
struct SeriesPhrases {
    // %1 the length.
    std::string noSpeed = "No speed recorded over %1";
    // %1 the length, %2 the highest speed, %3 when.
    std::string highest = "Speed over %1, highest %2 at %3";
};

// "Speed over 3:00, highest 87.5 KM/H at 1:42", or "No speed recorded over 3:00".
std::string seriesSummary(const TimelineSeries& series, std::string_view unitName, const SeriesPhrases& phrases = {});
