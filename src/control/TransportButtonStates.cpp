#include "TransportButtonStates.h"

ControlStates TransportButtonStates::controlsFor(const TransportInputs& in) {
    const bool ready = in.ready;
    ControlStates states;
    const bool onEntry = ready || in.entryFailed;
    states.prevEnabled = onEntry && in.curIndex > 0;
    states.backwardEnabled = ready && in.progress > 0.0;
    states.forwardEnabled = ready && in.progress < 1.0;
    // Unsigned on purpose: a curIndex of -1 is the largest number and never enables it, and an
    // empty playlist's count − 1 wraps the other way.
    states.nextEnabled = onEntry && static_cast<uint64_t>(in.curIndex) < in.count - 1;
    states.stopEnabled = ready;
    states.snapshotEnabled = ready;
    states.durationSliderEnabled = ready;
    return states;
}

PlayingStates TransportButtonStates::playingStatusFor(const TransportInputs& in) {
    const bool playing = in.ready && in.isPlaying && in.speed == 1.0;
    return PlayingStates{.pauseShown = playing, .playShown = !playing, .stopEnabled = playing};
}
