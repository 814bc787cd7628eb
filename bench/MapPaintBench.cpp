// One frame of the map, 400x300, into an image: a window of tiles all in memory and a route of
// 2,400 points (two hours of driving, one point in three seconds) across it, on its own or over
// the whole trip's route of 3,600 points beneath it.
#include "MapGeometry.h"
#include "MapView.h"
#include "MapViewDelegate.h"
#include "RouteStyles.h"
#include "TileProvider.h"

#include <QApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>

namespace {

constexpr Coordinate kCenter{48.8566, 2.3522};

// Every tile is in memory: the cost measured is painting, not loading.
class MemoryTileProvider : public TileProvider {
public:
    QImage tile(const TileId& id) override {
        auto& image = tiles_[id];
        if (image.isNull()) {
            // Opaque and busy, as street tiles are, so no drawing shortcut applies.
            image = QImage(256, 256, QImage::Format_RGB32);
            image.fill(QColor::fromHsv((id.x * 37 + id.y * 11) % 360, 60, 230));
            QPainter painter(&image);
            painter.setPen(QPen(Qt::white, 3));
            for (int i = 0; i < 256; i += 24) painter.drawLine(0, i, 256, 255 - i);
        }
        return image;
    }
    int minimumZoom() const override { return 0; }
    int maximumZoom() const override { return 19; }
    int tileSize() const override { return 256; }
    QString attribution() const override { return QStringLiteral("\u00A9 OpenStreetMap contributors"); }

private:
    std::map<TileId, QImage> tiles_;
};

class RouteStyle : public MapViewDelegate {
public:
    std::optional<PolylineStyle> rendererForOverlay(MapView&, const Polyline&) override {
        return kRouteDrivenStyle;
    }
};

// Two hours of driving, a point every three seconds at 15 m/s (45 m apart), the heading turning
// slowly: about 100 km of road. Longer, the same road goes on.
std::shared_ptr<const Polyline> drive(int points = 2400) {
    auto line = std::make_shared<Polyline>();
    Coordinate at = kCenter;
    for (int i = 0; i < points; ++i) {
        line->points.push_back(at);
        const double heading = 2.0 * std::sin(i / 150.0) + 0.7 * std::sin(i / 23.0);
        at.latitude += 45.0 * std::cos(heading) / 111'200;
        at.longitude += 45.0 * std::sin(heading) / (111'200 * std::cos(at.latitude * M_PI / 180));
    }
    return line;
}

// The same number of points wound into a few kilometres: most of it on screen at once.
std::shared_ptr<const Polyline> tangle() {
    auto line = std::make_shared<Polyline>();
    for (int i = 0; i < 2400; ++i) {
        const double t = i / 2400.0 * 2 * M_PI;
        line->points.push_back({kCenter.latitude + 0.012 * std::sin(3 * t) + 0.002 * std::sin(41 * t),
                                kCenter.longitude + 0.018 * std::cos(2 * t) + 0.003 * std::cos(37 * t)});
    }
    return line;
}

CoordinateRegion bounds(const Polyline& line) {
    double south = 90, north = -90, west = 180, east = -180;
    for (const Coordinate& c : line.points) {
        south = std::min(south, c.latitude);
        north = std::max(north, c.latitude);
        west = std::min(west, c.longitude);
        east = std::max(east, c.longitude);
    }
    return {{(south + north) / 2, (west + east) / 2}, {north - south, east - west}};
}

enum class Framing { FollowCar, FollowTrip, WholeRoute, Tangle, TangleWholeZoom, TilesOnly };
enum class Motion { Still, Zooming, Driving };

void paintFrames(benchmark::State& state, Framing framing, Motion motion) {
    MemoryTileProvider provider;
    RouteStyle style;
    MapView view;
    view.resize(400, 300);
    view.setDelegate(&style);
    view.setTileProvider(&provider);
    const bool tangled = framing == Framing::Tangle || framing == Framing::TangleWholeZoom;
    const std::shared_ptr<const Polyline> route = tangled ? tangle() : drive();
    if (framing == Framing::FollowTrip)
        view.setUnderlay({drive(3600)}, kRouteAheadStyle);
    if (framing == Framing::FollowCar || framing == Framing::FollowTrip)
        view.setRegion(regionMakeWithDistance(route->points.back(), 1000, 1000), false);  // as during playback
    else if (framing == Framing::WholeRoute)
        view.setRegion(bounds(*route), false);
    else
        view.setRegion(regionMakeWithDistance(kCenter, 4000, 4000), false);
    if (framing == Framing::TangleWholeZoom)
        view.zoomAbout(QPointF(200, 150), std::round(view.zoomLevel()) - view.zoomLevel(), false);
    if (framing != Framing::TilesOnly) view.addOverlay(route);
    QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
    view.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);  // tiles made, not timed
    std::size_t step = 0;
    for (auto _ : state) {
        ++step;
        if (motion == Motion::Zooming)  // every frame at a new zoom, as while the zoom glides
            view.zoomAbout(QPointF(200, 150), step % 2 ? 0.01 : -0.01, false);
        else if (motion == Motion::Driving)  // the car a second further on, three points apart
            view.setCenterCoordinate(route->points[(route->points.size() - 1 - step / 3 % 100)]);
        view.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["zoom"] = view.zoomLevel();
}

}  // namespace

// 1000 m around the car, as the map is framed during playback; still, following the car, zooming.
BENCHMARK_CAPTURE(paintFrames, follow_car, Framing::FollowCar, Motion::Still)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, follow_car_driving, Framing::FollowCar, Motion::Driving)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, follow_car_zooming, Framing::FollowCar, Motion::Zooming)->Unit(benchmark::kMillisecond);
// The same with the whole trip's route faint beneath the part driven.
BENCHMARK_CAPTURE(paintFrames, follow_trip, Framing::FollowTrip, Motion::Still)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, follow_trip_driving, Framing::FollowTrip, Motion::Driving)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, follow_trip_zooming, Framing::FollowTrip, Motion::Zooming)->Unit(benchmark::kMillisecond);
// The whole drive fitted into the view.
BENCHMARK_CAPTURE(paintFrames, whole_route, Framing::WholeRoute, Motion::Still)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, whole_route_zooming, Framing::WholeRoute, Motion::Zooming)->Unit(benchmark::kMillisecond);
// The worst case: 2,400 points within 300x240 pixels, at a fractional and at a whole zoom.
BENCHMARK_CAPTURE(paintFrames, tangle, Framing::Tangle, Motion::Still)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, tangle_whole_zoom, Framing::TangleWholeZoom, Motion::Still)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintFrames, tangle_zooming, Framing::Tangle, Motion::Zooming)->Unit(benchmark::kMillisecond);
// The tiles, grid, scale bar and attribution of the tangle's frame without its route.
BENCHMARK_CAPTURE(paintFrames, tiles_only, Framing::TilesOnly, Motion::Still)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
