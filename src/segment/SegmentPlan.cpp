#include "SegmentPlan.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace {

double finiteOrZero(double value) { return std::isfinite(value) && value > 0 ? value : 0.0; }

}  // namespace

std::optional<SegmentSpan> SegmentPlan::spanToSave(std::optional<double> markStart, std::optional<double> markEnd,
                                                   double position, double totalSeconds) {
    const double total = finiteOrZero(totalSeconds);
    SegmentSpan span;
    if (markStart && markEnd && std::isfinite(*markStart) && std::isfinite(*markEnd)) {
        span = {std::min(*markStart, *markEnd), std::max(*markStart, *markEnd)};
    } else {
        const double at = std::isfinite(position) ? position : 0.0;
        span = {at - kDefaultHalfSeconds, at + kDefaultHalfSeconds};
    }
    span.startSeconds = std::clamp(span.startSeconds, 0.0, total);
    span.endSeconds = std::clamp(span.endSeconds, 0.0, total);
    if (span.endSeconds - span.startSeconds < kShortestPieceSeconds) return std::nullopt;
    return span;
}

SegmentPlan::SegmentPlan(std::vector<SegmentClip> clips, SegmentSpan span, std::filesystem::path chosen)
    : clips_(std::move(clips)), chosen_(std::move(chosen)) {
    double clipStart = 0;
    for (std::size_t clip = 0; clip < clips_.size(); ++clip) {
        const double duration = finiteOrZero(clips_[clip].durationSeconds);
        const double in = std::max(span.startSeconds, clipStart) - clipStart;
        const double out = std::min(span.endSeconds, clipStart + duration) - clipStart;
        if (out - in >= kShortestPieceSeconds) pieces_.push_back({clip, clips_[clip].file, in, out});
        clipStart += duration;
    }
}

std::vector<SegmentOutput> SegmentPlan::outputs(std::span<const ClipStreams> streamsOfPieces) const {
    if (pieces_.empty() || streamsOfPieces.size() != pieces_.size()) return {};
    const bool joinable = std::all_of(streamsOfPieces.begin(), streamsOfPieces.end(),
                                      [&](const ClipStreams& streams) { return streams == streamsOfPieces.front(); });
    if (joinable || pieces_.size() == 1) return {{chosen_, pieces_}};
    std::vector<SegmentOutput> outputs;
    for (std::size_t i = 0; i < pieces_.size(); ++i) outputs.push_back({numberedFileOf(chosen_, i + 1), {pieces_[i]}});
    return outputs;
}

std::string SegmentPlan::containerOf(const std::filesystem::path& file) {
    std::string extension = file.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return extension == ".mov" ? "mov" : "mp4";
}

std::filesystem::path SegmentPlan::trackFileOf(const std::filesystem::path& movie) {
    std::filesystem::path track = movie;
    return track.replace_extension(".gpx");
}

std::filesystem::path SegmentPlan::temporaryFileOf(const std::filesystem::path& file) {
    return file.parent_path() / ("." + file.filename().string() + ".part");
}

std::filesystem::path SegmentPlan::numberedFileOf(const std::filesystem::path& file, std::size_t number) {
    return file.parent_path() / (file.stem().string() + "-" + std::to_string(number) + file.extension().string());
}
