#include "OtherTrackReaders.h"

#include "FixSamples.h"
#include "GpmfTrack.h"
#include "MovieDuration.h"
#include "NmeaBoxTrack.h"
#include "NmeaTrack.h"
#include "SidecarFiles.h"
#include "SidecarMatch.h"

#include <algorithm>

namespace {

using Reader = std::optional<GPSTrack> (*)(SeekableFile& movie, const std::filesystem::path& url,
                                           const std::optional<MovieHeader>& header);

double durationOf(const std::optional<MovieHeader>& header) {
    return header && header->durationSeconds ? *header->durationSeconds : 0.0;
}

std::optional<GPSTrack> readGpmf(SeekableFile& movie, const std::filesystem::path& /*url*/,
                                 const std::optional<MovieHeader>& header) {
    if (!GpmfTrack::hasGpmfTrack(movie)) return std::nullopt;
    return trackFromFixes(GpmfTrack::readFixes(movie), durationOf(header), GPSLayout::Gpmf);
}

// Sentences kept in the movie belong to it: they are placed by the movie's creation time when
// that is UTC and they fall in the clip; when they do not (many cameras write their local time
// there), from the first sentence on, which the camera writes as it starts recording.
std::optional<GPSTrack> readNmeaText(SeekableFile& movie, const std::filesystem::path& /*url*/,
                                     const std::optional<MovieHeader>& header) {
    std::vector<GPSFix> fixes = NmeaBoxTrack::readFixes(movie);
    if (fixes.empty()) return std::nullopt;
    const double duration = durationOf(header);
    if (header && header->creationSeconds) {
        std::vector<GPSFix> matched = matchFixesToClip(fixes, {double(*header->creationSeconds), duration});
        if (!matched.empty()) return trackFromFixes(std::move(matched), duration, GPSLayout::NmeaText);
    }
    const auto first = std::find_if(fixes.begin(), fixes.end(), [](const GPSFix& fix) { return fix.clockSeconds; });
    if (first == fixes.end()) return std::nullopt;
    std::vector<GPSFix> placed = matchFixesToClip(fixes, {*first->clockSeconds, duration > 0 ? duration : 1e9});
    if (placed.empty()) return std::nullopt;
    return trackFromFixes(std::move(placed), duration, GPSLayout::NmeaText);
}

// A track's samples carry their own movie time, so its sentences need no placing.
std::optional<GPSTrack> readNmeaTrack(SeekableFile& movie, const std::filesystem::path& /*url*/,
                                      const std::optional<MovieHeader>& header) {
    std::vector<GPSFix> fixes = NmeaTrack::readFixes(movie);
    if (fixes.empty()) return std::nullopt;
    return trackFromFixes(std::move(fixes), durationOf(header), GPSLayout::NmeaTrack);
}

// A sidecar's fixes that fall within the clip, from the movie's creation time for its length. A
// sidecar of another time claims nothing, so a later one may.
std::optional<GPSTrack> readSidecar(SeekableFile& /*movie*/, const std::filesystem::path& url,
                                    const std::optional<MovieHeader>& header) {
    if (!header || !header->creationSeconds) return std::nullopt;
    const ClipSpan clip{double(*header->creationSeconds), durationOf(header)};
    for (const SidecarFile& sidecar : findSidecarFiles(url)) {
        std::vector<GPSFix> fixes = matchFixesToClip(readSidecarFixes(sidecar), clip);
        if (fixes.empty()) continue;
        const GPSLayout layout = sidecar.format == SidecarFormat::Gpx ? GPSLayout::GpxSidecar : GPSLayout::NmeaSidecar;
        return trackFromFixes(std::move(fixes), clip.durationSeconds, layout);
    }
    return std::nullopt;
}

constexpr Reader kReaders[] = {readGpmf, readNmeaText, readNmeaTrack, readSidecar};

}  // namespace

GPSTrack trackFromFixes(std::vector<GPSFix> fixes, double durationSeconds, GPSLayout layout) {
    GPSTrack track;
    track.opened = true;
    track.layout = layout;
    track.samples = samplesFromFixes(fixes, durationSeconds);
    for (const GPSData& sample : track.samples) track.maxSpeed = std::max(track.maxSpeed, sample.SpeedMPH());
    track.fixes = std::move(fixes);
    return track;
}

std::optional<GPSTrack> readOtherTrack(SeekableFile& movie, const std::filesystem::path& url) {
    const std::optional<MovieHeader> header = readMovieHeader(movie);
    for (const Reader reader : kReaders) {
        if (auto track = reader(movie, url, header)) return track;
    }
    return std::nullopt;
}
