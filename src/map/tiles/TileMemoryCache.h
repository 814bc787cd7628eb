#pragma once
// Decoded tiles kept in memory, bounded by the bytes of their pixels: the least recently used go
// first when a new tile would pass the bound.

#include "TileId.h"

#include <QCache>
#include <QImage>

class TileMemoryCache {
public:
    static constexpr qsizetype kDefaultMaximumBytes = 64 * 1024 * 1024;

    explicit TileMemoryCache(qsizetype maximumBytes = kDefaultMaximumBytes);

    // A null image is not kept. An image bigger than the whole bound is not kept either.
    void insert(const TileId& id, const QImage& image);
    // The tile, or a null image if it is not here.
    QImage image(const TileId& id) const;
    bool contains(const TileId& id) const;

    qsizetype bytesUsed() const { return tiles_.totalCost(); }
    qsizetype maximumBytes() const { return tiles_.maxCost(); }
    qsizetype tileCount() const { return tiles_.count(); }

private:
    // One number per tile: zoom, column and row packed (zoom ≤ 29 keeps each within 29 bits).
    static quint64 keyOf(const TileId& id);

    // QCache::object() marks the tile as recently used, so lookups change it.
    mutable QCache<quint64, QImage> tiles_;
};
