#pragma once
// Makes the tile provider for the user's choice of map:
//   "<source id>"      a network source from tile-sources.json, e.g. "osm";
//   "mbtiles:<path>"   an MBTiles file;
//   "folder:<path>"    a folder of <z>/<x>/<y>.png tiles;
//   "url:<template>"   a tile server of the user's own, http(s) with {z}, {x} and {y};
//   "offline"          no tiles.
// Null for "offline", an unknown choice, or a file or folder that cannot be opened: the map then
// draws its plain grid.

#include "TileProvider.h"

#include <QString>

#include <memory>

std::unique_ptr<TileProvider> makeTileProvider(const QString& choice);
