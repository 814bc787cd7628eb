#pragma once
// Saving a segment from start to end: the plan, the clips' streams, the cut of each movie and the
// GPX beside it. Everything is written under temporary names and renamed into place only when all
// of it succeeded, so a failure or a cancel leaves no partial file and replaces nothing.
// Plain C++: it runs on a worker thread, and the tests and the benchmark drive it directly.

#include "SegmentPlan.h"
#include "SegmentTrack.h"
#include "SpeedUnit.h"

#include <filesystem>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

struct SegmentRequest {
    // The clips the timeline lays end to end, and each one's track (null where it has none).
    std::vector<SegmentClip> clips;
    std::vector<ClipTrack> tracks;
    SegmentSpan span;
    std::filesystem::path movie;  // the name chosen for the movie
    SpeedUnit unit = SpeedUnit::KMH;
};

struct SegmentResult {
    std::vector<std::filesystem::path> files;  // the movies then the GPX, once all are in place
    std::string error;                         // empty on success
    bool ok() const { return error.empty(); }
};

class SegmentJob {
public:
    using Progress = std::function<void(double fraction)>;
    static SegmentResult run(const SegmentRequest& request, const Progress& progress, std::stop_token stop);
};
