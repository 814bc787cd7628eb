#pragma once
// The export formats by name.

#include "SpeedUnit.h"
#include "TrackWriter.h"

#include <iosfwd>
#include <memory>
#include <span>
#include <string_view>

struct ExportOptions {
    SpeedUnit unit = SpeedUnit::MPH;
    // JSON gives one object for a single movie and an array for several; CSV adds a file column.
    bool severalFiles = false;
    // Tracks of several movies follow (segmentedTrack): CSV adds track and segment columns.
    bool segmented = false;
};

struct TrackFormat {
    std::string_view name;         // as given to --format
    std::string_view description;  // one line for --help
    std::unique_ptr<TrackWriter> (*make)(std::ostream& out, const ExportOptions& options);
};

std::span<const TrackFormat> trackFormats();
// The format called name, or null.
const TrackFormat* findTrackFormat(std::string_view name);
