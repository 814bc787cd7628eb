#pragma once
// The playlist's order: oldest first by the creation time text. The text is all an entry keeps, so
// the key is read back from it; its 12-hour clock has no AM/PM, so 12 reads as 0 and a clip from
// 14:00 sorts before one from 03:00 of the same day.

#include "PlaylistItem.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

class PlaylistOrder {
public:
    // Year, month, day, hour (0 to 11), minute, second.
    using Key = std::array<int, 6>;

    // Absent unless the text is exactly "yyyy-MM-dd hh:mm:ss" with fields in range.
    static std::optional<Key> sortKey(std::string_view creationTime);
    // Stable: equal keys keep their order, and entries without a key go last in theirs.
    static void sortByCreationTime(std::vector<PlaylistItem>& items);
};
