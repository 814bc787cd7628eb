#include "MapGeometry.h"
#include "MapView.h"
#include "MapViewDelegate.h"
#include "TileProvider.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QVariantAnimation>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {
// Tiles held in memory by the test; every request is recorded.
class FakeTileProvider : public TileProvider {
public:
    std::map<TileId, QImage> tiles;
    std::set<TileId> requested;
    QString attributionText;
    QImage tile(const TileId& id) override {
        requested.insert(id);
        const auto it = tiles.find(id);
        return it == tiles.end() ? QImage() : it->second;
    }
    int minimumZoom() const override { return 0; }
    int maximumZoom() const override { return 19; }
    int tileSize() const override { return 256; }
    QString attribution() const override { return attributionText; }
};

class RedLines : public MapViewDelegate {
public:
    int overlaysAsked = 0;
    QWidget* nextView = nullptr;
    QWidget* refreshedView = nullptr;
    QWidget* viewForAnnotation(MapView&, const MapAnnotation&) override { return std::exchange(nextView, nullptr); }
    void refreshViewForAnnotation(MapView&, const MapAnnotation&, QWidget& view) override { refreshedView = &view; }
    std::optional<PolylineStyle> rendererForOverlay(MapView&, const Polyline&) override {
        ++overlaysAsked;
        return PolylineStyle{QColor(255, 0, 0), 4};
    }
};

QImage solid(QColor color) {
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(color);
    return image;
}
QImage paint(MapView& view) {
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    // The map alone, without its buttons.
    view.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return image;
}
// The region of the whole world's equator band that makes a 400-pixel-wide view show zoom z.
CoordinateRegion regionAtZoom(Coordinate center, int z) { return {center, {0, 360.0 * 400 / (256.0 * (1 << z))}}; }
void expectCentre(const MapView& view, Coordinate c) {
    EXPECT_NEAR(view.centerCoordinate().latitude, c.latitude, 1e-9);
    EXPECT_NEAR(view.centerCoordinate().longitude, c.longitude, 1e-9);
}
bool isRed(QColor c) { return c.red() > 200 && c.green() < 60 && c.blue() < 60; }
std::shared_ptr<const Polyline> line(std::vector<Coordinate> p) {
    return std::make_shared<const Polyline>(Polyline{std::move(p)});
}

class MapViewTest : public ::testing::Test {
protected:
    MapViewTest() {
        view.resize(400, 300);
        view.setTileProvider(&provider);
        view.setDelegate(&delegate);
    }
    MapPainter painter() const { return MapPainter(view.centerCoordinate(), view.zoomLevel(), view.size(), 256); }

    FakeTileProvider provider;
    RedLines delegate;
    MapView view;
};

}  // namespace

TEST_F(MapViewTest, DrawsALineWhereItsPointsProject) {
    view.setRegion(regionMakeWithDistance({48.8566, 2.3522}, 1000, 1000), false);
    // A north-south line through the centre, and a point east of it.
    view.addOverlay(line({{48.8536, 2.3522}, {48.8596, 2.3522}}));
    view.addOverlay(line({{48.8566, 2.3552}}));
    EXPECT_EQ(delegate.overlaysAsked, 2);
    const QImage image = paint(view);
    EXPECT_TRUE(isRed(image.pixelColor(200, 150)));
    EXPECT_TRUE(isRed(image.pixelColor(200, 120)));
    EXPECT_FALSE(isRed(image.pixelColor(206, 150)));  // 4 points wide: 2 either side
    EXPECT_FALSE(isRed(image.pixelColor(194, 150)));
    const QPointF dot = painter().toWidget({48.8566, 2.3552});
    EXPECT_GT(dot.x(), 230);
    EXPECT_TRUE(isRed(image.pixelColor(dot.toPoint())));
}

