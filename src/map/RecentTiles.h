#pragma once
// The tiles the view has drawn lately, so that a tile not loaded yet can be stood in for by a
// lower-zoom one already seen, without asking the source for more tiles than are on screen.

#include "TileId.h"

#include <QImage>

#include <cstdint>
#include <map>
#include <optional>

class RecentTiles {
public:
    explicit RecentTiles(std::size_t capacity = 128) : capacity_(capacity) {}

    // A null image when absent. Marks the tile as just used.
    QImage find(const TileId& id);
    void insert(const TileId& id, QImage image);
    // The closest ancestor of id (zoom above minimumZoom - 1) that is held, with its zoom.
    std::optional<std::pair<TileId, QImage>> nearestAncestor(const TileId& id, int minimumZoom);

    // Never below what one screen needs; drops the least recently used tiles beyond it.
    void setCapacity(std::size_t capacity);
    std::size_t capacity() const { return capacity_; }
    std::size_t size() const { return tiles_.size(); }
    void clear() { tiles_.clear(); }

private:
    struct Entry {
        QImage image;
        std::uint64_t lastUse = 0;
    };
    void trim();

    std::size_t capacity_;
    std::uint64_t clock_ = 0;
    std::map<TileId, Entry> tiles_;
};
