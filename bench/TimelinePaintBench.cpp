// The timeline under the movie, 1280x48, with an hour's trip of 3,600 samples: a full paint with
// the chart drawn, a tick of playback (one second on, and the paint it causes), and the first paint
// of a new series, which draws the chart.
#include "TimelineTrip.h"
#include "TimelineView.h"

#include <QApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

constexpr QSize kSize(1280, 48);

QImage canvas(double devicePixelRatio) {
    QImage image(kSize * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

void render(TimelineView& view, QImage& image) {
    image.fill(QColor::fromRgbF(0.09f, 0.63f, 1.0f));
    QPainter painter(&image);
    view.render(&painter, {}, {}, QWidget::DrawChildren);
}

// The whole widget painted again with its chart already drawn (a resize of the window, an expose).
void fullPaint(benchmark::State& state) {
    TimelineView view;
    view.resize(kSize);
    view.setSeries(hourTrip());
    view.setPosition(1800);
    QImage image = canvas(double(state.range(0)));
    render(view, image);
    for (auto _ : state) {
        render(view, image);
        benchmark::DoNotOptimize(image.constBits());
    }
}

// The first paint after a new series: both looks of the chart drawn, then copied.
void firstPaint(benchmark::State& state) {
    TimelineView view;
    view.resize(kSize);
    const TimelineSeries trip = hourTrip();
    QImage image = canvas(double(state.range(0)));
    for (auto _ : state) {
        view.setSeries(trip);
        render(view, image);
        benchmark::DoNotOptimize(image.constBits());
    }
}

class CountingTimeline : public TimelineView {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override {
        ++paints;
        TimelineView::paintEvent(event);
    }
};

// Playback's tick on a shown timeline: the position a second on, then the event loop's paint of
// what that dirtied. An hour on 1,266 pixels moves the cursor every third tick or so; a clip of a
// minute moves it about 21 pixels every tick.
void tick(benchmark::State& state) {
    CountingTimeline view;
    view.resize(kSize);
    TimelineSeries series = hourTrip();
    if (state.range(0) == 60) {
        series.runs = {std::vector<TimelinePoint>(series.runs[0].begin(), series.runs[0].begin() + 60)};
        series.totalSeconds = 60;
    }
    view.setSeries(std::move(series));
    view.show();
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
    const int before = view.paints;
    double seconds = 0;
    for (auto _ : state) {
        seconds = seconds + 1 < view.totalSeconds() ? seconds + 1 : 0;
        view.setPosition(seconds);
        QApplication::processEvents();
    }
    state.counters["paints_per_tick"] = double(view.paints - before) / double(state.iterations());
}

}  // namespace

// The argument is the device pixel ratio.
BENCHMARK(fullPaint)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(firstPaint)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
// The argument is the length of the time line in seconds.
BENCHMARK(tick)->Arg(3600)->Arg(60)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