TEST_F(MapViewTest, RemovesOnlyTheListedOverlaysAndDrawsUnstyledOnesBlue) {
    view.setRegion(regionMakeWithDistance({0, 0}, 1000, 1000), false);
    const auto west = line({{-0.003, -0.002}, {0.003, -0.002}});
    const auto east = line({{-0.003, 0.002}, {0.003, 0.002}});
    const auto middle = line({{-0.003, 0}, {0.003, 0}});
    for (const auto& l : {west, middle, east}) view.addOverlay(l);
    view.removeOverlays({west, east, line({{0, 0}})});
    EXPECT_EQ(view.overlayCount(), 1u);
    const MapPainter frame = painter();
    const QImage image = paint(view);
    EXPECT_TRUE(isRed(image.pixelColor(frame.toWidget({0, 0}).toPoint())));
    EXPECT_FALSE(isRed(image.pixelColor(frame.toWidget({0, -0.002}).toPoint())));
    EXPECT_FALSE(isRed(image.pixelColor(frame.toWidget({0, 0.002}).toPoint())));
    view.removeOverlays({west});
    EXPECT_EQ(view.overlayCount(), 1u);
    // Lines added without a delegate to style them are blue.
    view.removeOverlays({middle});
    view.setDelegate(nullptr);
    view.addOverlay(middle);
    const QColor c = paint(view).pixelColor(200, 150);
    EXPECT_GT(c.blue(), 200);
    EXPECT_LT(c.red(), 60);
}

TEST_F(MapViewTest, DrawsTheTilesInViewAndStandsInForMissingOnes) {
    // Tile (1, 0, 0) seen first; its south-east quarter is (2, 1, 1).
    QImage parent = solid(Qt::gray);
    QPainter(&parent).fillRect(128, 128, 128, 128, Qt::magenta);
    provider.tiles[{1, 0, 0}] = parent;
    view.setRegion(regionAtZoom({0, 0}, 1), false);
    paint(view);
    provider.requested.clear();
    // At zoom 2 around (0, 0) the 400x300 view shows columns 1-2 and rows 1-2.
    provider.tiles[{2, 2, 2}] = solid(Qt::blue);
    view.setRegion(regionAtZoom({0, 0}, 2), false);
    QImage image = paint(view);
    EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(300, 200), QColor(Qt::blue));
    // No tile and no stand-in for (2, 1, 2): the grid's background shows.
    EXPECT_NE(image.pixelColor(100, 200), QColor(Qt::black));
    EXPECT_NE(image.pixelColor(100, 200), QColor(Qt::magenta));
    // Only the tiles in view are asked for, not their stand-ins.
    EXPECT_EQ(provider.requested, (std::set<TileId>{{2, 1, 1}, {2, 2, 1}, {2, 1, 2}, {2, 2, 2}}));
    // A tile that arrives replaces its stand-in.
    provider.tiles[{2, 1, 1}] = solid(Qt::green);
    emit provider.tileReady({2, 1, 1});
    EXPECT_EQ(paint(view).pixelColor(100, 100), QColor(Qt::green));
}

TEST(MapView, ForgetsAProviderThatIsDestroyed) {
    MapView view;
    view.resize(400, 300);
    {
        FakeTileProvider provider;
        provider.tiles[{2, 1, 1}] = solid(Qt::green);
        view.setTileProvider(&provider);
        view.setRegion(regionAtZoom({0, 0}, 2), false);
        paint(view);
    }
    EXPECT_EQ(view.tileProvider(), nullptr);
    EXPECT_NE(paint(view).pixelColor(100, 100), QColor(Qt::green));
}

TEST_F(MapViewTest, PaintsTheAttributionInTheCorner) {
    view.setRegion(regionAtZoom({0, 0}, 3), false);
    const QImage without = paint(view);
    provider.attributionText = QStringLiteral("\u00A9 Test contributors");
    const QImage with = paint(view);
    int differing = 0;
    for (int y = 285; y < 300; ++y)
        for (int x = 300; x < 400; ++x) differing += without.pixel(x, y) != with.pixel(x, y);
    EXPECT_GT(differing, 50);
    EXPECT_EQ(without.copy(0, 0, 400, 200), with.copy(0, 0, 400, 200));
}

TEST(MapView, ARegionSetBeforeTheWidgetHasASizeIsFittedLater) {
    MapView view;
    view.resize(0, 0);
    const CoordinateRegion wanted = regionMakeWithDistance({10, 20}, 1000, 1000);
    view.setRegion(wanted, true);
    EXPECT_EQ(view.region(), wanted);
    view.resize(400, 300);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.show();
    QApplication::processEvents();
    // The height decides in a wide widget; the width shows more.
    const CoordinateRegion shown = view.region();
    EXPECT_NEAR(shown.span.latitudeDelta, wanted.span.latitudeDelta, 1e-7);
    EXPECT_NEAR(shown.span.longitudeDelta, wanted.span.longitudeDelta * 4 / 3, 1e-4);
    EXPECT_NEAR(shown.center.latitude, 10, 1e-9);
}

