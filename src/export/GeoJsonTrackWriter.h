#pragma once
// The track as GeoJSON (RFC 7946) for web maps and GIS tools.

#include "SpeedUnit.h"
#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <cstddef>
#include <iosfwd>

// A FeatureCollection with one Feature per movie: a LineString of its samples (a Point for a
// single sample, no geometry for none), and properties with the file, the unit, the maximum, and
// "times" and "speeds" arrays that run parallel to the coordinates.
class GeoJsonTrackWriter final : public TrackWriter {
public:
    GeoJsonTrackWriter(std::ostream& out, SpeedUnit unit) : out_(out), unit_(unit) {}

    void begin() override;
    void file(const NamedTrack& track) override;
    void end() override;

private:
    OutputBuffer out_;
    SpeedUnit unit_;
    std::size_t written_ = 0;
};
