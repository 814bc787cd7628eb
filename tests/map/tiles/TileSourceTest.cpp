#include "MBTilesReader.h"
#include "TileSource.h"

#include <gtest/gtest.h>

TEST(TileNumbers, GridAndMBTilesRows) {
    const struct {
        TileId id;
        bool valid;
        int mbtilesRow;
    } cases[] = {
        {{0, 0, 0}, true, 0},   {{1, 0, 0}, true, 1},   {{3, 5, 2}, true, 5},   {{29, 0, (1 << 29) - 1}, true, 0},
        {{1, 2, 0}, false, 0},  {{3, -1, 0}, false, 0}, {{3, 0, -1}, false, 0}, {{-1, 0, 0}, false, 0},
        {{30, 0, 0}, false, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isValidTileId(c.id), c.valid) << c.id.z << "/" << c.id.x << "/" << c.id.y;
        if (c.valid) {
            EXPECT_EQ(mbtilesRowOf(c.id), c.mbtilesRow) << c.id.z << "/" << c.id.y;
        }
    }
}

TEST(TileSources, EntriesThatMakeNoSenseAreLeftOut) {
    const struct {
        const char* json;
        std::vector<QString> ids;
    } cases[] = {
        {R"({"sources":[{"id":"a","urlTemplate":"u"},42,{"id":"b","urlTemplate":"v"}]})", {"a", "b"}},
        {R"({"sources":[{"urlTemplate":"u"},{"id":"a"}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","minZoom":5,"maxZoom":4}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","maxZoom":30}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","tileSize":0}]})", {}},
        {R"({"sources":{"id":"a"}})", {}},
        {"not json at all", {}},
    };
    for (const auto& c : cases) {
        std::vector<QString> ids;
        for (const TileSource& source : parseTileSources(QByteArray(c.json))) ids.push_back(source.id);
        EXPECT_EQ(ids, c.ids) << c.json;
    }
}
