#include "PlayerTrack.h"

#include <algorithm>

PlayerTrack PlayerTrack::fromLoaded(std::vector<GPSData> records, float loaderMaxSpeed) {
    PlayerTrack track;
    if (records.empty()) return track;
    records.insert(records.begin(), GPSData{});
    track.samples = std::move(records);
    track.speedMax = std::min(kSpeedCap, loaderMaxSpeed);
    return track;
}
