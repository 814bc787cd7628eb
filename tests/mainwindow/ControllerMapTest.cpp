// The controller's map: the samples the player reports draw the route in red behind the car, the
// car's marker is one view for the whole run, and the Map menu's choice is kept.

#include "ControllerHarness.h"

#include "GPSDataLoader.h"
#include "MapViewDelegate.h"

#include <QAction>

#include <gtest/gtest.h>

#include <cmath>

namespace {

class ControllerMapTest : public ControllerHarness, public ::testing::Test {
protected:
    void report(const GPSData& sample, uint64_t index) { controller.UpdatedGPSInfo(view->engine(), sample, index); }
};

TEST_F(ControllerMapTest, ReportedSamplesDrawTheRouteAndMoveOneCar) {
    float maxSpeed = 0;
    const std::vector<GPSData> track = GPSDataLoader::LoadGPSDataList(fixtureMovie("index_mp4.mp4"), &maxSpeed);
    ASSERT_GE(track.size(), 8u);
    for (uint64_t i = 0; i < 8; ++i) report(track[i], i);

    EXPECT_GE(mapView->overlayCount(), 1u) << "points 1, 4 and 7 make a line";
    const Coordinate car{track[7].Latitude(), track[7].Longitude()};
    EXPECT_NEAR(mapView->centerCoordinate().latitude, car.latitude, 1e-6) << "the car is kept in the centre";
    EXPECT_NEAR(mapView->centerCoordinate().longitude, car.longitude, 1e-6);

    const auto style = controller.rendererForOverlay(*mapView, Polyline{});
    ASSERT_TRUE(style.has_value());
    EXPECT_EQ(style->color, QColor::fromRgbF(1, 0, 0, 1));
    EXPECT_EQ(style->lineWidth, 4.0);

    // Index 0 (a new movie) takes the route off and leaves the car where it was.
    report(track[0], 0);
    EXPECT_EQ(mapView->overlayCount(), 0u);
    EXPECT_NEAR(mapView->centerCoordinate().latitude, car.latitude, 1e-6);
}

TEST_F(ControllerMapTest, TheMapMenusChoiceIsKeptForTheNextRun) {
    controller.OnMapSourceChanged("folder:/nowhere");  // a folder that will not open: no tiles, no crash
    EXPECT_EQ(settings.utils().mapSource(), "folder:/nowhere");
    EXPECT_EQ(mapView->tileProvider(), nullptr);
    controller.OnMapSourceChanged("offline");
    EXPECT_EQ(settings.utils().mapSource(), "offline");
}

}  // namespace
