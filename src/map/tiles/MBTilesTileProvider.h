#pragma once
// Tiles from an MBTiles file, for maps without a network. The file is looked at once in open();
// its tiles are then read on a thread of their own.

#include "LocalTileProvider.h"

#include <QString>

class MBTilesTileProvider : public LocalTileProvider {
    Q_OBJECT

public:
    explicit MBTilesTileProvider(QObject* parent = nullptr);

    // False, and no tiles, for a file that is missing, not SQLite, has no tiles table, or holds
    // vector tiles. Zooms and credit come from its metadata, else from its tiles.
    bool open(const QString& path);
};
