#pragma once
// The track as a table for spreadsheets: one row per sample, the texts as the player shows them.

#include "SpeedUnit.h"
#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <iosfwd>
#include <string>
#include <string_view>

// A header row, then one row per sample; a leading file column when several movies are written.
// Fields are quoted as RFC 4180 asks; rows end in a line feed.
class CsvTrackWriter final : public TrackWriter {
public:
    CsvTrackWriter(std::ostream& out, SpeedUnit unit, bool severalFiles)
        : out_(out), unit_(unit), severalFiles_(severalFiles) {}

    void begin() override;
    void file(const NamedTrack& track) override;
    void end() override;

private:
    // The field as it stands in a row: quoted when it holds a comma, quote or line break.
    static void appendField(std::string& out, std::string_view text);

    OutputBuffer out_;
    SpeedUnit unit_;
    bool severalFiles_;
};
