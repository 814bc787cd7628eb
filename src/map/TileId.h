#pragma once
// One map tile of the slippy-map scheme: zoom z, column x from the west, row y from the north.

#include <compare>

struct TileId {
    int z = 0;
    int x = 0;
    int y = 0;
    auto operator<=>(const TileId&) const = default;
};
