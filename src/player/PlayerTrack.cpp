#include "PlayerTrack.h"

#include <algorithm>

PlayerTrack PlayerTrack::fromLoaded(std::vector<GPSData> records, float loaderMaxSpeed, int clockCorrectionMinutes) {
    PlayerTrack track;
    if (records.empty()) return track;
    recorrect(records, 0, clockCorrectionMinutes);
    records.insert(records.begin(), GPSData{});
    track.samples = std::move(records);
    track.speedMax = std::min(kSpeedCap, loaderMaxSpeed);
    return track;
}

void PlayerTrack::recorrect(std::vector<GPSData>& samples, int from, int to) {
    if (from == to) return;
    for (GPSData& sample : samples) sample.shiftClockByMinutes(to - from);
}
