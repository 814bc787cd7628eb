#pragma once
// Makes the tile provider for the user's choice of map:
//   "<source id>"      a network source from tile-sources.json, e.g. "osm";
//   "mbtiles:<path>"   an MBTiles file;
//   "folder:<path>"    a folder of <z>/<x>/<y>.png tiles;
//   "url:<template>"   a tile server of the user's own, as checkTileUrlTemplate accepts;
//   "offline"          no tiles.
// Null for "offline", an unknown choice, or a file or folder that cannot be opened: the map then
// draws its plain grid.

#include "NetworkTileProvider.h"
#include "TileProvider.h"

#include <QString>
#include <QtGlobal>

#include <memory>

// diskCacheBytes bounds a network source's HTTP disk cache.
std::unique_ptr<TileProvider> makeTileProvider(const QString& choice,
                                               qint64 diskCacheBytes = NetworkTileProvider::kDiskCacheBytes);
