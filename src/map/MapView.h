#pragma once
// Our own tile map: tiles from a TileProvider, polylines over them, and markers shown by child
// widgets. Users pan by dragging, zoom with the wheel or the buttons, and see a scale bar and the
// tile source's attribution at all times.

#include "MapAnnotation.h"
#include "MapPainter.h"
#include "MapTypes.h"
#include "OverlayLayer.h"
#include "RecentTiles.h"

#include <QPointF>
#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class MapViewDelegate;
class QLabel;
class QToolButton;
class QVariantAnimation;
class TileProvider;

class MapView : public QWidget {
    Q_OBJECT

public:
    explicit MapView(QWidget* parent = nullptr);
    ~MapView() override;

    // Fits the region into the widget (the zoom of the larger of its two spans). Animated: the
    // centre and the zoom ease there in about a quarter second. While the widget is hidden the
    // region is kept, reported by region(), and fitted again when the widget is resized or shown.
    void setRegion(const CoordinateRegion& region, bool animated);
    CoordinateRegion region() const;
    // Where the coordinate is in the widget at the current camera; may lie outside the widget.
    QPointF pointForCoordinate(Coordinate coordinate) const;
    // Moves without animation and keeps the zoom.
    void setCenterCoordinate(Coordinate center);
    Coordinate centerCoordinate() const;
    double zoomLevel() const;

    void addOverlay(std::shared_ptr<const Polyline> line);
    // Lines that are not on the map are ignored.
    void removeOverlays(const std::vector<std::shared_ptr<const Polyline>>& lines);
    std::size_t overlayCount() const { return overlays_.size(); }
    // Lines drawn beneath every overlay, whichever was set first: the whole route, say, under the
    // part driven so far. Replaces the previous underlay; an empty list clears it. The lines are
    // drawn opaque and then faded together by the alpha of style.color (casing included), so the
    // line is equally faint where it crosses itself.
    void setUnderlay(std::vector<std::shared_ptr<const Polyline>> lines, PolylineStyle style);

    void addAnnotation(std::shared_ptr<MapAnnotation> annotation);
    void removeAnnotation(const std::shared_ptr<MapAnnotation>& annotation);
    // An annotation on the map has a new coordinate or title: its view moves, keeping its callout
    // open, where a removal and a new addition would close it.
    void annotationChanged(const std::shared_ptr<MapAnnotation>& annotation);
    // The widget showing an annotation on the map, or null when it is not on the map.
    QWidget* viewForAnnotation(const std::shared_ptr<MapAnnotation>& annotation) const;
    // The callout bubble of the marker clicked last; hidden until a marker is clicked.
    QLabel* callout() const { return callout_; }

    void setDelegate(MapViewDelegate* delegate) { delegate_ = delegate; }
    MapViewDelegate* delegate() const { return delegate_; }

    QString userLocationTitle() const { return userLocationTitle_; }
    void setUserLocationTitle(const QString& title) { userLocationTitle_ = title; }

    // Not owned; the map forgets a provider that is destroyed.
    void setTileProvider(TileProvider* provider);
    TileProvider* tileProvider() const { return provider_; }

    // Zooms by steps (1 = twice as large) keeping the coordinate under the given widget point.
    void zoomAbout(QPointF widgetPoint, double steps, bool animated);

signals:
    // The user asked to put the car back in the centre.
    void recenterRequested();
    // A press and release of the left button on the map itself (not on a button or a marker)
    // with no drag in between: where it was released, in widget coordinates.
    void clicked(QPointF widgetPoint);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct ShownAnnotation {
        std::shared_ptr<MapAnnotation> annotation;
        QPointer<QWidget> view;
    };

    int tileSize() const;
    int minimumZoom() const;
    int maximumZoom() const;
    MapPainter framePainter() const;
    void moveCamera(Coordinate center, double zoom);
    void animateCamera(Coordinate center, double zoom);
    void stopAnimation();
    void placeAnnotations();
    void placeCallout();
    void placeButtons();
    // The names and tooltips in the interface's language: at construction and on each change.
    void nameControls();
    void showCallout(QWidget* markerView);

    QPointer<TileProvider> provider_;
    MapViewDelegate* delegate_ = nullptr;
    QString userLocationTitle_;
    Coordinate center_;
    double zoom_ = 2;
    std::optional<CoordinateRegion> pendingRegion_;

    QVariantAnimation* animation_;
    Coordinate animationStartCenter_;
    double animationStartZoom_ = 0;
    Coordinate animationEndCenter_;
    double animationEndZoom_ = 0;

    std::vector<StyledOverlay> overlays_;
    FadedOverlays underlay_;
    std::uint64_t overlaysVersion_ = 0;  // of overlays_ and underlay_
    OverlayLayer overlayLayer_;
    std::vector<ShownAnnotation> annotations_;
    RecentTiles recentTiles_;

    QToolButton* zoomInButton_;
    QToolButton* zoomOutButton_;
    QToolButton* recenterButton_;
    QLabel* callout_;
    QPointer<QWidget> calloutMarker_;

    std::optional<QPointF> dragOrigin_;
    Coordinate dragStartCenter_;
    bool dragged_ = false;  // the press has moved too far to be a click
};
