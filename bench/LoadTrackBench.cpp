// Loading an hour of GPS (3,600 records) from a 1.5 GB movie: time with a warm cache, and the bytes
// read from disk to do it.
#include "GPSDataLoader.h"
#include "SparseMovie.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr uint32_t kSeconds = 3600;
constexpr uint64_t kMovieBytes = 1'500'000'000;

std::filesystem::path benchDir() {
    const char* dir = std::getenv("DASHTRACK_BENCH_DIR");
    std::filesystem::path path = dir ? dir : std::filesystem::temp_directory_path() / "dashtrack-bench";
    std::filesystem::create_directories(path);
    return path;
}

// Kept on disk between runs (sparse, so it costs little) for comparisons with other readers.
std::filesystem::path movie(SparseLayout layout) {
    const auto path = benchDir() / (layout == SparseLayout::Index ? "hour-index.mov" : "hour-soundchunk.mov");
    if (!std::filesystem::exists(path) || std::filesystem::file_size(path) < kMovieBytes / 2)
        writeSparseMovie(path, layout, kSeconds, kMovieBytes);
    return path;
}

// Bytes this process has read through system calls so far.
uint64_t bytesRead() {
    std::ifstream io("/proc/self/io");
    std::string key;
    uint64_t value = 0;
    while (io >> key >> value)
        if (key == "rchar:") return value;
    return 0;
}

void loadHour(benchmark::State& state, SparseLayout layout) {
    const auto path = movie(layout);
    float maxSpeed = 0;
    std::size_t samples = GPSDataLoader::LoadGPSDataList(path, &maxSpeed).size();  // warm the cache
    uint64_t readTotal = 0;
    for (auto _ : state) {
        const uint64_t before = bytesRead();
        auto track = GPSDataLoader::LoadGPSDataList(path, &maxSpeed);
        readTotal += bytesRead() - before;
        samples = track.size();
        benchmark::DoNotOptimize(track);
    }
    state.counters["samples"] = double(samples);
    state.counters["bytes_read"] = double(readTotal) / double(state.iterations());
    state.counters["file_GB"] = double(std::filesystem::file_size(path)) / 1e9;
}

void BM_LoadHourIndexLayout(benchmark::State& state) { loadHour(state, SparseLayout::Index); }
void BM_LoadHourSoundChunkLayout(benchmark::State& state) { loadHour(state, SparseLayout::SoundChunk); }

BENCHMARK(BM_LoadHourIndexLayout)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadHourSoundChunkLayout)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
