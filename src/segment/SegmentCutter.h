#pragma once
// Cuts the pieces of one segment movie out of their clips without re-encoding: the packets of the
// kept streams are copied from the keyframe at or before each piece's start up to the first packet
// at or after its end, their times moved to start at 0 and, across pieces, to go on from the
// previous piece's end.

#include "SegmentPlan.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

// The error of a cut stopped because it was asked to.
inline constexpr const char* kCutCancelled = "Cancelled";

// The part of a clip that went into the movie, in seconds within the clip.
struct CutPiece {
    double inSeconds = 0;
    double outSeconds = 0;
};

struct CutOutcome {
    std::vector<CutPiece> pieces;  // one per piece of the output, when it succeeded
    std::string error;             // empty on success
    bool ok() const { return error.empty(); }
};

class SegmentCutter {
public:
    // The fraction of the output written, 0 to 1; called on the cutting thread.
    using Progress = std::function<void(double fraction)>;

    // Writes output's pieces into target in the container ("mp4", "mov"). startWallSeconds: the
    // recording's wall time (seconds since 1970, UTC) at the first piece's inSeconds, to date the
    // movie; without it, the first clip's own creation time is carried over. Stops when asked,
    // as a failure. Leaves whatever it wrote at target for the caller to remove on failure.
    static CutOutcome cut(const SegmentOutput& output, const std::filesystem::path& target, const std::string& container,
                          std::optional<double> startWallSeconds, const Progress& progress, std::stop_token stop);
};
