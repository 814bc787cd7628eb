#include "MpvPlaybackState.h"

#include "MovieProbe.h"

#include <cmath>

PlayerStatus MpvPlaybackState::status() const {
    if (paused || failed) return PlayerStatus::Paused;
    if (!loaded || coreIdle || seeking) return PlayerStatus::Waiting;
    return PlayerStatus::Playing;
}

float MpvPlaybackState::rate() const {
    if (paused || failed) return 0.0f;
    return static_cast<float>(backward ? -speed : speed);
}

bool MpvPlaybackState::restingAtEnd() const {
    // Backward playback also ends in "eof-reached", but at the start of the movie.
    return loaded && eofReached && paused && !backward && !seekInFlight;
}

MediaTime MpvPlaybackState::currentTime(MediaTime duration) const {
    if (restingAtEnd() && duration.isValid()) return duration;
    double seconds = position.value_or(0.0);
    if (!std::isfinite(seconds) || seconds < 0.0) seconds = 0.0;
    if (duration.isValid() && seconds >= duration.seconds()) return duration;
    return MediaTime::make(std::llround(seconds * kMicrosecondsPerSecond), kMicrosecondsPerSecond);
}
