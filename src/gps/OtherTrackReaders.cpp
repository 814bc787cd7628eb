#include "OtherTrackReaders.h"

#include "FixSamples.h"
#include "GpmfTrack.h"
#include "MovieDuration.h"
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

constexpr Reader kReaders[] = {readGpmf, readSidecar};

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
