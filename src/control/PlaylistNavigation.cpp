#include "PlaylistNavigation.h"

#include <algorithm>

int64_t PlaylistNavigation::previousIndex(int64_t curIndex) { return curIndex <= 0 ? 0 : curIndex - 1; }

int64_t PlaylistNavigation::nextIndex(int64_t curIndex, uint64_t count) {
    // Unsigned on purpose: count − 1 wraps to the largest number for an empty playlist.
    const uint64_t last = count - 1;
    const uint64_t after = static_cast<uint64_t>(curIndex) + 1;
    return static_cast<int64_t>(std::min(last, after));
}

PlaylistNavigation::IndexStep PlaylistNavigation::playWithIndex(int64_t index, uint64_t count, bool ready,
                                                                int64_t curIndex) {
    if (index < 0 || static_cast<uint64_t>(index) >= count) return IndexStep::Ignore;
    if (ready && index == curIndex) return IndexStep::Restart;
    return IndexStep::Load;
}

PlaylistNavigation::PlayStep PlaylistNavigation::play(bool hasSender, uint64_t count, bool ready) {
    if (!hasSender) return PlayStep::Nothing;
    if (count == 0) return PlayStep::OpenPanel;
    if (ready) return PlayStep::Resume;
    return PlayStep::PlaySelectedRow;
}
