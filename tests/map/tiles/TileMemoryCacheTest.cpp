// The memory cache stays within its bytes, dropping the tiles stored longest ago.

#include "TileMemoryCache.h"

#include <gtest/gtest.h>

namespace {

QImage tileImage() {
    QImage image(256, 256, QImage::Format_ARGB32_Premultiplied);
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
    EXPECT_FALSE(cache.contains(TileId{10, 143, 7}));
    EXPECT_TRUE(cache.contains(TileId{10, 144, 7}));
}
