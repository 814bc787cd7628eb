// The controller's map: the route driven so far and the car, the looks of both, and where the map's
// tiles come from.

#include "MainWindowDelegate.h"

#include "CarHeading.h"
#include "CarMarkerView.h"
#include "GPSUtils.h"
#include "Geodesy.h"
#include "MapView.h"
#include "MapViewDelegate.h"
#include "PolylineHitTest.h"
#include "RouteMap.h"
#include "RouteStyles.h"
#include "TileProviderFactory.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QLoggingCategory>
#include <QMainWindow>

// On by default: the line at each route intake is one of the program's two outputs.
Q_LOGGING_CATEGORY(lcRoute, "dashtrack.route", QtInfoMsg)

namespace {

// The route's changes, applied to the window's map view.
class MapViewRoute final : public RouteMap {
public:
    MapViewRoute(MapView& map, std::shared_ptr<MapAnnotation>& car, std::optional<double> heading)
        : map_(map), car_(car), heading_(heading) {}

    void removeOverlays(const std::vector<std::shared_ptr<const Polyline>>& lines) override { map_.removeOverlays(lines); }
    void addOverlay(std::shared_ptr<const Polyline> line) override { map_.addOverlay(std::move(line)); }
    // The same marker for the whole run. Once it is on the map it is moved rather than taken off
    // and put back, which would close the callout a user opened by clicking the car.
    void moveMarker(Coordinate coordinate, const std::string& title) override {
        const bool shown = car_ != nullptr;
        if (!shown) car_ = std::make_shared<MapAnnotation>();
        car_->coordinate = coordinate;
        // The tracker names its car in English; the callout says it in the interface's language.
        car_->title = title == "Car" ? QCoreApplication::translate("RouteTracker", "Car") : QString::fromStdString(title);
        car_->heading = heading_;
        if (shown)
            map_.annotationChanged(car_);
        else
            map_.addAnnotation(car_);
    }
    void setRegion(CoordinateRegion region, bool animated) override { map_.setRegion(region, animated); }
    void setCenterCoordinate(Coordinate coordinate) override { map_.setCenterCoordinate(coordinate); }
    void logIntake(const std::string& newText, const std::string& lastText) override {
        qCInfo(lcRoute, "new = %s, last = %s", newText.c_str(), lastText.c_str());
    }

private:
    MapView& map_;
    std::shared_ptr<MapAnnotation>& car_;
    std::optional<double> heading_;
};

}  // namespace

void MainWindowDelegate::showCarLocation(const GPSData& data, int64_t index) {
    if (outlets_.mapView == nullptr) return;
    // The car points where it went from the sample before, unless the format says; a new track, or
    // a jump in it, starts the comparison afresh.
    if (index == 0 || index != lastCarIndex_ + 1) headingTracker_.restart();
    lastCarIndex_ = index;
    if (const auto place = samplePlace(data)) headingTracker_.update(*place);
    MapViewRoute route(*outlets_.mapView, car_, carHeading(data, headingTracker_));
    routeTracker_.showCarLocation(data, index, route);
}

void MainWindowDelegate::showRouteAhead(const std::vector<TimelineClip>& clips,
                                        const std::vector<std::span<const GPSFix>>& clipFixes) {
    routeAhead_.clear();
    std::vector<std::shared_ptr<const Polyline>> lines;
    Polyline line;
    const auto endLine = [&] {
        if (!line.points.empty()) lines.push_back(std::make_shared<const Polyline>(std::move(line)));
        line = {};
    };
    const auto add = [&](std::optional<GeoPoint> place, std::size_t clip, double clipSeconds) {
        if (!place) {
            endLine();
            return;
        }
        const Coordinate coordinate{place->latitude, place->longitude};
        line.points.push_back(coordinate);
        routeAhead_.push_back({coordinate, timelineClock_.tripSecondsAt(clip, clipSeconds)});
    };
    for (std::size_t c = 0; c < clips.size(); ++c) {
        // A format with several fixes a second draws the route through all of them.
        if (c < clipFixes.size() && !clipFixes[c].empty()) {
            for (const GPSFix& fix : clipFixes[c]) {
                if (!fix.movieSeconds) continue;
                const bool placed = fix.quality != GPSFix::Quality::NoFix;
                add(placed ? samplePlace(GPSData::fromFix(fix)) : std::nullopt, c, *fix.movieSeconds);
            }
            continue;
        }
        // Record k is on screen from second k of its clip.
        for (std::size_t k = 1; k < clips[c].track.size(); ++k) add(samplePlace(clips[c].track[k]), c, double(k));
    }
    endLine();
    if (outlets_.mapView != nullptr) outlets_.mapView->setUnderlay(std::move(lines), kRouteAheadStyle);
}

