// The cost of one route intake (a sample that becomes a route point) on a short and on a long
// route: appending should not grow with the length of the route.

#include "RouteTracker.h"

#include <benchmark/benchmark.h>

#include <bit>
#include <chrono>
#include <optional>
#include <cstdlib>
#include <ctime>

namespace {

class NullMap : public RouteMap {
public:
    void removeOverlays(const std::vector<std::shared_ptr<const Polyline>>& overlays) override {
        benchmark::DoNotOptimize(overlays.data());
    }
    void addOverlay(std::shared_ptr<const Polyline> overlay) override { benchmark::DoNotOptimize(overlay.get()); }
    void moveMarker(Coordinate, const std::string&) override {}
    void setRegion(CoordinateRegion, bool) override {}
    void setCenterCoordinate(Coordinate) override {}
    void logIntake(const std::string& newText, const std::string&) override {
        benchmark::DoNotOptimize(newText.data());
    }
};

// A fixed-point record `second` seconds into a drive that starts 2023-05-07 08:00:00.
GPSData sampleAt(int64_t second) {
    GPSDATA raw;
    raw.rmcinfo.Year = 2023;
    raw.rmcinfo.Month = 5;
    raw.rmcinfo.Day = 7;
    raw.rmcinfo.Hour = uint32_t(8 + second / 3600);
    raw.rmcinfo.Minute = uint32_t(second / 60 % 60);
    raw.rmcinfo.Second = uint32_t(second % 60);
    raw.rmcinfo.Latitude = std::bit_cast<float>(int32_t(481000000 + second * 300));
    raw.rmcinfo.Longitude = std::bit_cast<float>(int32_t(115000000 + second * 100));
    GPSData sample;
    sample.SetData(raw, false);
    return sample;
}

// Plays a route of `points` route points, then times each following intake (indexes 3k + 1 of
// continued playback; the samples between them are reported untimed). The route is played
// afresh every 32 intakes, so it stays within 32 points of its nominal length.
void BM_RouteIntake(benchmark::State& state) {
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    tzset();
    const int64_t points = state.range(0);
    const int64_t firstIntake = 3 * points + 1;
    constexpr int64_t kIntakesPerRoute = 32;
    NullMap map;
    std::optional<RouteTracker> tracker;
    int64_t index = 0;

    for (auto _ : state) {
        if (!tracker || index >= firstIntake + 3 * kIntakesPerRoute) {
            tracker.emplace();
            for (index = 0; index < firstIntake; ++index) tracker->showCarLocation(sampleAt(index), index, map);
        }
        const GPSData next = sampleAt(index);
        const auto start = std::chrono::steady_clock::now();
        tracker->showCarLocation(next, index, map);
        const auto end = std::chrono::steady_clock::now();
        state.SetIterationTime(std::chrono::duration<double>(end - start).count());
        for (int64_t i = index + 1; i < index + 3; ++i) tracker->showCarLocation(sampleAt(i), i, map);
        index += 3;
    }
    state.counters["points"] = double(points);
}

}  // namespace

BENCHMARK(BM_RouteIntake)->Arg(10)->Arg(2400)->UseManualTime()->Iterations(20000);
BENCHMARK_MAIN();
