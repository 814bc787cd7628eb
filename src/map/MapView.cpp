#include "MapView.h"

#include "MapMath.h"
#include "MapViewDelegate.h"
#include "TileProvider.h"

#include <QEasingCurve>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <QVariantAnimation>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kAnimationMilliseconds = 250;
constexpr int kFallbackTileSize = 256;
constexpr double kWheelStepsPerNotch = 0.5;
// A press that moves no further than this is still a click: hands shake.
constexpr double kClickSlop = 4;

QWidget* makeDefaultMarker() {
    auto* dot = new QLabel;
    QPixmap pixmap(14, 14);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(QColor(220, 30, 30));
    painter.drawEllipse(QRectF(1, 1, 12, 12));
    painter.end();
    dot->setPixmap(pixmap);
    dot->setFixedSize(pixmap.size());
    return dot;
}

void nameButton(QToolButton* button, const QString& name) {
    button->setAccessibleName(name);
    button->setToolTip(name);
}

QToolButton* makeButton(QWidget* parent, const QString& text) {
    auto* button = new QToolButton(parent);
    button->setText(text);
    button->setFixedSize(26, 26);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

Coordinate lerp(Coordinate a, Coordinate b, double t, int tileSize) {
    // Along a straight line on the map, not in degrees: what the eye expects of a glide.
    const MapMath::WorldPoint pa = MapMath::project(a, 0, tileSize);
    const MapMath::WorldPoint pb = MapMath::project(b, 0, tileSize);
    return MapMath::unproject({pa.x + (pb.x - pa.x) * t, pa.y + (pb.y - pa.y) * t}, 0, tileSize);
}

bool isUsable(Coordinate c) {
    return std::isfinite(c.latitude) && std::isfinite(c.longitude);
}

}  // namespace

MapView::MapView(QWidget* parent)
    : QWidget(parent), animation_(new QVariantAnimation(this)),
      zoomInButton_(makeButton(this, QStringLiteral("+"))),
      zoomOutButton_(makeButton(this, QStringLiteral("\u2212"))),
      recenterButton_(makeButton(this, QStringLiteral("\u25CE"))),
      callout_(new QLabel(this)) {
    nameControls();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(120, 90);

    animation_->setDuration(kAnimationMilliseconds);
    animation_->setStartValue(0.0);
    animation_->setEndValue(1.0);
    animation_->setEasingCurve(QEasingCurve::InOutCubic);
    connect(animation_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        const double t = value.toDouble();
        moveCamera(lerp(animationStartCenter_, animationEndCenter_, t, tileSize()),
                   animationStartZoom_ + (animationEndZoom_ - animationStartZoom_) * t);
    });

    connect(zoomInButton_, &QToolButton::clicked, this, [this] { zoomAbout(rect().center(), 1, true); });
    connect(zoomOutButton_, &QToolButton::clicked, this, [this] { zoomAbout(rect().center(), -1, true); });
    connect(recenterButton_, &QToolButton::clicked, this, [this] {
        if (!annotations_.empty()) setCenterCoordinate(annotations_.front().annotation->coordinate);
        emit recenterRequested();
    });

    callout_->setStyleSheet(QStringLiteral(
        "QLabel { background: white; color: black; border: 1px solid #999; border-radius: 6px; padding: 3px 8px; }"));
    callout_->hide();
    placeButtons();
}

void MapView::nameControls() {
    setAccessibleName(tr("Map"));
    nameButton(zoomInButton_, tr("Zoom in"));
    nameButton(zoomOutButton_, tr("Zoom out"));
    nameButton(recenterButton_, tr("Centre on car"));
}

void MapView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) nameControls();
    QWidget::changeEvent(event);
}

MapView::~MapView() = default;

int MapView::tileSize() const {
    return provider_ && provider_->tileSize() > 0 ? provider_->tileSize() : kFallbackTileSize;
}

int MapView::minimumZoom() const {
    return provider_ ? std::max(provider_->minimumZoom(), MapMath::kMinimumZoom) : MapMath::kMinimumZoom;
}

