#include "TileMemoryCache.h"

#include <memory>

TileMemoryCache::TileMemoryCache(qsizetype maximumBytes) : tiles_(maximumBytes) {}

quint64 TileMemoryCache::keyOf(const TileId& id) {
    constexpr quint64 mask = (quint64{1} << 29) - 1;
    return (quint64(id.z) << 58) | ((quint64(id.x) & mask) << 29) | (quint64(id.y) & mask);
}

void TileMemoryCache::insert(const TileId& id, const QImage& image) {
    if (image.isNull()) {
        return;
    }
    // QCache takes ownership of a heap copy and deletes it on eviction or when insert refuses it.
    auto copy = std::make_unique<QImage>(image);
    const qsizetype cost = copy->sizeInBytes();
    tiles_.insert(keyOf(id), copy.release(), cost);
}

QImage TileMemoryCache::image(const TileId& id) const {
    const QImage* found = tiles_.object(keyOf(id));
    return found ? *found : QImage();
}

bool TileMemoryCache::contains(const TileId& id) const {
    return tiles_.contains(keyOf(id));
}
