#pragma once
// Which parts of which clips a segment is made of, and which files it is written to. Times are in
// seconds: the span on the timeline's line (the clips laid end to end), the pieces within a clip.

#include "StreamSignature.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

struct SegmentClip {
    std::filesystem::path file;
    double durationSeconds = 0;
};

struct SegmentSpan {
    double startSeconds = 0;
    double endSeconds = 0;
    bool operator==(const SegmentSpan&) const = default;
};

struct SegmentPiece {
    std::size_t clip = 0;  // index into the plan's clips
    std::filesystem::path source;
    double inSeconds = 0;   // within the clip
    double outSeconds = 0;  // within the clip, after inSeconds
    bool operator==(const SegmentPiece&) const = default;
};

// One movie written: its pieces, joined one after the other.
struct SegmentOutput {
    std::filesystem::path file;
    std::vector<SegmentPiece> pieces;
    bool operator==(const SegmentOutput&) const = default;
};

class SegmentPlan {
public:
    // Pieces shorter than this (a span that ends on the joint of two clips) are left out.
    static constexpr double kShortestPieceSeconds = 0.001;
    // What is saved without marks: this long before and after the position.
    static constexpr double kDefaultHalfSeconds = 30;

    // The marked span when both marks are set (in either order), else kDefaultHalfSeconds around the
    // position; clamped to [0, totalSeconds]. Absent when that leaves nothing.
    static std::optional<SegmentSpan> spanToSave(std::optional<double> markStart, std::optional<double> markEnd,
                                                 double position, double totalSeconds);

    // clips: laid end to end as the timeline lays them; chosen: the file name the user gave.
    SegmentPlan(std::vector<SegmentClip> clips, SegmentSpan span, std::filesystem::path chosen);

    const std::vector<SegmentPiece>& pieces() const { return pieces_; }

    // One movie of every piece when the streams of each piece's clip (streamsOfPieces, one entry
    // per piece) match the first's; else one per piece, named "name-1.mp4", "name-2.mp4"... A
    // single piece keeps the chosen name. Empty without pieces or with a count that does not match.
    std::vector<SegmentOutput> outputs(std::span<const ClipStreams> streamsOfPieces) const;

    // libavformat's muxer for a file: "mov" for .mov, else "mp4".
    static std::string containerOf(const std::filesystem::path& file);
    // The GPS track beside a movie: the same name ending .gpx.
    static std::filesystem::path trackFileOf(const std::filesystem::path& movie);
    // Where a file is written before it is renamed into place: hidden, in the same folder.
    static std::filesystem::path temporaryFileOf(const std::filesystem::path& file);
    // "name.mp4" as the number'th of several: "name-2.mp4".
    static std::filesystem::path numberedFileOf(const std::filesystem::path& file, std::size_t number);

private:
    std::vector<SegmentClip> clips_;
    std::filesystem::path chosen_;
    std::vector<SegmentPiece> pieces_;
};
