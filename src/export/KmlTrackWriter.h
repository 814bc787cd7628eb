#pragma once
// The track as KML 2.2 for Google Earth and GIS tools.

#include "SpeedUnit.h"
#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <iosfwd>
#include <span>
#include <string_view>

// One Placemark per movie, named after its file, holding a gx:Track: a time and a coordinate per
// sample, and the speed read-out texts in the chosen unit as the track's "speed" array. A gx:Track
// needs a time for every point, so samples whose date is not a calendar date are left out. A
// segmented track is one Placemark with a gx:MultiTrack holding a gx:Track per movie, which Google
// Earth draws as one route with its gaps.
class KmlTrackWriter final : public TrackWriter {
public:
    KmlTrackWriter(std::ostream& out, SpeedUnit unit) : out_(out), unit_(unit) {}

    void begin() override;
    void file(const NamedTrack& track) override;
    void segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) override;
    void end() override;

private:
    void beginPlacemark(std::string_view name, std::string_view summary);

    OutputBuffer out_;
    SpeedUnit unit_;
};
