#include "TripIndex.h"

TripIndex::TripIndex(std::span<const std::optional<ClipFacts>> rows) {
    std::vector<ClipSummary> summaries;
    summaries.reserve(rows.size());
    // An unread row has nothing to follow or be followed by: it stands alone.
    for (const auto& row : rows) summaries.push_back(row ? row->summary : ClipSummary{});
    for (const TripSpan& span : groupTrips(summaries)) {
        TripInfo trip;
        trip.span = span;
        trip.known = true;
        for (std::size_t row = span.first; row < span.first + span.count; ++row) {
            tripOfRow_.push_back(trips_.size());
            if (!rows[row]) {
                trip.known = false;
                continue;
            }
            trip.durationSeconds += rows[row]->summary.durationSeconds;
            trip.distanceMetres += rows[row]->distanceMetres;
        }
        if (const auto& first = rows[span.first]) {
            trip.startSampleSeconds = first->summary.firstSampleSeconds;
            trip.startCreationSeconds = first->summary.creationSeconds;
        }
        trips_.push_back(trip);
    }
}

std::optional<std::size_t> TripIndex::tripOfRow(std::size_t row) const {
    if (row >= tripOfRow_.size()) return std::nullopt;
    return tripOfRow_[row];
}

bool TripIndex::startsTrip(std::size_t row) const {
    const auto trip = tripOfRow(row);
    return trip && trips_[*trip].span.first == row;
}

TripSpan TripIndex::spanOfRow(std::size_t row) const {
    const auto trip = tripOfRow(row);
    return trip ? trips_[*trip].span : TripSpan{row, 1};
}