int MapView::maximumZoom() const {
    return provider_ ? std::clamp(provider_->maximumZoom(), minimumZoom(), MapMath::kMaximumZoom) : MapMath::kMaximumZoom;
}

MapPainter MapView::framePainter() const {
    return MapPainter(center_, zoom_, QSizeF(size()), tileSize());
}

void MapView::setRegion(const CoordinateRegion& region, bool animated) {
    if (!isUsable(region.center)) return;
    // A hidden widget's size is not final yet: fit again when it is resized or shown.
    if (isVisible())
        pendingRegion_.reset();
    else
        pendingRegion_ = region;
    if (width() <= 0 || height() <= 0) {
        stopAnimation();
        moveCamera({MapMath::clampLatitude(region.center.latitude), region.center.longitude}, zoom_);
        return;
    }
    const double zoom = MapMath::zoomToFit(region, width(), height(), tileSize(), minimumZoom(), maximumZoom());
    const Coordinate center{MapMath::clampLatitude(region.center.latitude), region.center.longitude};
    if (animated && isVisible())
        animateCamera(center, zoom);
    else {
        stopAnimation();
        moveCamera(center, zoom);
    }
}

CoordinateRegion MapView::region() const {
    if (pendingRegion_) return *pendingRegion_;
    const MapPainter frame = framePainter();
    const Coordinate northWest = frame.toCoordinate(QPointF(0, 0));
    const Coordinate southEast = frame.toCoordinate(QPointF(width(), height()));
    return {center_, {northWest.latitude - southEast.latitude, southEast.longitude - northWest.longitude}};
}

QPointF MapView::pointForCoordinate(Coordinate coordinate) const {
    return framePainter().toWidget(coordinate);
}

void MapView::setCenterCoordinate(Coordinate center) {
    if (!isUsable(center)) return;
    center.latitude = MapMath::clampLatitude(center.latitude);
    if (animation_->state() == QAbstractAnimation::Running) {
        // A zoom under way goes on; it now ends over the new centre.
        animationEndCenter_ = center;
    }
    if (pendingRegion_) pendingRegion_->center = center;
    moveCamera(center, zoom_);
}

Coordinate MapView::centerCoordinate() const {
    return center_;
}

double MapView::zoomLevel() const {
    return zoom_;
}

void MapView::moveCamera(Coordinate center, double zoom) {
    // Keep longitudes in one turn of the globe, whatever the user has dragged.
    center.longitude = std::remainder(center.longitude, 360.0);
    center_ = center;
    zoom_ = MapMath::clampZoom(zoom, minimumZoom(), maximumZoom());
    placeAnnotations();
    update();
}

void MapView::animateCamera(Coordinate center, double zoom) {
    animation_->stop();
    animationStartCenter_ = center_;
    animationStartZoom_ = zoom_;
    animationEndCenter_ = center;
    animationEndZoom_ = MapMath::clampZoom(zoom, minimumZoom(), maximumZoom());
    animation_->start();
}

void MapView::stopAnimation() {
    animation_->stop();
}

void MapView::zoomAbout(QPointF widgetPoint, double steps, bool animated) {
    pendingRegion_.reset();  // the user's zoom replaces a region still waiting for a size
    const double targetZoom = MapMath::clampZoom(
        (animation_->state() == QAbstractAnimation::Running ? animationEndZoom_ : zoom_) + steps, minimumZoom(),
        maximumZoom());
    // The coordinate under the point stays there: find the centre that puts it back.
    const Coordinate anchor = framePainter().toCoordinate(widgetPoint);
    const MapMath::WorldPoint anchorWorld = MapMath::project(anchor, targetZoom, tileSize());
    const QPointF offset = widgetPoint - QPointF(width() / 2.0, height() / 2.0);
    const Coordinate center =
        MapMath::unproject({anchorWorld.x - offset.x(), anchorWorld.y - offset.y()}, targetZoom, tileSize());
    if (animated && isVisible())
        animateCamera(center, targetZoom);
    else {
        stopAnimation();
        moveCamera(center, targetZoom);
    }
}

