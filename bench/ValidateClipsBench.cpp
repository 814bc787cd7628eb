// How long validating a folder of camera clips takes: validURLs over 500 distinct files, MP4 as
// most cameras write them, and MPEG-TS, whose streams are only known from their packets.
#include "FFmpegVideoTrackProbe.h"
#include "GPSUtils.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int clipCount = 500;

// 500 copies of one 2-second 640x360 H.264+AAC clip under different names. Clip length matters
// little: the mov demuxer reads only the header boxes (moov, at the end of the file as cameras
// write it), so a one-minute clip costs about as much to test as this one.
class ClipFolder {
public:
    explicit ClipFolder(const std::filesystem::path& clip) {
        std::string pattern = (std::filesystem::temp_directory_path() / "dashtrack-clips-XXXXXX").string();
        directory_ = ::mkdtemp(pattern.data());
        for (int i = 0; i < clipCount; ++i) {
            auto copy = directory_ / ("clip" + std::to_string(i) + clip.extension().string());
            std::filesystem::copy_file(clip, copy);
            files_.push_back(std::move(copy));
        }
    }
    ~ClipFolder() { std::filesystem::remove_all(directory_); }
    ClipFolder(const ClipFolder&) = delete;
    ClipFolder& operator=(const ClipFolder&) = delete;

    const std::vector<std::filesystem::path>& files() const { return files_; }

private:
    std::filesystem::path directory_;
    std::vector<std::filesystem::path> files_;
};

void validateFolder(benchmark::State& state, const std::filesystem::path& clip) {
    const ClipFolder folder(clip);
    const GPSUtils utils({.userFile = {}, .shippedFile = {}}, defaultVideoTrackProbe());
    std::size_t valid = 0;
    for (auto _ : state) {
        const auto result = utils.validURLs(folder.files());
        valid = result.size();
        benchmark::DoNotOptimize(result.data());
    }
    if (valid != folder.files().size()) state.SkipWithError("not every clip was taken for a movie");
    state.counters["per_clip"] = benchmark::Counter(static_cast<double>(state.iterations() * clipCount),
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(validateFolder, mp4, VALIDATE_BENCH_CLIP)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(validateFolder, mpegts, VALIDATE_BENCH_TS_CLIP)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
