#include "FolderTileProvider.h"
#include "MBTilesTileProvider.h"
#include "TileProviderFactory.h"
#include "TileTestSupport.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

#include <map>

namespace {

// An MBTiles file with tiles keyed by (zoom, column, row as stored) and the given metadata.
void writeMBTiles(const QString& path, const std::map<TileId, QColor>& storedTiles,
                  const std::map<QString, QString>& metadata) {
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("writer"));
        database.setDatabaseName(path);
        ASSERT_TRUE(database.open());
        QSqlQuery query(database);
        ASSERT_TRUE(query.exec(QStringLiteral("CREATE TABLE metadata (name TEXT, value TEXT)")));
        ASSERT_TRUE(query.exec(QStringLiteral(
            "CREATE TABLE tiles (zoom_level INTEGER, tile_column INTEGER, tile_row INTEGER, tile_data BLOB)")));
        for (const auto& [key, value] : metadata) {
            query.prepare(QStringLiteral("INSERT INTO metadata VALUES (?, ?)"));
            query.addBindValue(key);
            query.addBindValue(value);
            ASSERT_TRUE(query.exec());
        }
        for (const auto& [stored, color] : storedTiles) {
            query.prepare(QStringLiteral("INSERT INTO tiles VALUES (?, ?, ?, ?)"));
            for (const QVariant& value :
                 {QVariant(stored.z), QVariant(stored.x), QVariant(stored.y), QVariant(pngOf(color))})
                query.addBindValue(value);
            ASSERT_TRUE(query.exec());
        }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("writer"));
}

}  // namespace

TEST(MBTilesTileProvider, ReadsTilesWithTheirRowsFlipped) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("town.mbtiles"));
    // Stored rows count from the south: at zoom 2, row 3 is the northernmost (y = 0).
    writeMBTiles(path,
                 {{{2, 1, 3}, Qt::red},
                  {{2, 1, 0}, Qt::blue},
                  {{3, 5, 5}, Qt::green},
                  {{0, 0, 0}, Qt::yellow},
                  {{4, 0, 15}, Qt::red},
                  {{1, 0, 0}, Qt::cyan}},
                 {{"minzoom", "0"}, {"maxzoom", "3"}, {"attribution", "Town survey"}});
    MBTilesTileProvider provider;
    ASSERT_TRUE(provider.open(path));
    EXPECT_EQ(std::pair(provider.minimumZoom(), provider.maximumZoom()), std::pair(0, 3));
    EXPECT_EQ(provider.attribution(), QStringLiteral("Town survey"));

    const std::pair<TileId, QColor> expected[] = {
        {{2, 1, 0}, Qt::red}, {{2, 1, 3}, Qt::blue}, {{3, 5, 2}, Qt::green}, {{0, 0, 0}, Qt::yellow}};
    for (const auto& [id, color] : expected)
        EXPECT_EQ(fetchTile(provider, id).pixelColor(10, 10), QColor(color)) << id.z << "/" << id.x << "/" << id.y;
    // Beyond the file's stated zooms nothing is read, though the file holds that tile.
    EXPECT_TRUE(provider.tile(TileId{4, 0, 0}).isNull());
    EXPECT_FALSE(fetchTile(provider, TileId{1, 0, 1}).isNull());  // read after it, were it read
    EXPECT_TRUE(provider.tile(TileId{4, 0, 0}).isNull());

    // Without usable zooms in the metadata the tiles give them.
    const QString bare = dir.filePath(QStringLiteral("bare.mbtiles"));
    writeMBTiles(bare, {{{4, 1, 1}, Qt::red}, {{9, 1, 1}, Qt::red}}, {{"minzoom", "lots"}});
    MBTilesTileProvider fromTiles;
    ASSERT_TRUE(fromTiles.open(bare));
    EXPECT_EQ(std::pair(fromTiles.minimumZoom(), fromTiles.maximumZoom()), std::pair(4, 9));
}

TEST(MBTilesTileProvider, FailsCleanlyOnFilesThatAreNotMBTiles) {
    QTemporaryDir dir;
    const std::pair<const char*, QByteArray> files[] = {
        {"text.mbtiles", "this is not a database, just some words\n"},
        {"empty.mbtiles", ""},
        {"truncated.mbtiles", QByteArray("SQLite format 3\0", 16) + QByteArray(50, '\xff')},
    };
    for (const auto& [name, contents] : files) {
        QFile file(dir.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();
        MBTilesTileProvider provider;
        EXPECT_FALSE(provider.open(file.fileName())) << name;
        EXPECT_TRUE(provider.tile(TileId{0, 0, 0}).isNull()) << name;
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), contents) << name << " was changed";
    }
    const QString vector = dir.filePath(QStringLiteral("vector.mbtiles"));
    writeMBTiles(vector, {{{0, 0, 0}, Qt::red}}, {{"format", "pbf"}});
    const QString noTiles = dir.filePath(QStringLiteral("none.mbtiles"));
    writeMBTiles(noTiles, {}, {});
    for (const QString& path : {vector, noTiles, dir.path()}) {
        MBTilesTileProvider provider;
        EXPECT_FALSE(provider.open(path)) << path.toStdString();
    }
}

TEST(FolderTileProvider, ReadsTilesFromZoomFolders) {
    QTemporaryDir dir;
    const std::pair<TileId, QColor> tiles[] = {{{3, 2, 1}, Qt::red}, {{5, 30, 4}, Qt::blue}};
    for (const auto& [id, color] : tiles) {
        ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("%1/%2").arg(id.z).arg(id.x)));
        QFile file(dir.filePath(QStringLiteral("%1/%2/%3.png").arg(id.z).arg(id.x).arg(id.y)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(pngOf(color));
    }
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("notazoom")));
    FolderTileProvider provider;
    ASSERT_TRUE(provider.open(dir.path()));
    EXPECT_EQ(std::pair(provider.minimumZoom(), provider.maximumZoom()), std::pair(3, 5));
    for (const auto& [id, color] : tiles) EXPECT_EQ(fetchTile(provider, id).pixelColor(0, 0), QColor(color));
}

TEST(TileProviderFactory, MakesTheProviderTheChoiceNames) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("tiles/0/0")));
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("nozooms/maps")));
    writeMBTiles(dir.filePath(QStringLiteral("a.mbtiles")), {{{0, 0, 0}, Qt::red}}, {});
    const std::pair<QString, bool> cases[] = {
        {"offline", false},
        {"osm", true},  // made, never asked for a tile: nothing goes to the real server
        {"mbtiles:" + dir.filePath("a.mbtiles"), true},
        {"mbtiles:" + dir.filePath("missing.mbtiles"), false},
        {"folder:" + dir.filePath("tiles"), true},
        {"folder:" + dir.filePath("nozooms"), false},
        {"url:http://127.0.0.1:9/{z}/{x}/{y}.png", true},
        {"url:file:///etc/{z}/{x}/{y}.png", false},  // files go through folder:, with their checks
        {"url:", false},
    };
    for (const auto& [choice, made] : cases)
        EXPECT_EQ(makeTileProvider(choice) != nullptr, made) << choice.toStdString();
    EXPECT_FALSE(QFile::exists(dir.filePath("missing.mbtiles")));
}
