#pragma once
// Writing an export document off the UI thread: the clips' tracks are gathered one at a time, the
// document goes to a temporary file beside the target, and only a whole document is renamed into
// place. A cancel or a failure leaves neither the target nor the temporary file.

#include "SpeedUnit.h"
#include "TrackWriter.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

// One clip of an export: the name the document gives it and how to get its track. load runs on
// the worker, so it may read the disk.
struct ExportClip {
    std::string name;
    std::function<GPSTrack()> load;
};

// A track of the document: a trip, one segment per clip.
struct ExportTrack {
    std::string name;
    std::vector<ExportClip> clips;
};

struct TrackExportRequest {
    std::vector<ExportTrack> tracks;
    std::string format;  // a name of trackFormats(): "gpx", "kml", "geojson", "csv"
    SpeedUnit unit = SpeedUnit::MPH;
    std::filesystem::path target;
};

struct TrackExportResult {
    enum class Outcome { Written, Cancelled, Failed };
    Outcome outcome = Outcome::Failed;
    // Why it failed, as the system says it ("Permission denied"); empty otherwise.
    std::string error;
};

class TrackExportJob {
public:
    explicit TrackExportJob(TrackExportRequest request) : request_(std::move(request)) {}

    std::size_t clipCount() const;
    // Writes the document. A lone clip is written exactly as dashtrack-gps writes it; anything
    // more as one segmented track per ExportTrack. Cancellation is looked at before each clip is
    // gathered and before each track is written; progress hears (clips gathered, clipCount()).
    TrackExportResult run(std::stop_token cancel,
                          const std::function<void(std::size_t, std::size_t)>& progress = {}) const;

private:
    TrackExportRequest request_;
};