void MainWindowDelegate::OnMapClicked(QPointF widgetPoint) {
    if (outlets_.mapView == nullptr || routeAhead_.empty()) return;
    std::vector<QPointF> points;
    points.reserve(routeAhead_.size());
    for (const RouteAheadPoint& point : routeAhead_) points.push_back(outlets_.mapView->pointForCoordinate(point.place));
    constexpr double kClickRadius = 8.0;
    if (const auto nearest = nearestPointWithin(points, widgetPoint, kClickRadius))
        seekTimeline(routeAhead_[*nearest].seconds);
}

QWidget* MainWindowDelegate::viewForAnnotation(MapView& /*map*/, const MapAnnotation& annotation) {
    auto* car = new CarMarkerView;
    car->setHeading(annotation.heading);
    return car;
}

void MainWindowDelegate::refreshViewForAnnotation(MapView& /*map*/, const MapAnnotation& annotation, QWidget& view) {
    if (auto* car = qobject_cast<CarMarkerView*>(&view)) car->setHeading(annotation.heading);
}

std::optional<PolylineStyle> MainWindowDelegate::rendererForOverlay(MapView& /*map*/, const Polyline& /*line*/) {
    return kRouteDrivenStyle;
}

void MainWindowDelegate::setupMap() {
    if (outlets_.mapView == nullptr) return;
    outlets_.mapView->setDelegate(this);
    QObject::connect(outlets_.mapView, &MapView::clicked, this, [this](QPointF point) { OnMapClicked(point); });
    QObject::connect(outlets_.mapView, &MapView::recenterRequested, this, [this] {
        if (car_ != nullptr && outlets_.mapView != nullptr) outlets_.mapView->setCenterCoordinate(car_->coordinate);
    });
    useTileSource(settings_.mapSource().value_or("osm"));
}

void MainWindowDelegate::useTileSource(const std::string& source) {
    // The map lets go of the old provider before it goes.
    std::unique_ptr<TileProvider> provider =
        makeTileProvider(QString::fromStdString(source), settings_.tileCacheMegabytes() * 1024 * 1024);
    if (outlets_.mapView != nullptr) outlets_.mapView->setTileProvider(provider.get());
    tileProvider_ = std::move(provider);
    RefreshMapMenu(source);
}

void MainWindowDelegate::OnMapSourceChanged(const std::string& source) {
    settings_.setMapSource(source);
    useTileSource(source);
}

void MainWindowDelegate::OnOpenMapFile(bool folder) {
    auto* dialog = new QFileDialog(outlets_.window, folder ? tr("Open Tile Folder") : tr("Open MBTiles File"));
    dialog->setObjectName(folder ? QStringLiteral("tileFolderDialog") : QStringLiteral("mbtilesDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (folder) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog->setFileMode(QFileDialog::ExistingFile);
        dialog->setNameFilter(tr("MBTiles files (*.mbtiles)"));
    }
    QObject::connect(dialog, &QFileDialog::fileSelected, this, [this, folder](const QString& file) {
        OnMapSourceChanged((folder ? "folder:" : "mbtiles:") + QFile::encodeName(file).toStdString());
    });
    // Cancelled: the check mark goes back to the source in use.
    QObject::connect(dialog, &QFileDialog::rejected, this,
                     [this] { RefreshMapMenu(settings_.mapSource().value_or("osm")); });
    dialog->open();
}

void MainWindowDelegate::RefreshMapMenu(const std::string& source) {
    const MainWindowOutlets& o = outlets_;
    const auto check = [](QAction* item, bool on) {
        if (item != nullptr) item->setChecked(on);
    };
    check(o.mapOpenStreetMap, source == "osm");
    check(o.mapMBTiles, source.starts_with("mbtiles:"));
    check(o.mapTileFolder, source.starts_with("folder:"));
    check(o.mapWorkOffline, source == "offline");
    refreshPreferences();
}
