#pragma once
// The track as GPX 1.1, which every mapping and fitness tool opens.

#include "SpeedUnit.h"
#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <iosfwd>
#include <span>
#include <string_view>

// One <trk> per movie, named after its file, with one <trkseg>; a segmented track is one <trk>
// with a <trkseg> per movie, which GPX readers draw as one track with breaks between the movies. The speed goes into Garmin's
// TrackPointExtension v2 (<gpxtpx:speed>, metres per second), which GPX readers widely know; the
// per-point <desc> carries the read-out text in the chosen unit.
class GpxTrackWriter final : public TrackWriter {
public:
    GpxTrackWriter(std::ostream& out, SpeedUnit unit) : out_(out), unit_(unit) {}

    void begin() override;
    void file(const NamedTrack& track) override;
    void segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) override;
    void end() override;

private:
    void writeTrack(std::string_view name, std::string_view summary, std::span<const NamedTrack> segments);

    OutputBuffer out_;
    SpeedUnit unit_;
};
