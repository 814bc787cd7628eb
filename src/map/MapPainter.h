#pragma once
// One frame of the map: where it looks (centre, fractional zoom, size) and how each layer of it
// is drawn into a painter. The widget paints with it; so can tests and benchmarks, into images.

#include "MapMath.h"
#include "MapTypes.h"
#include "MapViewDelegate.h"

#include <QPointF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <vector>

class QPainter;
class QPen;
class RecentTiles;
class TileProvider;

// A line on the map with its look, and its points projected once for a world of size 1.
struct StyledOverlay {
    std::shared_ptr<const Polyline> line;
    PolylineStyle style;
    std::vector<MapMath::WorldPoint> unitPoints;
};
StyledOverlay makeStyledOverlay(std::shared_ptr<const Polyline> line, PolylineStyle style);

// Lines drawn opaque and then faded as one by opacity: where they cross or their pieces meet they
// are no denser than anywhere else, as lines stroked each in a translucent colour would be.
struct FadedOverlays {
    std::vector<StyledOverlay> lines;
    double opacity = 1;
};

class MapPainter {
public:
    MapPainter(Coordinate center, double zoom, QSizeF size, int tileSize);

    QPointF toWidget(Coordinate coordinate) const;
    Coordinate toCoordinate(QPointF widgetPoint) const;

    // A neutral background with a light grid that moves with the map.
    void paintGrid(QPainter& painter) const;
    // The tiles under the frame; one not in memory is stood in for by the nearest lower-zoom
    // tile seen before, scaled up. Tiles of a zoom that matches the device's pixels are used.
    void paintTiles(QPainter& painter, TileProvider& provider, RecentTiles& recent) const;
    // The lines in order, each over the casings of all of them.
    void paintOverlays(QPainter& painter, const std::vector<StyledOverlay>& overlays) const;
    void paintScaleBar(QPainter& painter) const;
    void paintAttribution(QPainter& painter, const QString& attribution) const;

    Coordinate center() const { return center_; }
    double zoom() const { return zoom_; }
    QSizeF size() const { return size_; }
    int tileSize() const { return tileSize_; }
    // The world pixel (at zoom()) under the frame's top-left corner.
    QPointF topLeftWorld() const;
    // Device pixels per logical pixel of what the painter draws on.
    static double devicePixelRatio(const QPainter& painter);

    // The zoom of the tiles drawn for a device pixel ratio.
    int tileZoom(double devicePixelRatio, int minimumZoom, int maximumZoom) const;

private:
    void strokeLine(QPainter& painter, const std::vector<MapMath::WorldPoint>& unitPoints, const QPen& pen) const;

    Coordinate center_;
    double zoom_;
    QSizeF size_;
    int tileSize_;
    MapMath::WorldPoint centerWorld_;  // at zoom_
};
