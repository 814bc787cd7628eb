#include "ClipExportTrack.h"

#include "FixSamples.h"

#include <algorithm>

GPSTrack exportTrackOf(const ClipRecord& record) {
    GPSTrack track;
    track.opened = true;
    if (record.track && !record.track->empty()) {
        const std::vector<GPSData>& withLeadIn = *record.track;
        track.samples.assign(withLeadIn.begin() + 1, withLeadIn.end());
    }
    for (const GPSData& sample : track.samples) track.maxSpeed = std::max(track.maxSpeed, sample.SpeedMPH());
    if (record.fixes && !record.fixes->empty()) track.samples = everyFixAsSample(*record.fixes);
    return track;
}

GPSTrack readClipForExport(const std::filesystem::path& file, int clockCorrectionMinutes) {
    ClipRecord record = ClipCatalog::readClip(file);
    ClipCatalog::correctClock(record, clockCorrectionMinutes);
    return exportTrackOf(record);
}