TEST_F(MapViewTest, ZoomingKeepsThePointUnderThePointer) {
    view.setRegion(regionMakeWithDistance({48.8566, 2.3522}, 2000, 2000), false);
    const QPointF pointer(80, 60);
    const Coordinate before = painter().toCoordinate(pointer);
    const double zoom = view.zoomLevel();
    view.zoomAbout(pointer, 1.5, false);
    EXPECT_NEAR(view.zoomLevel(), zoom + 1.5, 1e-9);
    EXPECT_NEAR(painter().toCoordinate(pointer).latitude, before.latitude, 1e-9);
    EXPECT_NEAR(painter().toCoordinate(pointer).longitude, before.longitude, 1e-9);
    view.zoomAbout(pointer, 100, false);
    EXPECT_EQ(view.zoomLevel(), 19);
}

TEST_F(MapViewTest, MarkersSitOnTheirCoordinateAndShowTheirTitle) {
    view.setRegion(regionMakeWithDistance({0, 0}, 1000, 1000), false);
    auto car = std::make_shared<MapAnnotation>(MapAnnotation{{0.001, 0.001}, QStringLiteral("Car")});
    auto own = new QLabel(QStringLiteral("X"));
    own->setFixedSize(20, 10);
    delegate.nextView = own;
    view.addAnnotation(car);
    ASSERT_EQ(view.viewForAnnotation(car), own);
    EXPECT_EQ(own->parentWidget(), &view);
    const QPointF at = painter().toWidget(car->coordinate);
    EXPECT_NEAR(own->geometry().center().x() + 0.5, at.x(), 1.0);
    EXPECT_NEAR(own->geometry().center().y() + 0.5, at.y(), 1.0);
    view.setCenterCoordinate({0.001, 0.001});
    EXPECT_NEAR(own->geometry().center().x() + 0.5, 200, 1.0);

    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(5, 5), own->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(own, &event);
    }
    EXPECT_FALSE(view.callout()->isHidden());
    EXPECT_EQ(view.callout()->text(), QStringLiteral("Car"));
    // A change reaches the open callout and, through the delegate, the marker's own view.
    car->title = QStringLiteral("Car, turning");
    car->heading = 90;
    view.annotationChanged(car);
    EXPECT_EQ(view.callout()->text(), QStringLiteral("Car, turning"));
    EXPECT_EQ(delegate.refreshedView, own);

    // Without a view from the delegate the marker is a dot of the map's own.
    auto other = std::make_shared<MapAnnotation>(MapAnnotation{{0, 0}, QString()});
    view.addAnnotation(other);
    QWidget* dot = view.viewForAnnotation(other);
    ASSERT_NE(dot, nullptr);
    EXPECT_NE(dot, own);

    view.removeAnnotation(car);
    EXPECT_EQ(view.viewForAnnotation(car), nullptr);
    EXPECT_TRUE(own->isHidden());
    EXPECT_TRUE(view.callout()->isHidden());
    view.removeAnnotation(car);  // no longer there: nothing happens
    EXPECT_EQ(view.viewForAnnotation(other), dot);
}

TEST_F(MapViewTest, TheCentreButtonAsksForTheCarAndCentresOnIt) {
    view.setRegion(regionAtZoom({0, 0}, 10), false);
    view.addAnnotation(std::make_shared<MapAnnotation>(MapAnnotation{{1, 2}, QStringLiteral("Car")}));
    int requests = 0;
    QObject::connect(&view, &MapView::recenterRequested, [&] { ++requests; });
    QToolButton* centre = nullptr;
    for (QToolButton* button : view.findChildren<QToolButton*>())
        if (button->accessibleName() == QStringLiteral("Centre on car")) centre = button;
    ASSERT_NE(centre, nullptr);
    centre->click();
    EXPECT_EQ(requests, 1);
    expectCentre(view, {1, 2});
    EXPECT_NEAR(view.zoomLevel(), 10, 1e-9);
}

