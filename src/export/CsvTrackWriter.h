#pragma once
// The track as a table for spreadsheets: one row per sample, the texts as the player shows them.

#include "SpeedUnit.h"
#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

// A header row, then one row per sample; a leading file column when several movies are written.
// With segmented tracks, the leading columns are track, segment and file: the track's name, the
// movie's place in it (from 1) and the movie, so one table holds every trip and still tells
// them apart. Fields are quoted as RFC 4180 asks; rows end in a line feed.
class CsvTrackWriter final : public TrackWriter {
public:
    CsvTrackWriter(std::ostream& out, SpeedUnit unit, bool severalFiles, bool segmented = false)
        : out_(out), unit_(unit), severalFiles_(severalFiles || segmented), segmented_(segmented) {}

    void begin() override;
    // Under segmented, a lone movie is a track of one segment named after it.
    void file(const NamedTrack& track) override;
    void segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) override;
    void end() override;

private:
    // The field as it stands in a row: quoted when it holds a comma, quote or line break.
    static void appendField(std::string& out, std::string_view text);
    // The rows of one movie, each starting with leading (fields and their commas).
    void writeRows(const GPSTrack& track, const std::string& leading);

    OutputBuffer out_;
    SpeedUnit unit_;
    bool severalFiles_;
    bool segmented_;
};
