// How long a snapshot keeps the user interface waiting, stage by stage: opening the movie, seeking
// and decoding to the frame, converting it to RGB, encoding the PNG; and the whole of it, as the
// player view's snapshot runs it. Drawing the stamp, which a worker does with the encoding, is a
// stage of its own. On H.264 clips with a keyframe every second, as dash cameras
// write them, at a time half-way between two keyframes.
#include "FrameGrabber.h"
#include "PngEncoder.h"
#include "RgbConverter.h"
#include "SnapshotStamp.h"
#include "VideoFrameReader.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace {

const MediaTime kMidGop = MediaTime::make(1500, 1000);

void openMovie(benchmark::State& state, const std::filesystem::path& clip) {
    for (auto _ : state) {
        auto reader = VideoFrameReader::open(clip);
        if (!reader) state.SkipWithError("the clip does not open");
        benchmark::DoNotOptimize(reader);
    }
}

void decodeFrame(benchmark::State& state, const std::filesystem::path& clip) {
    auto reader = VideoFrameReader::open(clip);
    if (!reader) return state.SkipWithError("the clip does not open");
    for (auto _ : state) {
        FramePtr frame = reader->frameAt(kMidGop);
        if (!frame) state.SkipWithError("no frame");
        benchmark::DoNotOptimize(frame);
    }
}

void convertToRgb(benchmark::State& state, const std::filesystem::path& clip) {
    auto reader = VideoFrameReader::open(clip);
    const FramePtr frame = reader ? reader->frameAt(kMidGop) : nullptr;
    if (!frame) return state.SkipWithError("no frame");
    for (auto _ : state) benchmark::DoNotOptimize(RgbConverter::convert(*frame));
}

void encodePng(benchmark::State& state, const std::filesystem::path& clip) {
    const auto image = FrameGrabber::frameAt(clip, kMidGop);
    if (!image) return state.SkipWithError("no frame");
    std::size_t bytes = 0;
    for (auto _ : state) {
        const auto png = PngEncoder::encode(*image);
        bytes = png ? png->size() : 0;
    }
    state.counters["png_MB"] = static_cast<double>(bytes) / 1e6;
}

void drawStamp(benchmark::State& state, const std::filesystem::path& clip) {
    const auto image = FrameGrabber::frameAt(clip, kMidGop);
    if (!image) return state.SkipWithError("no frame");
    const std::vector<StampItem> items{
        {"63", "KM/H"}, {"LAT 48.85837", ""}, {"LON 2.29448", ""}, {"2024-05-01 12:34:56", ""}};
    for (auto _ : state) {
        state.PauseTiming();
        RgbImage frame = *image;
        state.ResumeTiming();
        benchmark::DoNotOptimize(SnapshotStamp::draw(frame, items, StampFaces{}));
    }
}

void wholeSnapshot(benchmark::State& state, const std::filesystem::path& clip) {
    for (auto _ : state) {
        const auto image = FrameGrabber::frameAt(clip, kMidGop);
        if (!image) return state.SkipWithError("no frame");
        benchmark::DoNotOptimize(PngEncoder::encode(*image));
    }
}

void registerClip(const std::string& name, const std::filesystem::path& clip) {
    const struct {
        const char* stage;
        void (*run)(benchmark::State&, const std::filesystem::path&);
    } stages[] = {{"open", openMovie}, {"decode", decodeFrame}, {"rgb", convertToRgb},
                  {"png", encodePng},  {"stamp", drawStamp},    {"snapshot", wholeSnapshot}};
    for (const auto& stage : stages) {
        benchmark::RegisterBenchmark((std::string(stage.stage) + "/" + name).c_str(), stage.run, clip)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Repetitions(5)
            ->ReportAggregatesOnly(true);
    }
}

}  // namespace

int main(int argc, char** argv) {
    // The stamp's text needs Qt's font database, which comes with a GUI application.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    registerClip("720p", SNAPSHOT_BENCH_720P);
    registerClip("2160p", SNAPSHOT_BENCH_2160P);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
