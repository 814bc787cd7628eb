// The playlist's trips as the table shows them: rows not read yet, totals, and the words used.

#include "TripIndex.h"
#include "TripText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

ClipFacts clip(int64_t first, int64_t last, double duration, double metres) {
    return {.summary = {.firstSampleSeconds = first, .lastSampleSeconds = last, .creationSeconds = first,
                        .durationSeconds = duration},
            .distanceMetres = metres};
}

TEST(TripIndex, UnreadRowsStandAloneAndKnownTripsAddUp) {
    // Two clips of one drive, a row not read yet, then a clip an hour later.
    const std::optional<ClipFacts> rows[] = {clip(1000, 1059, 60, 900), clip(1062, 1121, 60, 850), std::nullopt,
                                             clip(4700, 4759, 60, 1000)};
    const TripIndex index(rows);
    ASSERT_EQ(index.trips().size(), 3u);
    const TripInfo& first = index.trips()[0];
    EXPECT_EQ(first.span, (TripSpan{0, 2}));
    EXPECT_TRUE(first.known);
    EXPECT_DOUBLE_EQ(first.durationSeconds, 120);
    EXPECT_DOUBLE_EQ(first.distanceMetres, 1750);
    EXPECT_EQ(first.startSampleSeconds, 1000);
    EXPECT_FALSE(index.trips()[1].known);
    EXPECT_EQ(index.spanOfRow(1), (TripSpan{0, 2}));
    EXPECT_EQ(index.spanOfRow(2), (TripSpan{2, 1}));
    EXPECT_TRUE(index.startsTrip(3));
    EXPECT_FALSE(index.startsTrip(1));
    EXPECT_EQ(index.tripOfRow(4), std::nullopt);
    EXPECT_EQ(index.spanOfRow(9), (TripSpan{9, 1})) << "beyond the playlist a row is its own span";
}

TEST(TripText, SaysLengthsDistancesAndClocksAsTheTableShowsThem) {
    const struct {
        double seconds;
        const char* text;
    } durations[] = {{0, "0:00"}, {59.9, "0:59"}, {61, "1:01"}, {3599, "59:59"}, {3600, "1:00:00"},
                     {-5, "0:00"}, {std::numeric_limits<double>::quiet_NaN(), "0:00"}};
    for (const auto& row : durations) EXPECT_EQ(durationText(row.seconds), row.text) << row.seconds;
    const struct {
        double metres;
        const char* text;
    } distances[] = {{0, "0 m"}, {999.4, "999 m"}, {1000, "1.0 km"}, {8449, "8.4 km"}, {123456, "123 km"}};
    for (const auto& row : distances) EXPECT_EQ(distanceText(row.metres), row.text) << row.metres;
    // 2024-02-29 23:59 and the minute after it, on the sample clock's scale.
    EXPECT_EQ(clockText(1709251140), "2024-02-29 23:59");
    EXPECT_EQ(clockText(1709251200), "2024-03-01 00:00");

    TripInfo trip{.span = {0, 3}, .known = true, .startSampleSeconds = 1709251140, .startCreationSeconds = {},
                  .durationSeconds = 760,
                  .distanceMetres = 8449};
    EXPECT_EQ(tripHeadingText(trip), "12:40 · 8.4 km");
    EXPECT_EQ(tripSummaryText(trip, 2, 5), "Trip 2 of 5: 3 clips, from 2024-02-29 23:59, 12:40, 8.4 km");
    trip.known = false;
    EXPECT_EQ(tripHeadingText(trip), "…");
    EXPECT_EQ(tripSummaryText(trip, 2, 5), "Trip 2 of 5");
}

}  // namespace
