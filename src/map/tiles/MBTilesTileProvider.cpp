#include "MBTilesTileProvider.h"

#include "MBTilesReader.h"
#include "TileSource.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <map>
#include <optional>

namespace {

struct MBTilesDescription {
    int minimumZoom = 0;
    int maximumZoom = 0;
    QString attribution;
};

std::optional<int> zoomFrom(const QString& text) {
    bool ok = false;
    const int zoom = text.trimmed().toInt(&ok);
    return ok && zoom >= 0 && zoom <= kDeepestTileZoom ? std::optional<int>(zoom) : std::nullopt;
}

std::optional<MBTilesDescription> readDescription(QSqlDatabase& database) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    // A file that is not SQLite fails here, at its first query.
    if (!query.exec(QStringLiteral(
            "SELECT 1 FROM sqlite_master WHERE name = 'tiles' AND type IN ('table', 'view')")) ||
        !query.next()) {
        return std::nullopt;
    }
    std::map<QString, QString> metadata;
    if (query.exec(QStringLiteral("SELECT name, value FROM metadata"))) {
        while (query.next()) {
            metadata[query.value(0).toString()] = query.value(1).toString();
        }
    }
    if (metadata[QStringLiteral("format")].compare(QLatin1String("pbf"), Qt::CaseInsensitive) == 0) {
        return std::nullopt;  // Vector tiles: nothing here can draw them.
    }
    std::optional<int> minimum = zoomFrom(metadata[QStringLiteral("minzoom")]);
    std::optional<int> maximum = zoomFrom(metadata[QStringLiteral("maxzoom")]);
    if (!minimum || !maximum) {
        if (!query.exec(QStringLiteral("SELECT MIN(zoom_level), MAX(zoom_level) FROM tiles")) || !query.next() ||
            query.value(0).isNull()) {
            return std::nullopt;  // No tiles at all.
        }
        minimum = std::clamp(query.value(0).toInt(), 0, kDeepestTileZoom);
        maximum = std::clamp(query.value(1).toInt(), 0, kDeepestTileZoom);
    }
    if (*minimum > *maximum) {
        std::swap(minimum, maximum);
    }
    return MBTilesDescription{*minimum, *maximum, metadata[QStringLiteral("attribution")]};
}

}  // namespace

MBTilesTileProvider::MBTilesTileProvider(QObject* parent) : LocalTileProvider(parent) {}

bool MBTilesTileProvider::open(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    std::optional<MBTilesDescription> description;
    const QString connectionName = uniqueMBTilesConnectionName();
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
        database.setDatabaseName(path);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        if (database.open()) {
            description = readDescription(database);
        }
        database.close();
    }
    QSqlDatabase::removeDatabase(connectionName);
    if (!description) {
        return false;
    }
    describe(description->minimumZoom, description->maximumZoom, 256, description->attribution);
    start(std::make_unique<MBTilesReader>(path));
    return true;
}
