#include "RouteTimestamp.h"
#include "RouteTracker.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <set>

namespace {

// A map that keeps what is on it and counts how it was framed.
class RecordingMap : public RouteMap {
public:
    void removeOverlays(const std::vector<std::shared_ptr<const Polyline>>& overlays) override {
        for (const auto& line : overlays) onMap.erase(line);
    }
    void addOverlay(std::shared_ptr<const Polyline> overlay) override {
        EXPECT_TRUE(onMap.insert(overlay).second) << "a line added twice";
    }
    void moveMarker(Coordinate coordinate, const std::string& title) override {
        marker = coordinate, markerTitle = title, ++markerMoves;
    }
    void setRegion(CoordinateRegion region, bool animated) override {
        EXPECT_TRUE(animated);
        lastRegion = region, ++regionCalls;
    }
    void setCenterCoordinate(Coordinate coordinate) override { center = coordinate, ++centerCalls; }
    void logIntake(const std::string&, const std::string&) override {}  // a diagnostic only

    std::set<std::shared_ptr<const Polyline>> onMap;
    std::optional<Coordinate> marker, center;
    std::string markerTitle;
    std::optional<CoordinateRegion> lastRegion;
    int markerMoves = 0, regionCalls = 0, centerCalls = 0;
};

// A raw record in the cameras' fixed-point form recorded `second` seconds after 2023-05-07 10:00:00.
GPSDATA recordAt(int second, double latitude, double longitude) {
    GPSDATA raw;
    raw.rmcinfo.Year = 2023, raw.rmcinfo.Month = 5, raw.rmcinfo.Day = 7;
    raw.rmcinfo.Hour = 10 + uint32_t(second / 3600);
    raw.rmcinfo.Minute = uint32_t(second / 60 % 60), raw.rmcinfo.Second = uint32_t(second % 60);
    raw.rmcinfo.Latitude = std::bit_cast<float>(int32_t(std::lround(latitude * 1e7)));
    raw.rmcinfo.Longitude = std::bit_cast<float>(int32_t(std::lround(longitude * 1e7)));
    return raw;
}

GPSData sampleOf(const GPSDATA& raw) {
    GPSData sample;
    sample.SetData(raw, false);
    return sample;
}
GPSData sampleAt(int second, double latitude, double longitude) {
    return sampleOf(recordAt(second, latitude, longitude));
}

// By default a little further north with every second.
GPSData sampleAt(int second) { return sampleAt(second, 48.1 + second * 1e-4, 11.5); }

Coordinate coordinateOf(const GPSData& s) { return {double(s.Latitude()), double(s.Longitude())}; }

int secondOf(const GPSData& s) {
    const RMCINFO& f = s.data().rmcinfo;
    return int(f.Hour - 10) * 3600 + int(f.Minute) * 60 + int(f.Second);
}

std::vector<int> routeSeconds(const RouteTracker& tracker) {
    std::vector<int> seconds;
    for (const GPSData& s : tracker.gpsPositions()) seconds.push_back(secondOf(s));
    return seconds;
}

using Lines = std::vector<std::vector<Coordinate>>;

// The drawn route as continuous stretches: a full line and the one that starts at its last point
// are one stretch.
Lines drawnLines(const RouteTracker& tracker) {
    Lines lines;
    bool previousFull = false;
    for (const auto& line : tracker.polylineOverlays()) {
        EXPECT_FALSE(line->points.empty());
        EXPECT_LE(line->points.size(), RouteTracker::kMaxLinePoints);
        if (previousFull && line->points.front() == lines.back().back())
            lines.back().insert(lines.back().end(), line->points.begin() + 1, line->points.end());
        else
            lines.push_back(line->points);
        previousFull = line->points.size() == RouteTracker::kMaxLinePoints;
    }
    return lines;
}

std::vector<Coordinate> coordinatesAt(const std::vector<int>& seconds) {
    std::vector<Coordinate> points;
    for (int s : seconds) points.push_back(coordinateOf(sampleAt(s)));
    return points;
}

class RouteTrackerTest : public testing::Test {
protected:
    // Reports indexes first..last in order, index i recorded i seconds after the start.
    void play(int64_t first, int64_t last) {
        for (int64_t i = first; i <= last; ++i) tracker.showCarLocation(sampleAt(int(i)), i, map);
    }
    void expectMapShowsTheRoute() {
        const auto& lines = tracker.polylineOverlays();
        EXPECT_EQ(map.onMap, std::set<std::shared_ptr<const Polyline>>(lines.begin(), lines.end()));
    }

