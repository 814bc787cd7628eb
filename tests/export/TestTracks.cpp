#include "TestTracks.h"

#include "TrackFormats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

GPSTrack trackOf(std::vector<GPSData> samples) {
    GPSTrack track;
    track.opened = true;
    for (const GPSData& sample : samples) track.maxSpeed = std::max(track.maxSpeed, sample.SpeedMPH());
    track.samples = std::move(samples);
    return track;
}

std::vector<NamedTrack> sampleMovies() {
    return {
        {"trip/a.mov", trackOf({
                           fixedPointSample(225000000, 1142500000, 2778),
                           fixedPointSample(-338688000, -1512093000, 0, {2016, 12, 31, 20, 5, 10}),
                           fixedPointSample(0, 0, 1000, {2016, 0, 0, 0, 0, 0}),
                       })},
        {"b \"quoted\", <odd> & 'new'\nline.mov",
         trackOf({fixedPointSample(515000000, -1200000, 1500, {2017, 2, 28, 23, 59, 59})})},
        {"empty.mov", trackOf({})},
    };
}

std::string render(std::string_view format, const std::vector<NamedTrack>& tracks, SpeedUnit unit) {
    std::ostringstream out;
    const TrackFormat* trackFormat = findTrackFormat(format);
    if (!trackFormat) {
        ADD_FAILURE() << "no format " << format;
        return "";
    }
    const auto writer = trackFormat->make(out, {.unit = unit, .severalFiles = tracks.size() > 1});
    writeTracks(*writer, tracks);
    return out.str();
}

std::string renderSegmented(std::string_view format, std::string_view name, const std::vector<NamedTrack>& segments,
                            SpeedUnit unit) {
    std::ostringstream out;
    const auto writer = findTrackFormat(format)->make(out, {.unit = unit, .severalFiles = true, .segmented = true});
    writer->begin();
    writer->segmentedTrack(name, segments);
    writer->end();
    return out.str();
}
