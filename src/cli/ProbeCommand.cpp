#include "ProbeCommand.h"

#include "Diagnostics.h"
#include "GPSDataLoader.h"
#include "MovieProbeLibrary.h"

#include <iterator>
#include <ostream>
#include <string>
#include <utility>

namespace {

constexpr std::pair<GPSLayout, std::string_view> kLayoutNames[] = {
    {GPSLayout::None, "none"},
    {GPSLayout::Index, "index"},
    {GPSLayout::SoundChunk, "sound-chunk"},
    {GPSLayout::Gpmf, "gpmf"},
    {GPSLayout::NmeaText, "nmea-text"},
    {GPSLayout::NmeaTrack, "nmea-track"},
    {GPSLayout::NmeaSidecar, "nmea-sidecar"},
    {GPSLayout::GpxSidecar, "gpx-sidecar"},
};

// Indexed like GPSTrack::formCounts.
constexpr std::pair<GPSRecordForm, std::string_view> kFormNames[] = {
    {GPSRecordForm::MP4, "mp4"},
    {GPSRecordForm::Scaled, "scaled"},
    {GPSRecordForm::FixedPoint, "fixed-point"},
    {GPSRecordForm::Type1, "type1"},
    {GPSRecordForm::Type2, "type2"},
    {GPSRecordForm::Type3, "type3"},
    {GPSRecordForm::Type20, "type20"},
};
static_assert(std::size(kFormNames) == kGPSRecordFormCount);

std::string_view layoutName(GPSLayout layout) {
    for (const auto& [value, name] : kLayoutNames)
        if (value == layout) return name;
    return "none";
}

// Every movie with a sound track has what the sound-chunk layout reads, so that layout counts
// as found only when GPS blocks were there; an index is a box of its own and counts even empty.
GPSLayout foundLayout(const GPSTrack& track) {
    return track.layout == GPSLayout::SoundChunk && track.samples.empty() ? GPSLayout::None : track.layout;
}

std::string formNames(const GPSTrack& track) {
    std::string names;
    for (const auto& [form, name] : kFormNames) {
        if (track.formCounts[std::size_t(form)] == 0) continue;
        if (!names.empty()) names += ',';
        names += name;
    }
    return names.empty() ? "-" : names;
}

// Layout, record forms and sample count, tab-separated.
std::string describeTrack(const GPSTrack& track) {
    return std::string(layoutName(foundLayout(track))) + "\t" + formNames(track) + "\t" +
           std::to_string(track.samples.size());
}

}  // namespace

int runProbe(const Invocation& invocation, std::ostream& out, std::ostream& err) {
    // Loaded directly rather than through the shared settings object, so that probing never reads
    // or creates the user's settings file.
    std::string loadError;
    const auto videoProbe = MovieProbeLibrary::load(loadError);
    if (!videoProbe) {
        err << "dashtrack-gps: probe: " << loadError << '\n';
        return kExitFileError;
    }
    int status = kExitSuccess;
    for (const std::string& file : invocation.files) {
        const GPSTrack track = GPSDataLoader::LoadTrack(file);
        if (!track.opened) {
            reportFileError(err, file, track.openError);
            status = kExitFileError;
            continue;
        }
        const bool playable = videoProbe->hasVideoTrack(file);
        out << displayName(file) << '\t' << (playable ? "movie" : "not-movie") << '\t' << describeTrack(track) << '\n';
    }
    return finishOutput(out, err, status);
}
