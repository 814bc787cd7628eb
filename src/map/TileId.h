#pragma once
// One map tile of the slippy-map scheme: zoom z, column x from the west, row y from the north.
// Comparisons are written out: moc cannot parse the standard <compare> header.

struct TileId {
    int z = 0;
    int x = 0;
    int y = 0;

    friend bool operator==(const TileId&, const TileId&) = default;
    friend bool operator<(const TileId& a, const TileId& b) {
        if (a.z != b.z) return a.z < b.z;
        if (a.x != b.x) return a.x < b.x;
        return a.y < b.y;
    }
};
