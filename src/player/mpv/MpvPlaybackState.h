#pragma once
// What the mpv player last heard from its core, and how that reads as the media player's status,
// rate and current time. Plain data, so the mapping can be tested without a core.

#include "MediaPlayer.h"

#include <optional>

struct MpvPlaybackState {
    bool loaded = false;   // the file is open and has not ended in error
    bool failed = false;   // mpv gave up on the file
    bool paused = true;    // mpv's "pause", set by us or by keep-open at the end
    bool coreIdle = true;  // "core-idle": not advancing (loading, seeking, buffering, paused)
    bool seeking = false;
    // From our seek until mpv has restarted playback there: "eof-reached" still tells of the place
    // the player is leaving.
    bool seekInFlight = false;
    bool eofReached = false;  // resting at the end of the file in the playing direction
    bool backward = false;    // "play-dir"
    double speed = 1.0;
    std::optional<double> position;  // "time-pos" in seconds; absent before the first frame

    // 0 when paused or resting at the end; 1 when asked to play but held up by loading, seeking
    // or the cache; 2 while the clock runs.
    PlayerStatus status() const;
    // The signed playback rate, 0 while paused.
    float rate() const;
    // At rest at the end this is exactly `duration`: mpv itself may then report the last frame's
    // time or the end of the last audio frame. Elsewhere the position, kept within the movie.
    MediaTime currentTime(MediaTime duration) const;
    bool restingAtEnd() const;
};
