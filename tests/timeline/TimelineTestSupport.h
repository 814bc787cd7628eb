#pragma once
// A timeline 400 wide, whose chart (7 in from each side) is 386 pixels for 386 seconds: the time
// at x is x - 7. Speed 50 for the first 100 s, no GPS for the next 100, then a climb to 100.

#include "TimelineView.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <vector>

inline constexpr int kWidth = 400;
inline constexpr int kHeight = 48;
inline constexpr double kTotal = 386;

inline TimelineSeries testSeries() {
    TimelineSeries series;
    series.totalSeconds = kTotal;
    series.runs.resize(2);
    for (int t = 0; t < 100; ++t) series.runs[0].push_back({double(t), 50, 0, 0});
    for (int t = 200; t < 386; ++t) series.runs[1].push_back({double(t), float(50 + (t - 200) * 50 / 185.0), 0, 0});
    series.highest = series.runs[1].back();
    series.maxSpeed = 100;
    return series;
}

inline void mouse(QWidget& widget, QEvent::Type type, double x, Qt::MouseButtons buttons = Qt::LeftButton) {
    const QPointF at(x, kHeight / 2.0);
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

// The widget alone on a black background, at a device pixel ratio.
inline QImage renderTimeline(QWidget& widget, double devicePixelRatio = 1) {
    QImage image(widget.size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::black);
    QPainter painter(&image);
    widget.render(&painter, {}, {}, QWidget::DrawChildren);
    return image;
}

// Every seek the view asks for, in order.
struct SeekLog {
    explicit SeekLog(TimelineView& view) {
        QObject::connect(&view, &TimelineView::seekRequested, [this](double s) { seeks.push_back(s); });
        QObject::connect(&view, &TimelineView::seekFinished, [this] { ++finished; });
    }
    std::vector<double> seeks;
    int finished = 0;
};
