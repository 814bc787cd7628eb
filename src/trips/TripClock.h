#pragma once
// A trip's clips laid end to end on one time line: the trip's own seconds, from 0 at the start of
// its first clip to the sum of their durations. Seeking on the trip's timeline names a clip and a
// time within it.

#include <cstddef>
#include <vector>

class TripClock {
public:
    TripClock() = default;
    // One duration per clip in play order; negative or non-finite durations count as 0.
    explicit TripClock(std::vector<double> clipDurations);

    std::size_t clipCount() const { return durations_.size(); }
    double totalSeconds() const { return total_; }
    // Where the clip starts on the trip's time line; clip < clipCount().
    double startOf(std::size_t clip) const { return starts_[clip]; }
    double durationOf(std::size_t clip) const { return durations_[clip]; }

    struct Place {
        std::size_t clip = 0;
        double seconds = 0;  // within that clip
        bool operator==(const Place&) const = default;
    };
    // The clip and time for a time on the trip's line, clamped to the trip. A time that falls
    // exactly on the joint of two clips is the start of the later one, except at the very end.
    // Needs at least one clip.
    Place placeAt(double tripSeconds) const;
    // The trip's time of a time within a clip; clip < clipCount().
    double tripSecondsAt(std::size_t clip, double clipSeconds) const;

private:
    std::vector<double> durations_;
    std::vector<double> starts_;
    double total_ = 0;
};
