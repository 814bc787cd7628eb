#pragma once
// How the playlist speaks of a trip: a short label on its first row ("12:40 · 8.4 km") and a
// sentence for tooltips and screen readers.

#include "TripIndex.h"

#include <cstddef>
#include <cstdint>
#include <string>

// "m:ss" below an hour, "h:mm:ss" from there; negative and non-finite durations read "0:00".
std::string durationText(double seconds);
// "850 m" below a kilometre, "8.4 km" from there, "123 km" from 100 km.
std::string distanceText(double metres);
// "yyyy-MM-dd HH:mm" of seconds on the sample clock's scale (or of a creation time read in UTC).
std::string clockText(int64_t seconds);
// The label on a trip's first row: its length and distance; "…" while not known.
std::string tripHeadingText(const TripInfo& trip);
// The words of a trip's sentence, with numbered places (see fillPhrase); English unless the
// user interface fills them in its own language.
struct TripPhrases {
    // %1 the trip's number, %2 the number of trips.
    std::string unknownTrip = "Trip %1 of %2";
    // Then %3 the clips, %4 the start, %5 the length, %6 the distance.
    std::string tripFrom = "Trip %1 of %2: %3, from %4, %5, %6";
    // A trip whose start is not known: %3 the clips, %4 the length, %5 the distance.
    std::string tripWithoutStart = "Trip %1 of %2: %3, %4, %5";
    // %1 the number of clips.
    std::string oneClip = "%1 clip";
    std::string clips = "%1 clips";
};
// "Trip 2 of 5: 4 clips, from 2024-05-07 14:03, 12:40, 8.4 km"; an unknown trip says only which it is.
std::string tripSummaryText(const TripInfo& trip, std::size_t number, std::size_t tripCount,
                            const TripPhrases& phrases = {});
