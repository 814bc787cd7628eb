#pragma once
// What desktop media controls can know of the player at one moment, as plain values: the
// properties published on the session bus are computed from it alone.

#include <cstdint>
#include <filesystem>

struct MprisPlayerState {
    bool loaded = false;   // a movie is in the player
    bool playing = false;  // at any rate, backwards included
    double rate = 1.0;
    double volume = 1.0;  // 0 to 1; 0 while muted
    int64_t entry = -1;   // the loaded playlist row, -1 for none
    std::filesystem::path file;
    double durationSeconds = 0.0;
    // From the transport buttons' states, so that media keys obey the same rules as the window.
    bool canGoNext = false;
    bool canGoPrevious = false;
    bool canPlay = false;
    bool canPause = false;
    bool canSeek = false;

    bool operator==(const MprisPlayerState&) const = default;
};
