#include "ChartColumns.h"

#include <algorithm>
#include <cmath>

namespace {

// The line between two vertices: its top and bottom rows go linearly from (top0, bottom0) at x0
// to (top1, bottom1) at x1.
struct Segment {
    double x0, x1;
    double top0, top1;
    double bottom0, bottom1;

    double topAt(double x) const { return x1 > x0 ? top0 + (top1 - top0) * (x - x0) / (x1 - x0) : top0; }
    double bottomAt(double x) const { return x1 > x0 ? bottom0 + (bottom1 - bottom0) * (x - x0) / (x1 - x0) : bottom0; }
};

// Accumulates a column before the area's top is known as a mean.
struct ColumnSums {
    double covered = 0;
    double topTimesWidth = 0;
    double lineTop = 0;
    double lineBottom = 0;
};

// Widens the columns a segment crosses to hold it; fillsColumn counts a segment of no width as a
// whole column.
void addSegment(std::vector<ColumnSums>& columns, const Segment& s, double halfLine, bool fillsColumn) {
    const int count = int(columns.size());
    const int first = std::clamp(int(std::floor(s.x0)), 0, count - 1);
    const int last = std::clamp(int(std::ceil(s.x1)) - 1, first, count - 1);
    for (int c = first; c <= last; ++c) {
        const double from = std::clamp(s.x0, double(c), double(c + 1));
        const double to = std::clamp(s.x1, double(c), double(c + 1));
        const double width = fillsColumn ? 1.0 : to - from;
        if (width <= 0) continue;
        ColumnSums& column = columns[std::size_t(c)];
        const double top = std::min(s.topAt(from), s.topAt(to)) - halfLine;
        const double bottom = std::max(s.bottomAt(from), s.bottomAt(to)) + halfLine;
        column.lineTop = column.covered > 0 ? std::min(column.lineTop, top) : top;
        column.lineBottom = column.covered > 0 ? std::max(column.lineBottom, bottom) : bottom;
        column.covered += width;
        column.topTimesWidth += (s.topAt(from) + s.topAt(to)) / 2 * width;
    }
}

}  // namespace

std::vector<ChartColumn> chartColumns(const std::vector<ChartRun>& runs, const TimelineScale& scale, int columnCount,
                                      double lineWidth) {
    if (columnCount <= 0) return {};
    std::vector<ColumnSums> sums(static_cast<std::size_t>(columnCount));
    const double halfLine = lineWidth / 2;
    for (const ChartRun& run : runs) {
        if (run.empty()) continue;
        if (run.size() == 1) {  // a lone sample narrower than a column still shows, as a column
            const ChartVertex& v = run.front();
            const double high = scale.yAtSpeed(v.high), low = scale.yAtSpeed(v.low);
            addSegment(sums, {v.x, v.x, high, high, low, low}, halfLine, true);
            continue;
        }
        for (std::size_t i = 1; i < run.size(); ++i) {
            const ChartVertex& a = run[i - 1];
            const ChartVertex& b = run[i];
            addSegment(sums,
                       {a.x, b.x, scale.yAtSpeed(a.high), scale.yAtSpeed(b.high), scale.yAtSpeed(a.low),
                        scale.yAtSpeed(b.low)},
                       halfLine, false);
        }
    }
    std::vector<ChartColumn> columns(sums.size());
    for (std::size_t c = 0; c < sums.size(); ++c) {
        const ColumnSums& s = sums[c];
        if (s.covered <= 0) continue;
        columns[c] = {float(std::min(s.covered, 1.0)), float(s.topTimesWidth / s.covered), float(s.lineTop),
                      float(s.lineBottom)};
    }
    return columns;
}
