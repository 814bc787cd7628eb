#include "RecentTiles.h"

#include <algorithm>

QImage RecentTiles::find(const TileId& id) {
    const auto it = tiles_.find(id);
    if (it == tiles_.end()) return {};
    it->second.lastUse = ++clock_;
    return it->second.image;
}

void RecentTiles::insert(const TileId& id, QImage image) {
    if (image.isNull()) return;
    tiles_[id] = Entry{std::move(image), ++clock_};
    trim();
}

std::optional<std::pair<TileId, QImage>> RecentTiles::nearestAncestor(const TileId& id, int minimumZoom) {
    for (int z = id.z - 1; z >= std::max(0, minimumZoom); --z) {
        const int shift = id.z - z;
        // Arithmetic shift keeps negative (unwrapped) columns in the right parent.
        const TileId parent{z, id.x >> shift, id.y >> shift};
        QImage image = find(parent);
        if (!image.isNull()) return std::pair{parent, std::move(image)};
    }
    return std::nullopt;
}

void RecentTiles::setCapacity(std::size_t capacity) {
    capacity_ = std::max<std::size_t>(capacity, 1);
    trim();
}

void RecentTiles::trim() {
    while (tiles_.size() > capacity_) {
        const auto oldest = std::min_element(tiles_.begin(), tiles_.end(), [](const auto& a, const auto& b) {
            return a.second.lastUse < b.second.lastUse;
        });
        tiles_.erase(oldest);
    }
}
