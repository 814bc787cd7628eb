// The memory cache stays within its bytes, dropping the tiles used longest ago.

#include "TileMemoryCache.h"

#include <gtest/gtest.h>

namespace {

QImage tileImage(int edge = 256) {
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::darkGreen);
    return image;
}

}  // namespace

TEST(TileMemoryCache, StaysWithinItsBytes) {
    TileMemoryCache cache;  // 64 MB: 256 tiles of 256 KB
    for (int i = 0; i < 400; ++i) {
        cache.insert(TileId{10, i, 7}, tileImage());
        ASSERT_LE(cache.bytesUsed(), cache.maximumBytes());
    }
    EXPECT_EQ(cache.tileCount(), 256);
    EXPECT_EQ(cache.bytesUsed(), 256 * 256 * 256 * 4);
    EXPECT_FALSE(cache.contains(TileId{10, 143, 7}));
    EXPECT_TRUE(cache.contains(TileId{10, 144, 7}));
    EXPECT_TRUE(cache.contains(TileId{10, 399, 7}));
}

TEST(TileMemoryCache, KeepsTheTilesInUse) {
    TileMemoryCache cache(4 * 256 * 256 * 4);
    for (int i = 0; i < 4; ++i) {
        cache.insert(TileId{3, i, 0}, tileImage());
    }
    EXPECT_FALSE(cache.image(TileId{3, 0, 0}).isNull());  // tile 0 is now the most recent
    cache.insert(TileId{3, 4, 0}, tileImage());
    EXPECT_TRUE(cache.contains(TileId{3, 0, 0}));
    EXPECT_FALSE(cache.contains(TileId{3, 1, 0}));
}

TEST(TileMemoryCache, TellsTilesApartByZoomColumnAndRow) {
    TileMemoryCache cache;
    const TileId ids[] = {{1, 0, 1}, {1, 1, 0}, {0, 0, 0}, {29, 0, 1}, {29, 1, 0}, {28, 1, 0}};
    for (int i = 0; i < int(std::size(ids)); ++i) {
        QImage image = tileImage(16);
        image.fill(QColor(i * 30, 0, 0));
        cache.insert(ids[i], image);
    }
    for (int i = 0; i < int(std::size(ids)); ++i) {
        EXPECT_EQ(cache.image(ids[i]).pixelColor(0, 0), QColor(i * 30, 0, 0)) << i;
    }
    EXPECT_TRUE(cache.image(TileId{2, 0, 1}).isNull());
}

TEST(TileMemoryCache, RefusesNullAndOversizedImages) {
    TileMemoryCache cache(1000);
    cache.insert(TileId{1, 0, 0}, QImage());
    cache.insert(TileId{1, 1, 0}, tileImage());
    EXPECT_EQ(cache.tileCount(), 0);
    EXPECT_EQ(cache.bytesUsed(), 0);
}
