#pragma once
// The car on the map: resources/car.svg (a car seen from above, nose up) turned about its centre
// to the car's heading. Square and large enough for the car at any angle, so the map, which
// centres a marker's view on its coordinate, keeps the car's centre there whichever way it faces.
//
// The controller's MapViewDelegate makes it in viewForAnnotation with the annotation's heading,
// and in refreshViewForAnnotation (called by MapView::annotationChanged) sets the new one: the
// controller only updates MapAnnotation::heading and calls annotationChanged, as it does for a move.

#include <QWidget>

#include <optional>

class QSvgRenderer;

class CarMarkerView : public QWidget {
    Q_OBJECT

public:
    explicit CarMarkerView(QWidget* parent = nullptr);

    // Degrees clockwise from north; absent or not a number faces north.
    void setHeading(std::optional<double> degrees);
    std::optional<double> heading() const { return heading_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void describeHeading();

    QSvgRenderer* car_;
    std::optional<double> heading_;
};
