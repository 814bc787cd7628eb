#pragma once
// Maps playback time to a position in the GPS track and decides when a new sample is reported.
// Position k is the sample shown from second k of the movie; position 0 is the empty lead-in.

#include <cstdint>
#include <optional>

class TrackCursor {
public:
    // The position for a playback time: t truncated toward zero. Not-a-number and times beyond
    // the 64-bit range give the most negative position, which no track holds.
    static int64_t sampleIndex(double seconds);

    // The position to report at this time, if any: one that differs from the last reported and
    // lies inside a track of count samples. Reporting it makes it the current position.
    std::optional<uint64_t> advance(double seconds, uint64_t count);

    // The last reported position; -1 after restart, 0 before the first one.
    int64_t curIndex() const { return curIndex_; }
    // A new movie: no position reported yet, so the next time inside the track is reported even
    // when it names the previous movie's last position.
    void restart() { curIndex_ = -1; }

private:
    int64_t curIndex_ = 0;
};
