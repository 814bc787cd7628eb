#include "ChartRuns.h"

#include <algorithm>
#include <cmath>

namespace {

// Appends a vertex, merging it into the last one when both fall in the same column.
void addVertex(ChartRun& run, double x, float speed) {
    if (!run.empty()) {
        ChartVertex& last = run.back();
        const double column = std::floor(x);
        if (std::floor(last.x) == column) {
            last.x = column + 0.5;
            last.low = std::min(last.low, speed);
            last.high = std::max(last.high, speed);
            return;
        }
    }
    run.push_back({x, speed, speed});
}

}  // namespace

std::vector<ChartRun> chartRuns(const TimelineSeries& series, const TimelineScale& scale) {
    std::vector<ChartRun> runs;
    runs.reserve(series.runs.size());
    for (const std::vector<TimelinePoint>& points : series.runs) {
        ChartRun run;
        const TimelinePoint* last = nullptr;
        for (const TimelinePoint& point : points) {
            if (!std::isfinite(point.seconds) || !std::isfinite(point.speed)) continue;
            addVertex(run, scale.xAtTime(point.seconds), point.speed);
            last = &point;
        }
        if (last == nullptr) continue;
        addVertex(run, scale.xAtTime(last->seconds + 1.0), last->speed);
        runs.push_back(std::move(run));
    }
    return runs;
}
