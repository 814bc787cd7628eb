#pragma once
// The chart drawn once in two looks, not yet played and played, at the device's pixels. The
// timeline copies the played look left of the cursor and the other right of it, so moving the
// cursor costs copying a strip, not stroking the speed line again.

#include "TimelineSeries.h"

#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

#include <cstdint>

class QPainter;

class TimelineChartLayer {
public:
    // Redraws both looks when the series (told by its version), the size, the device pixel ratio
    // or the unit differ from those last drawn.
    void prepare(const TimelineSeries& series, std::uint64_t seriesVersion, QSize size, double devicePixelRatio,
                 const QString& unitName);
    // The part of the chart within rect (logical pixels): played left of splitX, unplayed from it.
    // splitX falls on a device pixel's edge.
    void paint(QPainter& painter, const QRect& rect, double splitX) const;
    bool wasRebuilt() const { return rebuilt_; }

private:
    void rebuild(const TimelineSeries& series, QSize size, double devicePixelRatio, const QString& unitName);

    QImage unplayed_;
    QImage played_;
    std::uint64_t seriesVersion_ = 0;
    QSize size_;
    double devicePixelRatio_ = 0;
    QString unitName_;
    bool rebuilt_ = false;
};
