#pragma once
// Where the map's tiles come from: the network, an MBTiles file, a folder, or nowhere. Never waits:
// a tile not in memory yet is fetched in the background and announced by tileReady.

#include "TileId.h"

#include <QImage>
#include <QObject>
#include <QString>

class TileProvider : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // The tile if it is in memory now; otherwise a null image, and the tile is fetched (once, however
    // often it is asked for) unless it is known to be missing.
    virtual QImage tile(const TileId& id) = 0;
    virtual int minimumZoom() const = 0;
    virtual int maximumZoom() const = 0;
    // Pixels along a tile's edge, usually 256.
    virtual int tileSize() const = 0;
    // Shown on the map at all times, e.g. "© OpenStreetMap contributors".
    virtual QString attribution() const = 0;

signals:
    void tileReady(TileId id);
};
