#pragma once
// Which playlist entry the transport commands go to, and what playing it takes. Positions are
// signed, -1 meaning no entry; counts are unsigned, as the playlist's own.

#include <cstdint>

class PlaylistNavigation {
public:
    // OnPrev: the entry before curIndex, the first when there is none before.
    static int64_t previousIndex(int64_t curIndex);
    // OnNext: the entry after curIndex, at most the last. Compared as unsigned numbers, so that
    // after a stop (-1) this is the first entry, and with an empty playlist it is curIndex + 1,
    // which playWithIndex ignores.
    static int64_t nextIndex(int64_t curIndex, uint64_t count);

    enum class IndexStep {
        Ignore,   // nothing happens
        Restart,  // the loaded movie goes back to its start: slider 0, seek 0
        Load,     // stop, then load the entry, select its row and show its path
    };
    // playWithIndex(index, autoPlay), before RefreshUnits and the autoPlay step. ready: a movie is
    // loaded. An index at or past the end is ignored like a negative one.
    static IndexStep playWithIndex(int64_t index, uint64_t count, bool ready, int64_t curIndex);

    enum class PlayStep {
        Nothing,          // no sender
        OpenPanel,        // empty playlist: the open panel, without a sender
        Resume,           // rate 1.0 if it is not, Resume, UpdateControls
        PlaySelectedRow,  // playWithIndex(selected row, true); no selection (-1) does nothing
    };
    // OnPlay(sender).
    static PlayStep play(bool hasSender, uint64_t count, bool ready);
};
