#pragma once
// A source of map tiles as listed in the shipped tile-sources.json: where its tiles are, at which
// zooms, how big, and the credit the map must show for them.

#include "TileId.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

struct TileSource {
    QString id;
    QString name;
    // {z}, {x} and {y} are replaced by the tile's numbers; http(s):// or file://.
    QString urlTemplate;
    int minZoom = 0;
    int maxZoom = 19;
    int tileSize = 256;
    QString attribution;
};

// Deepest zoom any source may claim: the tile numbers of zoom 29 still fit an int and a cache key.
inline constexpr int kDeepestTileZoom = 29;

// The sources in a tile-sources.json document. Entries without an id or a template, or with a
// zoom range or tile size that makes no sense, are left out; a document that is not JSON gives none.
std::vector<TileSource> parseTileSources(const QByteArray& json);

// The sources built into the program.
const std::vector<TileSource>& bundledTileSources();

// The bundled source with this id, if there is one.
std::optional<TileSource> findTileSource(const QString& id);

// The template with the tile's numbers put in.
QString tileUrl(const QString& urlTemplate, const TileId& id);

// Whether the tile exists in the slippy-map scheme: zoom within range, column and row on the grid.
bool isValidTileId(const TileId& id);