TEST_F(MapViewTest, DrawsTheStretchesOfALineThatCrossTheFrame) {
    view.setRegion(regionAtZoom({0, 0}, 10), false);
    const struct {
        const char* name;
        std::vector<QPointF> points;  // in widget pixels
        QPoint red;
    } cases[] = {
        {"both ends outside", {{-500, 100}, {900, 100}}, {200, 100}},
        {"out and back in", {{100, 50}, {100, -900}, {2000, -900}, {300, 50}, {300, 250}}, {300, 200}},
        {"last point alone on screen", {{-900, 200}, {-800, 200}, {250, 200}}, {200, 200}},
    };
    for (const auto& c : cases) {
        std::vector<Coordinate> points;
        for (QPointF p : c.points) points.push_back(painter().toCoordinate(p));
        const auto l = line(points);
        view.addOverlay(l);
        EXPECT_TRUE(isRed(paint(view).pixelColor(c.red))) << c.name;
        view.removeOverlays({l});
    }
}

TEST_F(MapViewTest, AnAnimatedRegionEasesToItsEnd) {
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.show();
    view.setRegion(regionAtZoom({0, 0}, 4), false);
    const CoordinateRegion target = regionMakeWithDistance({48.8566, 2.3522}, 1000, 1000);
    view.setRegion(target, true);
    EXPECT_NEAR(view.zoomLevel(), 4, 1e-9);  // nothing jumps
    auto* animation = view.findChild<QVariantAnimation*>();
    ASSERT_NE(animation, nullptr);
    ASSERT_EQ(animation->state(), QAbstractAnimation::Running);
    animation->setCurrentTime(animation->duration() / 2);
    EXPECT_GT(view.zoomLevel(), 4.5);
    EXPECT_GT(view.centerCoordinate().latitude, 1);
    // The car moves on while the map zooms: the zoom goes on and ends over the car.
    view.setCenterCoordinate({48.86, 2.36});
    animation->setCurrentTime(animation->duration());
    EXPECT_NEAR(view.zoomLevel(), MapMath::zoomToFit(target, 400, 300, 256), 1e-9);
    expectCentre(view, {48.86, 2.36});
    EXPECT_EQ(animation->state(), QAbstractAnimation::Stopped);
}

TEST_F(MapViewTest, PointsWithoutAPlaceAreLeftOut) {
    view.setRegion(regionMakeWithDistance({0, 0}, 1000, 1000), false);
    view.addOverlay(line({{-0.003, 0}, {NAN, 0}, {0.003, 0}}));
    view.addOverlay(line({{NAN, NAN}}));
    view.addOverlay(line({}));
    EXPECT_TRUE(isRed(paint(view).pixelColor(200, 150)));

    auto lost = std::make_shared<MapAnnotation>(MapAnnotation{{NAN, 1}, QStringLiteral("Car")});
    view.addAnnotation(lost);
    ASSERT_NE(view.viewForAnnotation(lost), nullptr);
    EXPECT_TRUE(view.viewForAnnotation(lost)->isHidden());
    lost->coordinate = {0, 0};
    view.setCenterCoordinate({0, 0});
    EXPECT_FALSE(view.viewForAnnotation(lost)->isHidden());

    view.setCenterCoordinate({NAN, 3});
    view.setRegion({{NAN, 0}, {1, 1}}, false);
    view.setRegion({{0, 0}, {NAN, INFINITY}}, false);
    EXPECT_EQ(view.centerCoordinate(), (Coordinate{0, 0}));
    EXPECT_GE(view.zoomLevel(), 0);
    EXPECT_LE(view.zoomLevel(), 19);
}

TEST_F(MapViewTest, LinesFollowTheMapWhenItMovesOrZooms) {
    view.setRegion(regionAtZoom({0, 0}, 12), false);
    // An upright line through the centre, long enough to leave the frame at both ends.
    view.addOverlay(line({painter().toCoordinate({200, -400}), painter().toCoordinate({200, 700})}));
    const Coordinate lineAt = painter().toCoordinate({200, 150});
    view.setCenterCoordinate(painter().toCoordinate({1100, 150}));  // far beyond the frame
    const QImage away = paint(view);
    for (int x = 0; x < 400; x += 2) EXPECT_FALSE(isRed(away.pixelColor(x, 150))) << x;
    view.setCenterCoordinate(painter().toCoordinate({-680, 150}));  // back to 20 pixels east of the line
    view.zoomAbout({200, 150}, -2.5, false);
    const QPoint at = painter().toWidget(lineAt).toPoint();
    const QImage image = paint(view);
    EXPECT_TRUE(isRed(image.pixelColor(at)));
    EXPECT_FALSE(isRed(image.pixelColor(at + QPoint(6, 0))));
    EXPECT_FALSE(isRed(image.pixelColor(at - QPoint(6, 0))));
}

