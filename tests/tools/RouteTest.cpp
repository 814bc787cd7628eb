#include "CivilTime.h"
#include "Route.h"
#include "SampleGenError.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

Route parse(const std::string& text) {
    std::istringstream in(text);
    return Route::parse(in, "route.csv");
}

int64_t clock(int hour, int minute, int second) { return toClockSeconds({2026, 11, 15, hour, minute, second}); }

}  // namespace

TEST(Route, ReadsRowsSkippingCommentsHeaderAndCarriageReturns) {
    const Route route = parse(
        "# a drive\r\n"
        "time,latitude,longitude,speed\r\n"
        "\r\n"
        "2026-11-15T08:15:00,48.5,2.25,20\r\n"
        "2026-11-15 08:15:04,-48.5,-2.25,0\r\n");
    ASSERT_EQ(route.points().size(), 2u);
    EXPECT_EQ(route.startTime(), clock(8, 15, 0));
    EXPECT_EQ(route.endTime(), clock(8, 15, 4));
    EXPECT_DOUBLE_EQ(route.points()[1].latitude, -48.5);
    EXPECT_DOUBLE_EQ(route.points()[1].longitude, -2.25);
}

TEST(Route, InterpolatesBetweenPointsAndHoldsStillOutsideThem) {
    const Route route = parse(
        "2026-11-15T08:15:00,10.0,20.0,30\n"
        "2026-11-15T08:15:04,10.4,20.8,10\n");
    const struct {
        double offset, latitude, longitude, speed;
        int64_t time;
    } cases[] = {
        {1.0, 10.1, 20.2, 25, clock(8, 15, 1)},
        {-3.0, 10.0, 20.0, 30, clock(8, 14, 57)},
        {9.0, 10.4, 20.8, 10, clock(8, 15, 9)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.offset);
        const RouteSample s = route.at(double(route.startTime()) + c.offset);
        EXPECT_NEAR(s.latitude, c.latitude, 1e-12);
        EXPECT_NEAR(s.longitude, c.longitude, 1e-12);
        EXPECT_NEAR(s.speed, c.speed, 1e-12);
        EXPECT_EQ(s.time, c.time);
    }
}

TEST(Route, HeadingFollowsTheRoadAndAStandingCarKeepsIt) {
    // East, then standing, then north. Before it first moves the car already faces east.
    const Route route(
        {{0, 0.0, 0.0, 0}, {10, 0.0, 0.0, 0}, {20, 0.0, 0.001, 20}, {30, 0.0, 0.001, 0}, {40, 0.001, 0.001, 20}});
    const double expected[][2] = {{5, 90}, {15, 90}, {25, 90}, {35, 0}};
    for (const auto& [at, heading] : expected) EXPECT_NEAR(route.at(at).heading, heading, 1e-6) << "at " << at;
}

TEST(Route, RejectsBadRowsNamingTheLine) {
    const std::string header = "time,latitude,longitude,speed\n";
    const std::string good = "2026-11-15T08:15:00,48.5,2.25,20\n";
    const std::pair<std::string, std::string> cases[] = {
        {header + good, "at least two points"},
        {header + good + good, "times must increase"},
        {header + good + "2026-11-15T08:15:01,48.5,2.25\n", "route.csv:3: expected 4 fields"},
        {header + good + "2026-13-15T08:15:01,48.5,2.25,20\n", "route.csv:3: bad time"},
        {header + good + "1999-11-15T08:15:01,48.5,2.25,20\n", "year 1999"},
        {header + good + "2026-11-15T08:15:01,90.5,2.25,20\n", "bad latitude"},
        {header + good + "2026-11-15T08:15:01,48.5,east,20\n", "bad longitude"},
        {header + good + "2026-11-15T08:15:01,48.5,2.25,-1\n", "bad speed"},
        {good + header, "route.csv:2: bad time"},  // a header only at the top
    };
    for (const auto& [text, message] : cases) {
        SCOPED_TRACE(text);
        try {
            parse(text);
            ADD_FAILURE() << "accepted";
        } catch (const SampleGenError& e) {
            EXPECT_NE(std::string(e.what()).find(message), std::string::npos) << e.what();
        }
    }
}
