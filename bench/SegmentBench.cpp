// Saving a segment: 60 s cut out of a 70 s 1080p clip (H.264 at 12 Mb/s, a keyframe every second,
// AAC sound), within one clip and across two; the whole save as the window runs it (streams read,
// cut, GPX written, renamed into place) into a folder under the system's temporary directory.
#include "SegmentJob.h"
#include "TempDir.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

const std::filesystem::path kClip = SEGMENT_BENCH_CLIP;
constexpr double kClipSeconds = 70;

void saveSegment(benchmark::State& state, std::size_t clips, SegmentSpan span) {
    // Removed with what the save left, however the run ends.
    const TempDir folder;
    if (folder.path().empty()) return state.SkipWithError("no scratch folder");
    SegmentRequest request{.clips = {}, .tracks = {}, .span = span, .movie = folder / "segment.mp4"};
    for (std::size_t i = 0; i < clips; ++i) {
        request.clips.push_back({kClip, kClipSeconds});
        request.tracks.push_back(nullptr);
    }
    std::uintmax_t bytes = 0;
    for (auto _ : state) {
        const SegmentResult result = SegmentJob::run(request, {}, {});
        if (!result.ok()) return state.SkipWithError(result.error.c_str());
        bytes = std::filesystem::file_size(request.movie);
    }
    state.counters["MB"] = double(bytes) / 1e6;
}

void withinOneClip(benchmark::State& state) { saveSegment(state, 1, {5, 65}); }
void acrossTwoClips(benchmark::State& state) { saveSegment(state, 2, {40, 100}); }

}  // namespace

BENCHMARK(withinOneClip)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(acrossTwoClips)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
