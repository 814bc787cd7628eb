#include "SampleClock.h"
#include "TripGrouping.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

std::optional<int64_t> clockOf(uint32_t year, uint32_t month, uint32_t day, uint32_t hour, uint32_t minute,
                               uint32_t second) {
    RMCINFO f;
    std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second) = std::tie(year, month, day, hour, minute, second);
    return sampleClockSeconds(f);
}

ClipSummary gps(int64_t first, int64_t last) { return {first, last, 500, 60}; }
ClipSummary noGPS(std::optional<int64_t> created, double duration = 60) { return {{}, {}, created, duration}; }

}  // namespace

TEST(SampleClock, ReadsCalendarDatesAndRefusesImpossibleOnes) {
    const struct {
        uint32_t year, month, day, hour, minute, second;
        std::optional<int64_t> expected;
    } cases[] = {
        {0, 1, 1, 0, 0, 0, 946684800}, {24, 2, 29, 0, 0, 0, 1709164800}, {99, 12, 31, 23, 59, 59, 4102444799},
        {23, 2, 29, 0, 0, 0, {}},      {24, 4, 31, 0, 0, 0, {}},         {24, 13, 1, 0, 0, 0, {}},
        {24, 1, 0, 0, 0, 0, {}},       {24, 1, 1, 24, 0, 0, {}},         {24, 1, 1, 0, 60, 0, {}},
        {0, 0, 0, 0, 0, 0, {}},  // the empty lead-in sample
    };
    for (const auto& c : cases)
        EXPECT_EQ(clockOf(c.year, c.month, c.day, c.hour, c.minute, c.second), c.expected) << c.year << "-" << c.month;
}

TEST(TripGrouping, DecidesWhetherAClipContinuesTheTrip) {
    const int64_t newYearsEve = *clockOf(23, 12, 31, 23, 59, 55);
    const struct {
        const char* what;
        ClipSummary previous, next;
        bool continues;
    } cases[] = {
        {"gap 9 s", gps(1000, 1060), gps(1069, 1120), true},
        {"gap 10 s", gps(1000, 1060), gps(1070, 1120), true},
        {"gap 11 s", gps(1000, 1060), gps(1071, 1120), false},
        {"overlapping the previous clip", gps(1000, 1060), gps(1030, 1090), true},
        {"clock jumped back", gps(1000, 1060), gps(990, 1000), false},
        {"across midnight and a new year", gps(newYearsEve - 60, newYearsEve),
         gps(*clockOf(24, 1, 1, 0, 0, 3), *clockOf(24, 1, 1, 0, 1, 0)), true},
        {"no GPS: within duration + 10 s", noGPS(1000), noGPS(1070), true},
        {"no GPS: 11 s after the end", noGPS(1000), noGPS(1071), false},
        {"no GPS: created before", noGPS(1000), noGPS(999), false},
        {"no GPS: unusable duration", noGPS(1000, -5), noGPS(1011), false},
        {"GPS on one side only: creation times", gps(0, 60), noGPS(560), true},
        {"no creation time", noGPS({}), noGPS(1000), false},
        {"times too far apart to subtract", gps(INT64_MIN, INT64_MIN), gps(INT64_MAX, INT64_MAX), false},
    };
    for (const auto& c : cases) EXPECT_EQ(continuesTrip(c.previous, c.next), c.continues) << c.what;
}

TEST(TripGrouping, CutsThePlaylistSoEveryEntryIsInOneTrip) {
    EXPECT_TRUE(groupTrips({}).empty());
    const ClipSummary playlist[] = {gps(0, 60),  gps(65, 120), noGPS(1000),  noGPS(1050),
                                    gps(10, 20), noGPS({}),    gps(100, 160)};
    const std::vector<TripSpan> expected = {{0, 2}, {2, 2}, {4, 1}, {5, 1}, {6, 1}};
    EXPECT_EQ(groupTrips(playlist), expected);
}
