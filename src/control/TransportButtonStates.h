#pragma once
// The enabled and shown states of the transport controls, from the state of the player and the
// playlist: what UpdateControls and UpdatePlayingStatus apply to the window.

#include <cstdint>

struct TransportInputs {
    bool ready = false;      // a movie is loaded (engine IsReady)
    // The entry at curIndex was chosen but its file would not open: Previous and Next still step
    // past it.
    bool entryFailed = false;
    int64_t curIndex = -1;   // the loaded entry, -1 for none
    uint64_t count = 0;      // playlist entries
    double progress = 0.0;   // the position slider's value
    bool isPlaying = false;  // engine IsPlaying
    double speed = 1.0;      // engine speed
};

// UpdateControls. btPlay, btPause, btMute, btSound, volumeSlider and btToggleFullscreen are not
// its business.
struct ControlStates {
    bool prevEnabled = false;
    bool backwardEnabled = false;
    bool forwardEnabled = false;
    bool nextEnabled = false;
    bool stopEnabled = false;
    bool snapshotEnabled = false;
    bool durationSliderEnabled = false;
};

// UpdatePlayingStatus. It sets btStop too, by its own rule: the later of the two calls wins.
struct PlayingStates {
    bool pauseShown = false;
    bool playShown = true;
    bool stopEnabled = false;
};

class TransportButtonStates {
public:
    static ControlStates controlsFor(const TransportInputs& inputs);
    // Playing means at rate 1.0 exactly: at any other rate the play button shows, to go back to 1.0.
    static PlayingStates playingStatusFor(const TransportInputs& inputs);
};
