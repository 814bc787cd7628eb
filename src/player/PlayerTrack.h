#pragma once
// The GPS track as the player engine keeps it: an empty sample before the first record, so that
// position k is the sample shown from second k of the movie.

#include "GPSData.h"

#include <vector>

struct PlayerTrack {
    // Loader maxima above this are capped: the speed scales stop at 200.
    static constexpr float kSpeedCap = 200.0f;

    std::vector<GPSData> samples;  // empty, or the lead-in followed by every record
    float speedMax = 0;            // 0 for an empty track

    // clockCorrectionMinutes moves every record's date and time, for a camera clock set wrong.
    static PlayerTrack fromLoaded(std::vector<GPSData> records, float loaderMaxSpeed, int clockCorrectionMinutes = 0);
    // Moves the times of samples already corrected by `from` minutes to a correction of `to`.
    static void recorrect(std::vector<GPSData>& samples, int from, int to);
};
