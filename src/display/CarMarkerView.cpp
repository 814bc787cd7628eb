#include "CarMarkerView.h"

#include <QEvent>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {

constexpr QSizeF kCarSize(24, 40);
// The car's diagonal (46.6) rounded up to an even side, so that its centre is a whole pixel.
constexpr int kSide = 48;

}  // namespace

CarMarkerView::CarMarkerView(QWidget* parent)
    : QWidget(parent), car_(new QSvgRenderer(QStringLiteral(":/car.svg"), this)) {
    setFixedSize(kSide, kSide);
    setAccessibleName(tr("Car"));
}

void CarMarkerView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Car"));
        describeHeading();
    }
    QWidget::changeEvent(event);
}

void CarMarkerView::describeHeading() {
    setAccessibleDescription(heading_ ? tr("Heading %1°").arg(std::lround(*heading_) % 360) : QString());
}

void CarMarkerView::setHeading(std::optional<double> degrees) {
    if (degrees && !std::isfinite(*degrees)) degrees.reset();
    if (degrees) *degrees = std::fmod(*degrees, 360.0) + (*degrees < 0 ? 360.0 : 0.0);
    if (degrees == heading_) return;
    heading_ = degrees;
    describeHeading();
    update();
}

void CarMarkerView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(width() / 2.0, height() / 2.0);
    // The picture points up, which is north: the heading is the turn clockwise from it.
    painter.rotate(heading_.value_or(0));
    car_->render(&painter, QRectF(QPointF(-kCarSize.width() / 2, -kCarSize.height() / 2), kCarSize));
}
