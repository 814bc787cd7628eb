#include "GridTileProvider.h"

#include "MapMath.h"

QImage GridTileProvider::tile(const TileId&) { return {}; }
int GridTileProvider::minimumZoom() const { return MapMath::kMinimumZoom; }
int GridTileProvider::maximumZoom() const { return MapMath::kMaximumZoom; }
int GridTileProvider::tileSize() const { return 256; }
QString GridTileProvider::attribution() const { return {}; }
