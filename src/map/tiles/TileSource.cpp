#include "TileSource.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

std::optional<TileSource> parseSource(const QJsonObject& object) {
    TileSource source;
    source.id = object.value(QStringLiteral("id")).toString();
    source.name = object.value(QStringLiteral("name")).toString(source.id);
    source.urlTemplate = object.value(QStringLiteral("urlTemplate")).toString();
    source.minZoom = object.value(QStringLiteral("minZoom")).toInt(0);
    source.maxZoom = object.value(QStringLiteral("maxZoom")).toInt(19);
    source.tileSize = object.value(QStringLiteral("tileSize")).toInt(256);
    source.attribution = object.value(QStringLiteral("attribution")).toString();
    const bool zoomsMakeSense = source.minZoom >= 0 && source.maxZoom <= kDeepestTileZoom &&
                                source.minZoom <= source.maxZoom;
    const bool sizeMakesSense = source.tileSize >= 16 && source.tileSize <= 4096;
    if (source.id.isEmpty() || source.urlTemplate.isEmpty() || !zoomsMakeSense || !sizeMakesSense) {
        return std::nullopt;
    }
    return source;
}

}  // namespace

std::vector<TileSource> parseTileSources(const QByteArray& json) {
    std::vector<TileSource> sources;
    const QJsonArray entries = QJsonDocument::fromJson(json).object().value(QStringLiteral("sources")).toArray();
    for (const QJsonValue& entry : entries) {
        if (auto source = parseSource(entry.toObject())) {
            sources.push_back(std::move(*source));
        }
    }
    return sources;
}

const std::vector<TileSource>& bundledTileSources() {
    static const std::vector<TileSource> sources = [] {
        QFile file(QStringLiteral(":/map/tile-sources.json"));
        return file.open(QIODevice::ReadOnly) ? parseTileSources(file.readAll()) : std::vector<TileSource>{};
    }();
    return sources;
}

std::optional<TileSource> findTileSource(const QString& id) {
    for (const TileSource& source : bundledTileSources()) {
        if (source.id == id) {
            return source;
        }
    }
    return std::nullopt;
}

QString tileUrl(const QString& urlTemplate, const TileId& id) {
    QString url = urlTemplate;
    url.replace(QLatin1String("{z}"), QString::number(id.z));
    url.replace(QLatin1String("{x}"), QString::number(id.x));
    url.replace(QLatin1String("{y}"), QString::number(id.y));
    return url;
}

bool isValidTileId(const TileId& id) {
    if (id.z < 0 || id.z > kDeepestTileZoom) {
        return false;
    }
    const int tilesAlongEdge = 1 << id.z;
    return id.x >= 0 && id.x < tilesAlongEdge && id.y >= 0 && id.y < tilesAlongEdge;
}
