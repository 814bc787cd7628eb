#pragma once
// The mapping between the timeline's pixels and time, and between speeds and heights. The chart
// fills [left, left + width) horizontally and [top, top + height) vertically, speed 0 at the bottom.

struct TimelineScale {
    double left = 0;
    double width = 1;
    double top = 0;
    double height = 1;
    double totalSeconds = 0;
    double maxSpeed = 1;

    // Clamped to the chart; 0 when the time line is empty.
    double timeAtX(double x) const;
    double xAtTime(double seconds) const;
    double yAtSpeed(double speed) const;
};
