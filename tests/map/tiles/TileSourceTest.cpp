// The tile source list, URL templates, tile numbers and the MBTiles row numbering.

#include "MBTilesReader.h"
#include "TileSource.h"

#include <gtest/gtest.h>

TEST(TileUrl, PutsTheTileNumbersIntoTheTemplate) {
    struct Case {
        const char* urlTemplate;
        TileId id;
        const char* expected;
    };
    const Case cases[] = {
        {"https://tile.openstreetmap.org/{z}/{x}/{y}.png", {0, 0, 0}, "https://tile.openstreetmap.org/0/0/0.png"},
        {"https://tile.openstreetmap.org/{z}/{x}/{y}.png", {19, 274000, 179000},
         "https://tile.openstreetmap.org/19/274000/179000.png"},
        {"http://h/{x}/{y}/{z}", {3, 1, 2}, "http://h/1/2/3"},
        {"http://h/{z}-{z}/{y}.png", {5, 7, 9}, "http://h/5-5/9.png"},
        {"file:///maps/town/{z}/{x}/{y}.png", {12, 2200, 1343}, "file:///maps/town/12/2200/1343.png"},
        {"http://h/static.png", {4, 1, 1}, "http://h/static.png"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(tileUrl(QString::fromUtf8(c.urlTemplate), c.id), QString::fromUtf8(c.expected)) << c.urlTemplate;
    }
}

TEST(TileId, OnlyTilesOnTheGridAreValid) {
    struct Case {
        TileId id;
        bool valid;
    };
    const Case cases[] = {
        {{0, 0, 0}, true},   {{0, 1, 0}, false},          {{0, 0, 1}, false},
        {{1, 1, 1}, true},   {{1, 2, 0}, false},          {{3, -1, 0}, false},
        {{3, 0, -1}, false}, {{-1, 0, 0}, false},         {{29, (1 << 29) - 1, 0}, true},
        {{30, 0, 0}, false}, {{19, 524287, 524287}, true}, {{19, 524288, 0}, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(isValidTileId(c.id), c.valid) << c.id.z << "/" << c.id.x << "/" << c.id.y;
    }
}

TEST(MBTilesRow, CountsRowsFromTheSouth) {
    struct Case {
        TileId id;
        int row;
    };
    const Case cases[] = {
        {{0, 0, 0}, 0}, {{1, 0, 0}, 1}, {{1, 0, 1}, 0}, {{2, 3, 0}, 3}, {{2, 0, 3}, 0}, {{3, 5, 2}, 5},
        {{18, 0, 0}, 262143}, {{29, 0, (1 << 29) - 1}, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(mbtilesRowOf(c.id), c.row) << c.id.z << "/" << c.id.y;
    }
}

TEST(TileSources, TheBundledListHasOpenStreetMap) {
    const std::optional<TileSource> osm = findTileSource(QStringLiteral("osm"));
    ASSERT_TRUE(osm);
    EXPECT_EQ(osm->urlTemplate, QStringLiteral("https://tile.openstreetmap.org/{z}/{x}/{y}.png"));
    EXPECT_EQ(osm->minZoom, 0);
    EXPECT_EQ(osm->maxZoom, 19);
    EXPECT_EQ(osm->tileSize, 256);
    EXPECT_EQ(osm->attribution, QStringLiteral("© OpenStreetMap contributors"));
    EXPECT_FALSE(findTileSource(QStringLiteral("nowhere")));
}

TEST(TileSources, EntriesThatMakeNoSenseAreLeftOut) {
    struct Case {
        const char* json;
        std::vector<QString> ids;
    };
    const Case cases[] = {
        {R"({"sources":[{"id":"a","urlTemplate":"http://a/{z}/{x}/{y}.png"}]})", {"a"}},
        {R"({"sources":[{"urlTemplate":"http://a/{z}/{x}/{y}.png"}]})", {}},
        {R"({"sources":[{"id":"a"}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","minZoom":5,"maxZoom":4}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","minZoom":-1}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","maxZoom":30}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","tileSize":0}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u","tileSize":100000}]})", {}},
        {R"({"sources":[{"id":"a","urlTemplate":"u"},42,{"id":"b","urlTemplate":"v"}]})", {"a", "b"}},
        {R"({"sources":{"id":"a"}})", {}},
        {R"([1,2,3])", {}},
        {"not json at all", {}},
        {"", {}},
    };
    for (const Case& c : cases) {
        std::vector<QString> ids;
        for (const TileSource& source : parseTileSources(QByteArray(c.json))) {
            ids.push_back(source.id);
        }
        EXPECT_EQ(ids, c.ids) << c.json;
    }
}

TEST(TileSources, MissingFieldsTakeTheUsualValues) {
    const std::vector<TileSource> sources =
        parseTileSources(R"({"sources":[{"id":"a","urlTemplate":"http://a/{z}/{x}/{y}.png"}]})");
    ASSERT_EQ(sources.size(), 1u);
    EXPECT_EQ(sources[0].name, QStringLiteral("a"));
    EXPECT_EQ(sources[0].minZoom, 0);
    EXPECT_EQ(sources[0].maxZoom, 19);
    EXPECT_EQ(sources[0].tileSize, 256);
}
