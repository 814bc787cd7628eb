// Export Track of a one-hour trip: 3,600 samples over 60 clips of a minute, in each format the
// window offers. "document" is the writing alone, into memory; "job" is the window's whole export
// to disk: gathering the clips, the temporary file, its flush to the disk and the rename.
#include "TrackExportJob.h"
#include "TrackFormats.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace {

constexpr const char* kFormats[] = {"gpx", "kml", "geojson", "csv"};
constexpr int kClips = 60;
constexpr int kSecondsPerClip = 60;

std::vector<NamedTrack> hourTrip() {
    std::vector<NamedTrack> clips;
    for (int clip = 0; clip < kClips; ++clip) {
        NamedTrack named{"/footage/2026_1115_08" + std::to_string(10 + clip) + "00_" + std::to_string(clip) + ".MOV", {}};
        named.track.opened = true;
        for (int second = 0; second < kSecondsPerClip; ++second) {
            const int t = clip * kSecondsPerClip + second;
            GPSFix fix;
            fix.clockSeconds = 1763193600.0 + t;  // 2025-11-15 08:00 UTC onwards
            fix.latitude = 48.8 + 0.1 * t / 3600.0;
            fix.longitude = 2.3 + 0.1 * t / 3600.0;
            fix.speedMetresPerSecond = 10.0 + (t % 97) * 0.3;
            fix.quality = GPSFix::Quality::Fix3D;
            named.track.samples.push_back(GPSData::fromFix(fix));
            named.track.maxSpeed = std::max(named.track.maxSpeed, named.track.samples.back().SpeedMPH());
        }
        clips.push_back(std::move(named));
    }
    return clips;
}

void document(benchmark::State& state) {
    const char* format = kFormats[state.range(0)];
    state.SetLabel(format);
    const std::vector<NamedTrack> trip = hourTrip();
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::ostringstream out;
        const auto writer = findTrackFormat(format)->make(out, {.severalFiles = true, .segmented = true});
        writer->begin();
        writer->segmentedTrack("Trip 1", trip);
        writer->end();
        bytes = out.str().size();
        benchmark::DoNotOptimize(bytes);
    }
    state.counters["bytes"] = double(bytes);
}

void job(benchmark::State& state) {
    const char* format = kFormats[state.range(0)];
    state.SetLabel(format);
    const char* folder = std::getenv("DASHTRACK_BENCH_DIR");
    const std::filesystem::path target =
        std::filesystem::path(folder != nullptr ? folder : "/tmp") / ("export-bench-" + std::to_string(getpid()));
    const std::vector<NamedTrack> trip = hourTrip();
    ExportTrack track{"Trip 1", {}};
    for (const NamedTrack& clip : trip) track.clips.push_back({clip.file, [&clip] { return clip.track; }});
    const TrackExportJob exportJob({.tracks = {track}, .format = format, .unit = SpeedUnit::KMH, .target = target});
    for (auto _ : state) {
        if (exportJob.run({}).outcome != TrackExportResult::Outcome::Written) state.SkipWithError("export failed");
    }
    std::filesystem::remove(target);
}

}  // namespace

BENCHMARK(document)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(job)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