TEST_F(MapViewTest, TheUnderlayLiesBeneathEveryOverlayAndIsReplacedOrCleared) {
    view.setRegion(regionAtZoom({0, 0}, 12), false);
    const auto through = [&](QPointF a, QPointF b) {
        return line({painter().toCoordinate(a), painter().toCoordinate(b)});
    };
    view.addOverlay(through({0, 150}, {400, 150}));  // red, before the underlay
    view.setUnderlay({through({200, 0}, {200, 300})}, PolylineStyle{QColor(0, 0, 255), 10});
    const auto isBlue = [](QColor c) { return c.blue() > 200 && c.red() < 60; };
    QImage image = paint(view);
    EXPECT_TRUE(isRed(image.pixelColor(200, 150)));
    EXPECT_TRUE(isBlue(image.pixelColor(200, 50)));

    view.setUnderlay({through({100, 0}, {100, 300})}, PolylineStyle{QColor(0, 0, 255), 10});
    image = paint(view);
    EXPECT_FALSE(isBlue(image.pixelColor(200, 50)));
    EXPECT_TRUE(isBlue(image.pixelColor(100, 50)));
    EXPECT_TRUE(isRed(image.pixelColor(100, 150)));

    view.setUnderlay({}, PolylineStyle{QColor(0, 0, 255), 10});
    EXPECT_FALSE(isBlue(paint(view).pixelColor(100, 50)));
}

TEST_F(MapViewTest, AFadedUnderlayIsEquallyFaintWhereItCrossesItselfAndShowsItsCasing) {
    view.setRegion(regionAtZoom({0, 0}, 12), false);
    const QImage bare = paint(view);
    // A bow crossing itself at the centre.
    std::vector<Coordinate> bow;
    for (QPointF p : {QPointF(100, 50), QPointF(300, 250), QPointF(300, 50), QPointF(100, 250)})
        bow.push_back(painter().toCoordinate(p));
    view.setUnderlay({line(bow)}, PolylineStyle{QColor(0, 0, 255, 128), 8, QColor(0, 0, 0), 2});
    const QImage image = paint(view);
    const QColor crossing = image.pixelColor(200, 150);
    const QColor single = image.pixelColor(300, 150);
    EXPECT_NEAR(crossing.blue(), single.blue(), 3);
    EXPECT_NEAR(crossing.red(), single.red(), 3);
    // Half blue over the background: neither the background nor solid blue.
    EXPECT_GT(single.blue(), bare.pixelColor(300, 150).blue());
    EXPECT_LT(single.red(), 180);
    EXPECT_GT(single.red(), 60);
    // The casing, 2 pixels beyond the line's 4 on each side, darker than the background.
    EXPECT_LT(image.pixelColor(305, 120).lightness(), bare.pixelColor(305, 120).lightness() - 40);
}

TEST_F(MapViewTest, APressAndReleaseWithoutADragIsAClick) {
    view.setRegion(regionAtZoom({0, 0}, 12), false);
    const struct {
        const char* name;
        std::vector<QPointF> moves;
        bool click;
    } cases[] = {
        {"still", {}, true},
        {"a shaky hand", {{102, 101}, {101, 103}}, true},
        {"a drag", {{130, 100}}, false},
        {"a drag back to where it began", {{130, 100}, {100, 100}}, false},
    };
    for (const auto& c : cases) {
        std::vector<QPointF> clicks;
        const auto connection = QObject::connect(&view, &MapView::clicked, [&](QPointF p) { clicks.push_back(p); });
        const auto send = [&](QEvent::Type type, QPointF at) {
            QMouseEvent event(type, at, view.mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&view, &event);
        };
        send(QEvent::MouseButtonPress, {100, 100});
        for (QPointF p : c.moves) send(QEvent::MouseMove, p);
        const QPointF end = c.moves.empty() ? QPointF(100, 100) : c.moves.back();
        send(QEvent::MouseButtonRelease, end);
        QObject::disconnect(connection);
        ASSERT_EQ(clicks.size(), c.click ? 1u : 0u) << c.name;
        if (c.click) {
            EXPECT_EQ(clicks.front(), end) << c.name;
        }
    }
}
