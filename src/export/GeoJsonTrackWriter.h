#pragma once
// The track as GeoJSON (RFC 7946) for web maps and GIS tools.

#include "SpeedUnit.h"
#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <cstddef>
#include <iosfwd>
#include <span>
#include <string_view>

// A FeatureCollection with one Feature per movie: a LineString of its samples (a Point for a
// single sample, no geometry for none), and properties with the file, the unit, the maximum, and
// "times" and "speeds" arrays that run parallel to the coordinates. A segmented track is one
// Feature with a MultiLineString, a line per movie, and "files", "times" and "speeds" that hold
// one item per line; a movie with fewer than two drawable samples has no line and no items.
class GeoJsonTrackWriter final : public TrackWriter {
public:
    GeoJsonTrackWriter(std::ostream& out, SpeedUnit unit) : out_(out), unit_(unit) {}

    void begin() override;
    void file(const NamedTrack& track) override;
    void segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) override;
    void end() override;

private:
    OutputBuffer out_;
    SpeedUnit unit_;
    std::size_t written_ = 0;
};
