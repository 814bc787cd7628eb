#include "MapGeometry.h"
#include "MapMath.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace MapMath;

TEST(MapMath, ProjectsKnownPoints) {
    const struct {
        Coordinate coordinate;
        double zoom, x, y;
    } cases[] = {
        {{0, 0}, 0, 128, 128},
        {{kMaximumLatitude, -180}, 0, 0, 0},
        {{-kMaximumLatitude, 180}, 0, 256, 256},
        {{0, 90}, 0, 192, 128},
        {{0, 0}, 0.5, 128 * std::sqrt(2.0), 128 * std::sqrt(2.0)},
        // Beyond the world's edge the latitude stops at the edge.
        {{89.9, 0}, 0, 128, 0},
        {{-90, 0}, 0, 128, 256},
    };
    for (const auto& c : cases) {
        const WorldPoint p = project(c.coordinate, c.zoom, 256);
        EXPECT_NEAR(p.x, c.x, 1e-6) << c.coordinate.latitude << "," << c.coordinate.longitude << " z" << c.zoom;
        EXPECT_NEAR(p.y, c.y, 1e-6) << c.coordinate.latitude << "," << c.coordinate.longitude << " z" << c.zoom;
    }
    EXPECT_NEAR(unproject({0, -500}, 0, 256).latitude, kMaximumLatitude, 1e-9);
    EXPECT_NEAR(unproject({0, 10'000}, 0, 256).latitude, -kMaximumLatitude, 1e-9);
}

TEST(MapMath, FindsTheTileOfACoordinate) {
    const struct {
        Coordinate coordinate;
        int z;
        TileId tile;
    } cases[] = {
        {{48.8566, 2.3522}, 12, {12, 2074, 1409}},
        {{0.0001, 0.0001}, 1, {1, 1, 0}},
        {{-0.0001, -0.0001}, 1, {1, 0, 1}},
        {{-89, 0}, 3, {3, 4, 7}},
        // Longitudes wrap around the globe.
        {{0, 180}, 2, {2, 0, 2}},
        {{0.0001, -190}, 2, {2, 3, 1}},
        {{0.0001, 530}, 2, {2, 3, 1}},
        {{NAN, NAN}, 4, {4, 0, 0}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(tileContaining(c.coordinate, c.z), c.tile) << c.coordinate.latitude << "," << c.coordinate.longitude;
    EXPECT_EQ(wrapTileColumn(4, 2), 0);
    EXPECT_EQ(wrapTileColumn(-5, 2), 3);
    EXPECT_EQ(wrapTileColumn(7, 0), 0);
}

TEST(MapMath, FitsARegionIntoAWidget) {
    const struct {
        CoordinateRegion region;
        double width, height;
        int minZoom, maxZoom;
        double zoom;
    } cases[] = {
        {{{0, 0}, {0, 360}}, 512, 100, 0, 19, 1},
        // The narrower side decides.
        {{{0, 0}, {0, 90}}, 256, 64, 0, 19, 2},
        {{{0, 0}, {0, 90}}, 128, 256, 0, 19, 1},
        // Clamped to the source's zooms.
        {{{0, 0}, {0, 360}}, 256, 256, 3, 10, 3},
        {{{0, 0}, {0, 1e-9}}, 256, 256, 3, 10, 10},
        {{{0, 0}, {0, 0}}, 256, 256, 0, 19, 19},
        {{{NAN, 0}, {1, 1}}, 256, 256, 2, 19, 2},
        {{{0, 0}, {1, 1}}, 0, 256, 2, 19, 2},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(zoomToFit(c.region, c.width, c.height, 256, c.minZoom, c.maxZoom), c.zoom, 1e-9)
            << c.region.span.longitudeDelta << " in " << c.width << "x" << c.height;
}

TEST(MapGeometry, RegionOfADistance) {
    const CoordinateRegion equator = regionMakeWithDistance({0, 0}, 1000, 1000);
    EXPECT_NEAR(equator.span.latitudeDelta, 0.00904, 0.00001);
    EXPECT_NEAR(equator.span.longitudeDelta, 0.00898, 0.00001);
    const CoordinateRegion north = regionMakeWithDistance({60, 10}, 1000, 1000);
    EXPECT_NEAR(north.span.longitudeDelta / equator.span.longitudeDelta, 2.0, 0.01);
    EXPECT_EQ(north.center, (Coordinate{60, 10}));
}

TEST(MapMath, ScaleBarLengthsAreRound) {
    const std::pair<double, double> cases[] = {{1, 1},           {1.9, 1}, {2, 2},   {4.99, 2},     {5, 5},
                                               {12'345, 10'000}, {0.5, 0}, {NAN, 0}, {INFINITY, 0}, {-3, 0}};
    for (const auto& [maxMeters, length] : cases) EXPECT_EQ(roundScaleLength(maxMeters), length) << maxMeters;
    EXPECT_NEAR(metersPerPixel(60, 1, 256), 156'543.034 / 4, 0.001);
}
