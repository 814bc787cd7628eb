#pragma once
// The trips of a playlist with what the table says of each: where it starts, how long it runs and
// how far the car went. Rows whose clips have not been read yet stand alone, as unknown trips, so
// the table can show the playlist at once and the trips as they become known.

#include "ClipSummary.h"
#include "TripGrouping.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// What reading one clip taught us.
struct ClipFacts {
    ClipSummary summary;
    double distanceMetres = 0;
};

struct TripInfo {
    TripSpan span;
    // False while a row of the trip has not been read: its figures are not known yet.
    bool known = false;
    // When the trip began: the first clip's first dated sample, else its creation time.
    std::optional<int64_t> startSampleSeconds;
    std::optional<int64_t> startCreationSeconds;
    double durationSeconds = 0;
    double distanceMetres = 0;
};

class TripIndex {
public:
    TripIndex() = default;
    // One entry per playlist row, in the playlist's order; absent for a row not read yet.
    explicit TripIndex(std::span<const std::optional<ClipFacts>> rows);

    const std::vector<TripInfo>& trips() const { return trips_; }
    // The trip of a row; absent for a row beyond the playlist.
    std::optional<std::size_t> tripOfRow(std::size_t row) const;
    bool startsTrip(std::size_t row) const;
    // The rows of the trip that holds row (just row when it stands alone or is unknown).
    TripSpan spanOfRow(std::size_t row) const;

private:
    std::vector<TripInfo> trips_;
    std::vector<std::size_t> tripOfRow_;
};
