// MBTiles files and tile folders made by the tests, files that are no such thing, and the choice of
// provider by name.

#include "FolderTileProvider.h"
#include "MBTilesTileProvider.h"
#include "TileProviderFactory.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

#include <map>

namespace {

QByteArray pngOf(const QColor& color) {
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// Writes an MBTiles file: tiles keyed by (zoom, column, row as stored), metadata as given.
void writeMBTiles(const QString& path, const std::map<TileId, QColor>& storedTiles,
                  const std::map<QString, QString>& metadata) {
    const QString name = QStringLiteral("test-writer");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
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
            query.addBindValue(stored.z);
            query.addBindValue(stored.x);
            query.addBindValue(stored.y);
            query.addBindValue(pngOf(color));
            ASSERT_TRUE(query.exec());
        }
        database.close();
    }
    QSqlDatabase::removeDatabase(name);
}

QImage fetch(TileProvider& provider, const TileId& id) {
    QSignalSpy ready(&provider, &TileProvider::tileReady);
    QImage image = provider.tile(id);
    while (image.isNull() && ready.wait()) {
        image = provider.tile(id);
    }
    return image;
}

}  // namespace

TEST(MBTilesTileProvider, ReadsTilesWithTheirRowsFlipped) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("town.mbtiles"));
    // Stored rows count from the south: at zoom 2, row 3 is the northernmost (y = 0).
    writeMBTiles(path,
                 {{{2, 1, 3}, Qt::red}, {{2, 1, 0}, Qt::blue}, {{3, 5, 5}, Qt::green}, {{0, 0, 0}, Qt::yellow},
                  {{4, 0, 15}, Qt::red}, {{1, 0, 0}, Qt::cyan}},
                 {{QStringLiteral("minzoom"), QStringLiteral("0")},
                  {QStringLiteral("maxzoom"), QStringLiteral("3")},
                  {QStringLiteral("attribution"), QStringLiteral("Town survey")}});
    MBTilesTileProvider provider;
    ASSERT_TRUE(provider.open(path));
    EXPECT_EQ(provider.minimumZoom(), 0);
    EXPECT_EQ(provider.maximumZoom(), 3);
    EXPECT_EQ(provider.attribution(), QStringLiteral("Town survey"));

    const std::pair<TileId, QColor> expected[] = {
        {{2, 1, 0}, Qt::red}, {{2, 1, 3}, Qt::blue}, {{3, 5, 2}, Qt::green}, {{0, 0, 0}, Qt::yellow}};
    for (const auto& [id, color] : expected) {
        const QImage image = fetch(provider, id);
        ASSERT_FALSE(image.isNull()) << id.z << "/" << id.x << "/" << id.y;
        EXPECT_EQ(image.pixelColor(10, 10), QColor(color)) << id.z << "/" << id.x << "/" << id.y;
    }
    // Beyond the file's stated zooms nothing is read, though the file holds that tile.
    EXPECT_TRUE(provider.tile(TileId{4, 0, 0}).isNull());
    EXPECT_FALSE(fetch(provider, TileId{1, 0, 1}).isNull());  // read after it, were it read
    EXPECT_TRUE(provider.tile(TileId{4, 0, 0}).isNull());
}

TEST(MBTilesTileProvider, TakesTheZoomsFromTheTilesWithoutMetadata) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bare.mbtiles"));
    writeMBTiles(path, {{{4, 1, 1}, Qt::red}, {{9, 1, 1}, Qt::red}},
                 {{QStringLiteral("minzoom"), QStringLiteral("lots")}});
    MBTilesTileProvider provider;
    ASSERT_TRUE(provider.open(path));
    EXPECT_EQ(provider.minimumZoom(), 4);
    EXPECT_EQ(provider.maximumZoom(), 9);
    EXPECT_TRUE(provider.attribution().isEmpty());
}