void MapView::addOverlay(std::shared_ptr<const Polyline> line) {
    if (!line) return;
    std::optional<PolylineStyle> style;
    if (delegate_) style = delegate_->rendererForOverlay(*this, *line);
    overlays_.push_back(makeStyledOverlay(std::move(line), style.value_or(PolylineStyle{QColor(0, 90, 255), 2})));
    ++overlaysVersion_;
    update();
}

void MapView::setUnderlay(std::vector<std::shared_ptr<const Polyline>> lines, PolylineStyle style) {
    const double opacity = style.color.isValid() ? style.color.alphaF() : 1.0;
    style.color.setAlphaF(1);  // the fade of the whole underlay stands for it
    underlay_.lines.clear();
    for (std::shared_ptr<const Polyline>& line : lines)
        if (line) underlay_.lines.push_back(makeStyledOverlay(std::move(line), style));
    underlay_.opacity = opacity;
    ++overlaysVersion_;
    update();
}

void MapView::removeOverlays(const std::vector<std::shared_ptr<const Polyline>>& lines) {
    if (lines.empty() || overlays_.empty()) return;
    const auto listed = [&](const StyledOverlay& overlay) {
        return std::find(lines.begin(), lines.end(), overlay.line) != lines.end();
    };
    const auto removed = std::remove_if(overlays_.begin(), overlays_.end(), listed);
    if (removed == overlays_.end()) return;
    overlays_.erase(removed, overlays_.end());
    ++overlaysVersion_;
    update();
}

void MapView::addAnnotation(std::shared_ptr<MapAnnotation> annotation) {
    if (!annotation) return;
    const bool first = annotations_.empty();
    QWidget* view = delegate_ ? delegate_->viewForAnnotation(*this, *annotation) : nullptr;
    if (!view) view = makeDefaultMarker();
    view->setParent(this);
    view->setCursor(Qt::PointingHandCursor);
    view->installEventFilter(this);
    view->show();
    annotations_.push_back({std::move(annotation), view});
    // Markers lie under the buttons and the callout.
    view->stackUnder(zoomInButton_);
    placeAnnotations();
    if (first && pendingRegion_) pendingRegion_->center = annotations_.front().annotation->coordinate;
}

void MapView::annotationChanged(const std::shared_ptr<MapAnnotation>& annotation) {
    const auto it = std::find_if(annotations_.begin(), annotations_.end(),
                                 [&](const ShownAnnotation& shown) { return shown.annotation == annotation; });
    if (it == annotations_.end()) return;
    // isHidden, not isVisible: a callout open in a hidden window still shows the new title later.
    if (calloutMarker_ == it->view && !callout_->isHidden()) callout_->setText(annotation->title);
    if (delegate_ && it->view) delegate_->refreshViewForAnnotation(*this, *annotation, *it->view);
    placeAnnotations();
}

void MapView::removeAnnotation(const std::shared_ptr<MapAnnotation>& annotation) {
    const auto it = std::find_if(annotations_.begin(), annotations_.end(),
                                 [&](const ShownAnnotation& shown) { return shown.annotation == annotation; });
    if (it == annotations_.end()) return;
    if (QWidget* view = it->view) {
        if (calloutMarker_ == view) callout_->hide();
        view->hide();
        view->removeEventFilter(this);
        // Later: the removal may come from the marker's own click.
        view->deleteLater();
    }
    annotations_.erase(it);
}

QWidget* MapView::viewForAnnotation(const std::shared_ptr<MapAnnotation>& annotation) const {
    for (const ShownAnnotation& shown : annotations_)
        if (shown.annotation == annotation) return shown.view;
    return nullptr;
}

void MapView::setTileProvider(TileProvider* provider) {
    if (provider_ == provider) return;
    if (provider_) disconnect(provider_, nullptr, this, nullptr);
    provider_ = provider;
    recentTiles_.clear();
    if (provider_) {
        connect(provider_, &TileProvider::tileReady, this, [this] { update(); });
        connect(provider_, &QObject::destroyed, this, [this] {
            recentTiles_.clear();
            update();
        });
    }
    moveCamera(center_, zoom_);
}

