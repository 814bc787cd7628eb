#include "SegmentTrack.h"

#include "SampleClock.h"

#include <algorithm>
#include <cmath>

std::optional<double> wallTimeAt(const std::vector<GPSData>& track, double clipSeconds) {
    std::optional<double> before;
    for (std::size_t k = 1; k < track.size(); ++k) {
        const std::optional<int64_t> clock = sampleClockSeconds(track[k].data().rmcinfo);
        if (!clock) continue;
        const double wall = double(*clock) + (clipSeconds - double(k));
        if (double(k) >= clipSeconds) return wall;
        before = wall;
    }
    return before;
}

std::vector<NamedTrack> segmentTracks(std::span<const SegmentPiece> pieces, std::span<const CutPiece> cuts,
                                      std::span<const ClipTrack> tracks) {
    std::vector<NamedTrack> named;
    const std::size_t count = std::min({pieces.size(), cuts.size(), tracks.size()});
    for (std::size_t i = 0; i < count; ++i) {
        NamedTrack piece{pieces[i].source.filename().string(), {}};
        const bool inTrack = std::isfinite(cuts[i].inSeconds) && std::isfinite(cuts[i].outSeconds) && tracks[i] &&
                             cuts[i].inSeconds < double(tracks[i]->size());
        if (inTrack) {
            const std::vector<GPSData>& track = *tracks[i];
            const auto first = std::size_t(std::max(1.0, std::ceil(cuts[i].inSeconds)));
            for (std::size_t k = first; k < track.size() && double(k) <= cuts[i].outSeconds; ++k)
                piece.track.samples.push_back(track[k]);
        }
        named.push_back(std::move(piece));
    }
    return named;
}