TEST(MBTilesTileProvider, FailsCleanlyOnFilesThatAreNotMBTiles) {
    QTemporaryDir dir;
    struct Case {
        const char* name;
        QByteArray contents;
    };
    const Case cases[] = {
        {"text.mbtiles", "this is not a database, just some words\n"},
        {"empty.mbtiles", ""},
        {"png.mbtiles", pngOf(Qt::red)},
        {"truncated.mbtiles", QByteArray("SQLite format 3\0", 16) + QByteArray(50, '\xff')},
    };
    for (const Case& c : cases) {
        const QString path = dir.filePath(QString::fromLatin1(c.name));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(c.contents);
        file.close();
        MBTilesTileProvider provider;
        EXPECT_FALSE(provider.open(path)) << c.name;
        EXPECT_TRUE(provider.tile(TileId{0, 0, 0}).isNull()) << c.name;
        QFile after(path);
        ASSERT_TRUE(after.open(QIODevice::ReadOnly));
        EXPECT_EQ(after.readAll(), c.contents) << c.name << " was changed";
    }

    const QString vector = dir.filePath(QStringLiteral("vector.mbtiles"));
    writeMBTiles(vector, {{{0, 0, 0}, Qt::red}}, {{QStringLiteral("format"), QStringLiteral("pbf")}});
    const QString noTiles = dir.filePath(QStringLiteral("none.mbtiles"));
    writeMBTiles(noTiles, {}, {});
    const QString missing = dir.filePath(QStringLiteral("missing.mbtiles"));
    for (const QString& path : {vector, noTiles, missing, dir.path()}) {
        MBTilesTileProvider provider;
        EXPECT_FALSE(provider.open(path)) << path.toStdString();
    }
    EXPECT_FALSE(QFile::exists(missing));
}

TEST(FolderTileProvider, ReadsTilesFromZoomFolders) {
    QTemporaryDir dir;
    const std::pair<TileId, QColor> tiles[] = {{{3, 2, 1}, Qt::red}, {{5, 30, 4}, Qt::blue}};
    for (const auto& [id, color] : tiles) {
        const QString folder = dir.filePath(QStringLiteral("%1/%2").arg(id.z).arg(id.x));
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(folder + QStringLiteral("/%1.png").arg(id.y));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(pngOf(color));
    }
    ASSERT_TRUE(QDir().mkpath(dir.filePath(QStringLiteral("notazoom"))));
    QFile credit(dir.filePath(QStringLiteral("attribution.txt")));
    ASSERT_TRUE(credit.open(QIODevice::WriteOnly));
    credit.write("Our own survey\n");
    credit.close();

    FolderTileProvider provider;
    ASSERT_TRUE(provider.open(dir.path()));
    EXPECT_EQ(provider.minimumZoom(), 3);
    EXPECT_EQ(provider.maximumZoom(), 5);
    EXPECT_EQ(provider.attribution(), QStringLiteral("Our own survey"));
    for (const auto& [id, color] : tiles) {
        const QImage image = fetch(provider, id);
        ASSERT_FALSE(image.isNull());
        EXPECT_EQ(image.pixelColor(0, 0), QColor(color));
    }
}

TEST(FolderTileProvider, RefusesFoldersWithoutZooms) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir().mkpath(dir.filePath(QStringLiteral("maps"))));
    FolderTileProvider provider;
    EXPECT_FALSE(provider.open(dir.path()));
    EXPECT_FALSE(provider.open(dir.filePath(QStringLiteral("nothing-here"))));
    EXPECT_FALSE(provider.open(QString()));
}

TEST(TileProviderFactory, MakesTheProviderTheChoiceNames) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir().mkpath(dir.filePath(QStringLiteral("tiles/0/0"))));
    const QString mbtiles = dir.filePath(QStringLiteral("a.mbtiles"));
    writeMBTiles(mbtiles, {{{0, 0, 0}, Qt::red}}, {});

    struct Case {
        QString choice;
        bool made;
    };
    const Case cases[] = {
        {QStringLiteral("offline"), false},
        {QStringLiteral(""), false},
        {QStringLiteral("nosuchsource"), false},
        {QStringLiteral("mbtiles:") + mbtiles, true},
        {QStringLiteral("mbtiles:") + dir.filePath(QStringLiteral("missing.mbtiles")), false},
        {QStringLiteral("folder:") + dir.filePath(QStringLiteral("tiles")), true},
        {QStringLiteral("folder:") + dir.filePath(QStringLiteral("missing")), false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(makeTileProvider(c.choice) != nullptr, c.made) << c.choice.toStdString();
    }
    // Made, never asked for a tile: nothing goes to the real server.
    const std::unique_ptr<TileProvider> osm = makeTileProvider(QStringLiteral("osm"));
    ASSERT_TRUE(osm);
    EXPECT_EQ(osm->attribution(), QStringLiteral("© OpenStreetMap contributors"));
    EXPECT_EQ(osm->maximumZoom(), 19);
}
