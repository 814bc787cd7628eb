#pragma once
// What the map asks of its owner: the widget that shows a marker and the look of a line. The
// defaults leave both to the map (a red dot, a blue line 2 points wide).

#include "MapAnnotation.h"
#include "MapTypes.h"

#include <QColor>

#include <optional>

class MapView;
class QWidget;

struct PolylineStyle {
    QColor color;
    double lineWidth = 2;
    // A darker edge that keeps a light line readable on light tiles: a stroke casingWidth wider
    // on each side, drawn under every line of its layer. None when the width is 0.
    QColor casingColor = {};
    double casingWidth = 0;
};

class MapViewDelegate {
public:
    virtual ~MapViewDelegate() = default;

    // Asked once each time the annotation is added; the map takes ownership of the widget.
    virtual QWidget* viewForAnnotation(MapView& map, const MapAnnotation& annotation) {
        (void)map;
        (void)annotation;
        return nullptr;
    }
    // The annotation's view is on the map and the annotation has changed (see
    // MapView::annotationChanged): the view shows what is new, e.g. the heading.
    virtual void refreshViewForAnnotation(MapView& map, const MapAnnotation& annotation, QWidget& view) {
        (void)map;
        (void)annotation;
        (void)view;
    }
    // Asked once each time the line is added.
    virtual std::optional<PolylineStyle> rendererForOverlay(MapView& map, const Polyline& line) {
        (void)map;
        (void)line;
        return {};
    }
};