void MapView::placeAnnotations() {
    const MapPainter frame = framePainter();
    for (const ShownAnnotation& shown : annotations_) {
        if (!shown.view) continue;
        // A marker without a place is not shown anywhere rather than in a corner.
        const bool placed = isUsable(shown.annotation->coordinate);
        shown.view->setVisible(placed);
        if (!placed) continue;
        const QPointF at = frame.toWidget(shown.annotation->coordinate);
        const QSize size = shown.view->size();
        shown.view->move(QPoint(int(std::lround(at.x() - size.width() / 2.0)), int(std::lround(at.y() - size.height() / 2.0))));
    }
    placeCallout();
}

void MapView::placeCallout() {
    if (!callout_->isVisible()) return;
    if (!calloutMarker_) {
        callout_->hide();
        return;
    }
    const QRect marker = calloutMarker_->geometry();
    callout_->adjustSize();
    callout_->move(marker.center().x() - callout_->width() / 2, marker.top() - callout_->height() - 4);
}

void MapView::showCallout(QWidget* markerView) {
    const auto it = std::find_if(annotations_.begin(), annotations_.end(),
                                 [&](const ShownAnnotation& shown) { return shown.view == markerView; });
    if (it == annotations_.end() || it->annotation->title.isEmpty()) return;
    callout_->setText(it->annotation->title);
    calloutMarker_ = markerView;
    callout_->show();
    callout_->raise();
    placeCallout();
}

void MapView::placeButtons() {
    const int margin = 8;
    const int x = width() - zoomInButton_->width() - margin;
    zoomInButton_->move(x, margin);
    zoomOutButton_->move(x, margin + zoomInButton_->height() + 2);
    recenterButton_->move(x, margin + 2 * (zoomInButton_->height() + 2) + 6);
}

void MapView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const MapPainter frame = framePainter();
    frame.paintGrid(painter);
    if (provider_) frame.paintTiles(painter, *provider_, recentTiles_);
    overlayLayer_.paint(painter, frame, underlay_, overlays_, overlaysVersion_);
    frame.paintScaleBar(painter);
    if (provider_) frame.paintAttribution(painter, provider_->attribution());
}

void MapView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeButtons();
    if (pendingRegion_ && width() > 0 && height() > 0) {
        const CoordinateRegion region = *pendingRegion_;
        setRegion(region, false);
    } else {
        placeAnnotations();
    }
}

void MapView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (pendingRegion_) {
        const CoordinateRegion region = *pendingRegion_;
        setRegion(region, false);
    }
}

void MapView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    stopAnimation();
    callout_->hide();
    pendingRegion_.reset();
    dragOrigin_ = event->position();
    dragStartCenter_ = center_;
    dragged_ = false;
    setCursor(Qt::ClosedHandCursor);
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragOrigin_) return QWidget::mouseMoveEvent(event);
    const QPointF moved = event->position() - *dragOrigin_;
    if (std::hypot(moved.x(), moved.y()) > kClickSlop) dragged_ = true;
    const MapMath::WorldPoint start = MapMath::project(dragStartCenter_, zoom_, tileSize());
    moveCamera(MapMath::unproject({start.x - moved.x(), start.y - moved.y()}, zoom_, tileSize()), zoom_);
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !dragOrigin_) return QWidget::mouseReleaseEvent(event);
    const QPointF moved = event->position() - *dragOrigin_;
    const bool click = !dragged_ && std::hypot(moved.x(), moved.y()) <= kClickSlop;
    dragOrigin_.reset();
    unsetCursor();
    if (click) emit clicked(event->position());
}

void MapView::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / 120.0;
    if (notches == 0) return QWidget::wheelEvent(event);
    zoomAbout(event->position(), notches * kWheelStepsPerNotch, false);
    event->accept();
}

bool MapView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton) {
            showCallout(qobject_cast<QWidget*>(watched));
            return true;
        }
    }
    if (event->type() == QEvent::MouseButtonPress) return true;  // not a drag of the map
    return QWidget::eventFilter(watched, event);
}