    TimeZoneGuard utc{"UTC0"};
    RecordingMap map;
    RouteTracker tracker;
};

TEST_F(RouteTrackerTest, NormalPlaybackTakesEveryThirdSampleAsOneLineAndASeekForwardStartsAnother) {
    play(0, 10);
    EXPECT_EQ(routeSeconds(tracker), (std::vector<int>{1, 4, 7, 10}));
    EXPECT_EQ(drawnLines(tracker), (Lines{coordinatesAt({1, 4, 7, 10})}));
    expectMapShowsTheRoute();

    EXPECT_EQ(map.regionCalls, 2);  // indexes 1 and 2 zoom
    EXPECT_EQ(map.lastRegion->center, coordinateOf(sampleAt(2)));
    EXPECT_NEAR(map.lastRegion->span.latitudeDelta, 1000.0 / 111200, 1e-4);
    EXPECT_EQ(map.centerCalls, 8);  // 3 to 10 only re-centre
    EXPECT_EQ(map.center, coordinateOf(sampleAt(10)));
    EXPECT_EQ(map.markerMoves, 10);
    EXPECT_EQ(map.marker, coordinateOf(sampleAt(10)));
    EXPECT_EQ(map.markerTitle, "Car");
    // A seek forward past the gap starts a one-point line and leaves the first one as it was drawn.
    const auto firstLine = tracker.polylineOverlays().front();
    play(40, 40);
    EXPECT_EQ(drawnLines(tracker), (Lines{coordinatesAt({1, 4, 7, 10}), coordinatesAt({40})}));
    EXPECT_EQ(tracker.polylineOverlays().front(), firstLine) << "an unchanged line was redrawn";
    expectMapShowsTheRoute();
    EXPECT_EQ(map.center, coordinateOf(sampleAt(40)));
}

TEST_F(RouteTrackerTest, SeekBackCutsTheRouteAtTheNextRoutePoint) {
    play(0, 10);
    play(5, 6);
    EXPECT_EQ(routeSeconds(tracker), (std::vector<int>{1, 4, 7, 10})) << "only a route point cuts";
    EXPECT_EQ(map.marker, coordinateOf(sampleAt(6)));

    play(7, 7);
    EXPECT_EQ(routeSeconds(tracker), (std::vector<int>{1, 4}));
    EXPECT_EQ(drawnLines(tracker), (Lines{coordinatesAt({1, 4})}));
    expectMapShowsTheRoute();
    EXPECT_EQ(map.marker, coordinateOf(sampleAt(7)));

    play(8, 10);
    EXPECT_EQ(routeSeconds(tracker), (std::vector<int>{1, 4, 10}));
    EXPECT_EQ(drawnLines(tracker), (Lines{coordinatesAt({1, 4, 10})}));  // 6 s apart: one line
    expectMapShowsTheRoute();
}

TEST_F(RouteTrackerTest, LongStretchIsDrawnAsJoinedLines) {
    auto expectOneStretch = [&](size_t routePoints) {
        std::vector<Coordinate> route;
        for (const GPSData& point : tracker.gpsPositions()) route.push_back(coordinateOf(point));
        EXPECT_EQ(route.size(), routePoints);
        EXPECT_EQ(drawnLines(tracker), Lines{route});
        expectMapShowsTheRoute();
    };
    play(0, 3 * 199 + 1);
    EXPECT_EQ(tracker.polylineOverlays().size(), 4u);  // 64 + 63 + 63 + 10 points
    expectOneStretch(200);
    play(301, 301);  // back into the third line: 1 to 298 stay
    expectOneStretch(100);
    play(302, 500);  // 304 to 499 follow
    expectOneStretch(166);
}

TEST_F(RouteTrackerTest, CutBackBeforeEveryPointEmptiesTheRoute) {
    play(0, 7);
    tracker.showCarLocation(sampleAt(1), 10, map);  // equal to the first point: not strictly before
    EXPECT_TRUE(tracker.gpsPositions().empty());
    EXPECT_TRUE(map.onMap.empty());
    tracker.showCarLocation(sampleAt(2), 13, map);
    EXPECT_EQ(routeSeconds(tracker), (std::vector<int>{2}));
    expectMapShowsTheRoute();
}

TEST_F(RouteTrackerTest, SplitsWhereRecordingTimeJumps) {
    const struct {
        const char* name;
        std::vector<int> seconds;  // of route points taken at 1, 4, 7, ...
        std::vector<std::vector<int>> lines;
    } cases[] = {
        {"eight seconds join", {0, 8, 16}, {{0, 8, 16}}},
        {"nine seconds split", {0, 9, 17}, {{0}, {9, 17}}},
        {"equal times append", {5, 5, 5}, {{5, 5, 5}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        RouteTracker fresh;
        RecordingMap freshMap;
        int64_t index = 1;
        for (int second : c.seconds) {
            fresh.showCarLocation(sampleAt(second), index, freshMap);
            index += 3;
        }
        Lines expected;
        for (const auto& line : c.lines) expected.push_back(coordinatesAt(line));
        EXPECT_EQ(drawnLines(fresh), expected);
        const auto& drawn = fresh.polylineOverlays();
        EXPECT_EQ(freshMap.onMap, std::set<std::shared_ptr<const Polyline>>(drawn.begin(), drawn.end()));
    }
}

TEST_F(RouteTrackerTest, UnreadableDatesNeverCutOrSplit) {
    // Month 13: every timestamp is 0, so a later sample reported earlier is still appended.
    auto undated = [](int second) {
        GPSDATA raw = recordAt(second, 48.1, 11.5);
        raw.rmcinfo.Month = 13;
        return sampleOf(raw);
    };
    tracker.showCarLocation(undated(100), 1, map);
    tracker.showCarLocation(undated(0), 4, map);
    tracker.showCarLocation(undated(50), 7, map);
    EXPECT_EQ(tracker.gpsPositions().size(), 3u);
    EXPECT_EQ(tracker.polylineOverlays().size(), 1u);
}

TEST_F(RouteTrackerTest, IndexZeroClearsTheRouteButLeavesMarkerAndFraming) {
    play(0, 10);
    const int moves = map.markerMoves, regions = map.regionCalls, centres = map.centerCalls;
    tracker.showCarLocation(sampleAt(500, 10.0, 10.0), 0, map);
    EXPECT_TRUE(tracker.gpsPositions().empty());
    EXPECT_TRUE(tracker.polylineOverlays().empty());
    EXPECT_TRUE(map.onMap.empty());
    EXPECT_EQ(map.markerMoves, moves);
    EXPECT_EQ(map.marker, coordinateOf(sampleAt(10)));
    EXPECT_EQ(map.regionCalls, regions);
    EXPECT_EQ(map.centerCalls, centres);

    play(1, 2);  // a new movie zooms again
    EXPECT_EQ(map.regionCalls, regions + 2);
    EXPECT_EQ(routeSeconds(tracker), (std::vector<int>{1}));
}

TEST_F(RouteTrackerTest, NaNPositionChangesNothingButZeroZeroIsAPosition) {
    GPSDATA raw;  // the scaled form keeps a float latitude as it is
    raw.rmcinfo.Year = 23, raw.rmcinfo.Month = 5, raw.rmcinfo.Day = 7;
    raw.rmcinfo.Latitude = std::numeric_limits<float>::quiet_NaN();
    raw.rmcinfo.Longitude = 600.0f;
    const GPSData sample = sampleOf(raw);
    ASSERT_TRUE(std::isnan(sample.Latitude()));

    tracker.showCarLocation(sample, 1, map);
    EXPECT_TRUE(tracker.gpsPositions().empty());
    EXPECT_FALSE(map.marker.has_value());
    EXPECT_EQ(map.regionCalls, 0);
    EXPECT_EQ(map.centerCalls, 0);
    EXPECT_TRUE(map.onMap.empty());

    // 0, 0 is an ordinary position, not a missing one.
    tracker.showCarLocation(sampleAt(1, 0.0, 0.0), 1, map);
    EXPECT_EQ(map.marker, (Coordinate{0, 0}));
    EXPECT_EQ(map.lastRegion->center, (Coordinate{0, 0}));
    EXPECT_EQ(drawnLines(tracker), (Lines{{Coordinate{0, 0}}}));
}

// The route after any sequence of reports equals the one recomputed from scratch, split into
// stretches of at most 8 s, and the map shows exactly its lines.
TEST_F(RouteTrackerTest, IncrementalDrawingMatchesAFullRedraw) {
    // Forward playback with jumps both ways, as a user scrubbing would report.
    const std::vector<std::pair<int64_t, int64_t>> stretches = {{0, 30},    {60, 75}, {20, 28}, {29, 50}, {100, 130},
                                                                {110, 115}, {5, 9},   {0, 4},   {2, 40}};
    for (const auto& [first, last] : stretches) {
        play(first, last);
        std::vector<std::vector<Coordinate>> expected;
        const auto& points = tracker.gpsPositions();
        for (size_t i = 0; i < points.size(); ++i) {
            if (i == 0 || std::abs(secondOf(points[i]) - secondOf(points[i - 1])) > 8) expected.emplace_back();
            expected.back().push_back(coordinateOf(points[i]));
        }
        ASSERT_EQ(drawnLines(tracker), expected) << "after " << first << ".." << last;
        expectMapShowsTheRoute();
        for (size_t i = 1; i < points.size(); ++i) EXPECT_LE(secondOf(points[i - 1]), secondOf(points[i]));
    }
}

RMCINFO fields(uint32_t year, uint32_t month, uint32_t day, uint32_t hour, uint32_t minute, uint32_t second) {
    RMCINFO f;
    f.Year = year, f.Month = month, f.Day = day, f.Hour = hour, f.Minute = minute, f.Second = second;
    return f;
}

TEST(RouteTimestamp, TextAndInstantOfTheRecordedFields) {
    const TimeZoneGuard utc{"UTC0"};
    const struct {
        const char* name;
        RMCINFO fields;
        const char* text;
        double timestamp;  // seconds since 1970 UTC; 0 for no date
    } cases[] = {
        {"afternoon", fields(23, 5, 7, 14, 3, 9), "2023-05-07 02:03:09 PM", 1683468189},
        {"two-digit year", fields(5, 1, 1, 0, 0, 0), "2005-01-01 00:00:00 AM", 1104537600},
        {"three-digit year kept", fields(150, 3, 4, 5, 6, 7), "0150-03-04 05:06:07 AM", -57428247233.0},
        {"four-digit year kept", fields(9999, 12, 31, 23, 59, 59), "9999-12-31 11:59:59 PM", 253402300799.0},
        {"five-digit year", fields(10000, 1, 1, 0, 0, 0), "10000-01-01 00:00:00 AM", 0},
        {"noon", fields(23, 5, 7, 12, 0, 0), "2023-05-07 00:00:00 PM", 1683460800},
        {"hour 24 reads as noon", fields(23, 5, 7, 24, 0, 0), "2023-05-07 00:00:00 PM", 1683460800},
        {"leap day", fields(24, 2, 29, 8, 0, 0), "2024-02-29 08:00:00 AM", 1709193600},
        {"leap day of a common year", fields(23, 2, 29, 8, 0, 0), "2023-02-29 08:00:00 AM", 0},
        {"month 0", fields(23, 0, 7, 8, 0, 0), "2023-00-07 08:00:00 AM", 0},
        {"day 0", fields(23, 5, 0, 8, 0, 0), "2023-05-00 08:00:00 AM", 0},
        {"second 60", fields(23, 5, 7, 8, 0, 60), "2023-05-07 08:00:60 AM", 0},
        {"huge month prints negative", fields(23, 0xFFFFFFFFu, 7, 8, 0, 0), "2023--1-07 08:00:00 AM", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(routeDateText(c.fields), c.text) << c.name;
        EXPECT_EQ(routeTimestamp(c.fields), c.timestamp) << c.name;
    }
}

// The recorded time is local time of the user's zone, summer time included.
TEST(RouteTimestamp, ReadsTheFieldsAsLocalTime) {
    const TimeZoneGuard berlin{"CET-1CEST,M3.5.0,M10.5.0/3"};
    EXPECT_EQ(routeTimestamp(fields(23, 7, 1, 12, 0, 0)), 1688205600);   // 10:00 UTC
    EXPECT_EQ(routeTimestamp(fields(23, 1, 15, 12, 0, 0)), 1673780400);  // 11:00 UTC
}

}  // namespace
