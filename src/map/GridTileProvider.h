#pragma once
// The source of a map that works offline: no tiles at all, so the view shows its grid, the route,
// the markers and the scale bar.

#include "TileProvider.h"

class GridTileProvider : public TileProvider {
    Q_OBJECT

public:
    using TileProvider::TileProvider;

    QImage tile(const TileId& id) override;
    int minimumZoom() const override;
    int maximumZoom() const override;
    int tileSize() const override;
    QString attribution() const override;
};
