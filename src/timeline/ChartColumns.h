#pragma once
// The chart as one span per pixel column: where the area under the speed starts and where the line
// along it runs. Stroking a 1,280-vertex path with Qt's general stroker costs milliseconds; filling
// columns costs one pass over the pixels, and a line whose x only grows needs nothing more.

#include "ChartRuns.h"

#include <vector>

struct ChartColumn {
    float coverage = 0;  // the share of the column's width the runs cover: 0 in a gap
    float areaTop = 0;   // the area runs from here down to the baseline (rows, fractional)
    float lineTop = 0;   // the line's rows, its thickness included
    float lineBottom = 0;
};

// Columns [0, columnCount) of runs laid out with the scale (both in device pixels). Between two
// vertices the line follows both their lowest and their highest speed, so a column that several
// samples share shows their whole range; a run narrower than a column still fills it.
std::vector<ChartColumn> chartColumns(const std::vector<ChartRun>& runs, const TimelineScale& scale, int columnCount,
                                      double lineWidth);
