#include "SegmentJob.h"

#include "GpxTrackWriter.h"
#include "KeptStreams.h"
#include "SegmentCutter.h"

#include <fstream>
#include <system_error>
#include <utility>

namespace {

// Temporary files written so far; those not renamed into place are removed when it goes.
class PendingFiles {
public:
    ~PendingFiles() {
        std::error_code ignored;
        for (const auto& [temporary, final] : files_) std::filesystem::remove(temporary, ignored);
    }
    void add(std::filesystem::path temporary, std::filesystem::path final) {
        files_.emplace_back(std::move(temporary), std::move(final));
    }
    // Renames every file into place; on the first failure the rest stay temporary and go.
    std::string commit(std::vector<std::filesystem::path>& placed) {
        for (auto& [temporary, final] : files_) {
            std::error_code error;
            std::filesystem::rename(temporary, final, error);
            if (error) return "Cannot write " + final.string() + ": " + error.message();
            placed.push_back(final);
            temporary.clear();
        }
        return {};
    }

private:
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> files_;
};

std::string writeTrack(const std::filesystem::path& file, std::span<const NamedTrack> tracks, SpeedUnit unit) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (!out) return "Cannot create " + file.filename().string();
    GpxTrackWriter writer(out, unit);
    writeTracks(writer, tracks);
    out.close();
    return out ? std::string() : "Cannot write " + file.filename().string();
}

}  // namespace

SegmentResult SegmentJob::run(const SegmentRequest& request, const Progress& progress, std::stop_token stop) {
    SegmentResult result;
    const SegmentPlan plan(request.clips, request.span, request.movie);
    if (plan.pieces().empty()) {
        result.error = "Nothing to save";
        return result;
    }
    const std::string container = SegmentPlan::containerOf(request.movie);
    std::vector<ClipStreams> streams;
    for (const SegmentPiece& piece : plan.pieces()) {
        std::optional<ClipStreams> read = readKeptStreams(piece.source, container);
        if (!read) {
            result.error = "Cannot open " + piece.source.filename().string() + " as a movie";
            return result;
        }
        streams.push_back(std::move(*read));
    }
    const std::vector<SegmentOutput> outputs = plan.outputs(streams);

    const auto trackOf = [&](const SegmentPiece& piece) {
        return piece.clip < request.tracks.size() ? request.tracks[piece.clip] : ClipTrack();
    };
    PendingFiles pending;
    std::vector<SegmentPiece> cutPieces;
    std::vector<CutPiece> cuts;
    std::vector<ClipTrack> tracks;
    for (std::size_t o = 0; o < outputs.size(); ++o) {
        const SegmentOutput& output = outputs[o];
        const SegmentPiece& first = output.pieces.front();
        const ClipTrack firstTrack = trackOf(first);
        const std::optional<double> wall = firstTrack ? wallTimeAt(*firstTrack, first.inSeconds) : std::nullopt;
        const std::filesystem::path temporary = SegmentPlan::temporaryFileOf(output.file);
        pending.add(temporary, output.file);
        const auto outputProgress = [&](double fraction) {
            if (progress) progress((double(o) + fraction) / double(outputs.size()));
        };
        CutOutcome outcome = SegmentCutter::cut(output, temporary, container, wall, outputProgress, stop);
        if (!outcome.ok()) {
            result.error = std::move(outcome.error);
            return result;
        }
        for (std::size_t p = 0; p < output.pieces.size(); ++p) {
            cutPieces.push_back(output.pieces[p]);
            cuts.push_back(outcome.pieces[p]);
            tracks.push_back(trackOf(output.pieces[p]));
        }
    }
    const std::filesystem::path trackFile = SegmentPlan::trackFileOf(request.movie);
    const std::filesystem::path temporaryTrack = SegmentPlan::temporaryFileOf(trackFile);
    pending.add(temporaryTrack, trackFile);
    if (std::string error = writeTrack(temporaryTrack, segmentTracks(cutPieces, cuts, tracks), request.unit);
        !error.empty()) {
        result.error = std::move(error);
        return result;
    }
    if (stop.stop_requested()) {
        result.error = kCutCancelled;
        return result;
    }
    result.error = pending.commit(result.files);
    return result;
}
