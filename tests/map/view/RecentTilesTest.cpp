#include "RecentTiles.h"

#include <gtest/gtest.h>

namespace {
QImage image(QColor color) {
    QImage result(4, 4, QImage::Format_RGB32);
    result.fill(color);
    return result;
}
}  // namespace

TEST(RecentTiles, DropsTheLeastRecentlyUsed) {
    RecentTiles tiles(2);
    tiles.insert({1, 0, 0}, image(Qt::red));
    tiles.insert({1, 1, 0}, image(Qt::green));
    EXPECT_FALSE(tiles.find({1, 0, 0}).isNull());  // now the newer of the two
    tiles.insert({1, 1, 1}, image(Qt::blue));
    EXPECT_EQ(tiles.size(), 2u);
    EXPECT_FALSE(tiles.find({1, 0, 0}).isNull());
    EXPECT_TRUE(tiles.find({1, 1, 0}).isNull());
    tiles.insert({2, 0, 0}, QImage());
    EXPECT_EQ(tiles.size(), 2u);
}

TEST(RecentTiles, FindsTheNearestAncestor) {
    RecentTiles tiles;
    tiles.insert({0, 0, 0}, image(Qt::red));
    tiles.insert({2, 3, 1}, image(Qt::green));
    const struct {
        TileId id;
        int minimumZoom;
        std::optional<TileId> ancestor;
    } cases[] = {
        {{3, 7, 3}, 0, TileId{2, 3, 1}}, {{4, 14, 6}, 0, TileId{2, 3, 1}}, {{3, 0, 0}, 0, TileId{0, 0, 0}},
        {{3, 0, 0}, 1, std::nullopt},    {{2, 3, 1}, 0, TileId{0, 0, 0}},  // itself is not its own ancestor
        {{0, 0, 0}, 0, std::nullopt},
    };
    for (const auto& c : cases) {
        const auto found = tiles.nearestAncestor(c.id, c.minimumZoom);
        ASSERT_EQ(found.has_value(), c.ancestor.has_value()) << c.id.z << "/" << c.id.x << "/" << c.id.y;
        if (found) {
            EXPECT_EQ(found->first, *c.ancestor);
        }
    }
}
