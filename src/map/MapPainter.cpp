#include "MapPainter.h"

#include "RecentTiles.h"
#include "TileProvider.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

StyledOverlay makeStyledOverlay(std::shared_ptr<const Polyline> line, PolylineStyle style) {
    StyledOverlay overlay{std::move(line), std::move(style), {}};
    if (!overlay.line) return overlay;
    overlay.unitPoints.reserve(overlay.line->points.size());
    for (const Coordinate& c : overlay.line->points) {
        if (std::isnan(c.latitude) || std::isnan(c.longitude)) continue;
        overlay.unitPoints.push_back(MapMath::project(c, 0, 1));
    }
    return overlay;
}

MapPainter::MapPainter(Coordinate center, double zoom, QSizeF size, int tileSize)
    : center_(center), zoom_(zoom), size_(size), tileSize_(std::max(tileSize, 1)),
      centerWorld_(MapMath::project(center, zoom, tileSize_)) {}

QPointF MapPainter::toWidget(Coordinate coordinate) const {
    const MapMath::WorldPoint p = MapMath::project(coordinate, zoom_, tileSize_);
    return {p.x - centerWorld_.x + size_.width() / 2, p.y - centerWorld_.y + size_.height() / 2};
}

Coordinate MapPainter::toCoordinate(QPointF widgetPoint) const {
    return MapMath::unproject({widgetPoint.x() - size_.width() / 2 + centerWorld_.x,
                               widgetPoint.y() - size_.height() / 2 + centerWorld_.y},
                              zoom_, tileSize_);
}

QPointF MapPainter::topLeftWorld() const {
    return {centerWorld_.x - size_.width() / 2, centerWorld_.y - size_.height() / 2};
}

double MapPainter::devicePixelRatio(const QPainter& painter) {
    // The screen's ratio, or that of the image a widget is rendered into (which shows only in the
    // painter's transform).
    const QTransform& transform = painter.deviceTransform();
    return std::max(painter.device() ? painter.device()->devicePixelRatioF() : 1.0,
                    std::hypot(transform.m11(), transform.m12()));
}

int MapPainter::tileZoom(double devicePixelRatio, int minimumZoom, int maximumZoom) const {
    // 1e-9: a zoom of exactly 3 computed as 2.9999999 still means the tiles of 3.
    const double wanted = std::floor(zoom_ + std::log2(std::max(devicePixelRatio, 1.0)) + 1e-9);
    return int(MapMath::clampZoom(wanted, std::max(minimumZoom, 0), std::min(maximumZoom, 30)));
}

void MapPainter::paintGrid(QPainter& painter) const {
    painter.fillRect(QRectF(QPointF(0, 0), size_), QColor(236, 234, 228));
    // Lines a quarter tile apart at the zoom below: 32 to 64 pixels, whatever the zoom.
    const double spacing = tileSize_ / 4.0 * std::exp2(zoom_ - std::floor(zoom_));
    const double left = centerWorld_.x - size_.width() / 2;
    const double top = centerWorld_.y - size_.height() / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(QColor(222, 219, 211), 0));
    for (double x = -std::fmod(left, spacing) - (left < 0 ? spacing : 0); x < size_.width(); x += spacing)
        if (x >= 0) painter.drawLine(QPointF(x, 0), QPointF(x, size_.height()));
    for (double y = -std::fmod(top, spacing) - (top < 0 ? spacing : 0); y < size_.height(); y += spacing)
        if (y >= 0) painter.drawLine(QPointF(0, y), QPointF(size_.width(), y));
    painter.restore();
}

void MapPainter::paintTiles(QPainter& painter, TileProvider& provider, RecentTiles& recent) const {
    const double dpr = devicePixelRatio(painter);
    const int z = tileZoom(dpr, provider.minimumZoom(), provider.maximumZoom());
    const int tileSize = std::max(provider.tileSize(), 1);
    const double scale = std::exp2(zoom_ - z) * tileSize_ / tileSize;  // logical pixels per tile pixel
    const MapMath::WorldPoint center = MapMath::project(center_, z, tileSize);
    const double left = center.x - size_.width() / 2 / scale;
    const double top = center.y - size_.height() / 2 / scale;
    const long long count = 1LL << z;
    const long long x0 = std::llround(std::floor(left / tileSize));
    const long long x1 = std::llround(std::floor((left + size_.width() / scale) / tileSize));
    const long long y0 = std::max(0LL, std::llround(std::floor(top / tileSize)));
    const long long y1 = std::min(count - 1, std::llround(std::floor((top + size_.height() / scale) / tileSize)));
    if (x1 < x0 || y1 < y0 || x1 - x0 > 1000 || y1 - y0 > 1000) return;
    recent.setCapacity(std::max<std::size_t>(recent.capacity(), std::size_t(3 * (x1 - x0 + 1) * (y1 - y0 + 1))));

    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, std::abs(scale * dpr - 1) > 1e-6);
    // Whole-pixel edges, so that neighbouring tiles meet without a seam.
    const auto edgeX = [&](long long x) { return std::round((x * tileSize - left) * scale); };
    const auto edgeY = [&](long long y) { return std::round((y * tileSize - top) * scale); };
    for (long long y = y0; y <= y1; ++y) {
        for (long long x = x0; x <= x1; ++x) {
            const QRectF target(QPointF(edgeX(x), edgeY(y)), QPointF(edgeX(x + 1), edgeY(y + 1)));
            const TileId id{z, MapMath::wrapTileColumn(int(x % count), z), int(y)};
            QImage image = recent.find(id);
            if (image.isNull()) {
                image = provider.tile(id);
                if (image.format() == QImage::Format_ARGB32) image.convertTo(QImage::Format_ARGB32_Premultiplied);
                recent.insert(id, image);
            }
            if (!image.isNull()) {
                painter.drawImage(target, image);
                continue;
            }
            const auto ancestor = recent.nearestAncestor(id, provider.minimumZoom());
            if (!ancestor) continue;
            const auto& [parent, parentImage] = *ancestor;
            const int levels = z - parent.z;
            const double part = double(parentImage.width()) / (1 << levels);
            const double partY = double(parentImage.height()) / (1 << levels);
            const QRectF source((id.x - (parent.x << levels)) * part, (id.y - (parent.y << levels)) * partY, part, partY);
            painter.drawImage(target, parentImage, source);
        }
    }
    painter.restore();
}

namespace {

// Long antialiased wide polylines are costly to stroke as one path (the overlaps are resolved
// across the whole of it), so a line is drawn in short pieces, which cover the same pixels.
constexpr int kPointsPerPiece = 16;

void drawPieces(QPainter& painter, const QPolygonF& points) {
    if (points.size() == 1) {
        painter.drawPoint(points.front());
        return;
    }
    for (qsizetype start = 0; start + 1 < points.size(); start += kPointsPerPiece)
        painter.drawPolyline(points.constData() + start,
                             int(std::min<qsizetype>(kPointsPerPiece + 1, points.size() - start)));
}

}  // namespace

void MapPainter::paintOverlays(QPainter& painter, const std::vector<StyledOverlay>& overlays) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    // Every casing first: where lines cross or a line crosses itself, no edge cuts across a line.
    for (const StyledOverlay& overlay : overlays) {
        const PolylineStyle& style = overlay.style;
        if (style.casingWidth > 0 && style.casingColor.isValid())
            strokeLine(painter, overlay.unitPoints, QPen(style.casingColor, style.lineWidth + 2 * style.casingWidth,
                                                         Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    for (const StyledOverlay& overlay : overlays)
        strokeLine(painter, overlay.unitPoints,
                   QPen(overlay.style.color, overlay.style.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

void MapPainter::strokeLine(QPainter& painter, const std::vector<MapMath::WorldPoint>& unitPoints,
                            const QPen& pen) const {
    if (unitPoints.empty()) return;
    const double world = MapMath::worldSize(zoom_, tileSize_);
    const double dx = size_.width() / 2 - centerWorld_.x;
    const double dy = size_.height() / 2 - centerWorld_.y;
    painter.setPen(pen);
    const double margin = pen.widthF() + 2;
    const QRectF visible = QRectF(QPointF(0, 0), size_).adjusted(-margin, -margin, margin, margin);
    const auto at = [&](const MapMath::WorldPoint& u) { return QPointF(u.x * world + dx, u.y * world + dy); };

    // Runs of segments that touch the frame; the rest of the line is not stroked at all.
    QPolygonF run;
    QPointF previous = at(unitPoints.front());
    QPointF lastDrawn = previous;
    if (unitPoints.size() == 1 && visible.contains(previous)) run.append(previous);
    for (std::size_t i = 1; i < unitPoints.size(); ++i) {
        const QPointF p = at(unitPoints[i]);
        // By bounding boxes, which are never empty here (a level segment has no height).
        const bool onScreen = std::max(previous.x(), p.x()) >= visible.left() &&
                              std::min(previous.x(), p.x()) <= visible.right() &&
                              std::max(previous.y(), p.y()) >= visible.top() &&
                              std::min(previous.y(), p.y()) <= visible.bottom();
        if (!onScreen) {
            if (!run.isEmpty()) {
                if (run.back() != previous) run.append(previous);
                drawPieces(painter, run);
                run.clear();
            }
            previous = p;
            continue;
        }
        if (run.isEmpty()) {
            run.append(previous);
            lastDrawn = previous;
        }
        // Points within half a pixel of the last one drawn add work and nothing visible.
        const bool last = i + 1 == unitPoints.size();
        if (last || std::abs(p.x() - lastDrawn.x()) >= 0.5 || std::abs(p.y() - lastDrawn.y()) >= 0.5) {
            run.append(p);
            lastDrawn = p;
        }
        previous = p;
    }
    if (!run.isEmpty()) drawPieces(painter, run);
}

void MapPainter::paintScaleBar(QPainter& painter) const {
    const double metersPerPixel = MapMath::metersPerPixel(center_.latitude, zoom_, tileSize_);
    const double meters = MapMath::roundScaleLength(100 * metersPerPixel);
    if (meters <= 0 || !(metersPerPixel > 0)) return;
    const double length = meters / metersPerPixel;
    const QString label = meters >= 1000 ? QStringLiteral("%1 km").arg(meters / 1000) : QStringLiteral("%1 m").arg(meters);

    painter.save();
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const double x = 8;
    const double baseline = size_.height() - 8;
    const QRectF back(x - 4, baseline - 18, std::max(length, metrics.horizontalAdvance(label)) + 8, 22);
    painter.fillRect(back, QColor(255, 255, 255, 170));
    painter.setPen(QPen(Qt::black, 1.5));
    painter.drawLine(QPointF(x, baseline), QPointF(x + length, baseline));
    painter.drawLine(QPointF(x, baseline - 4), QPointF(x, baseline));
    painter.drawLine(QPointF(x + length, baseline - 4), QPointF(x + length, baseline));
    painter.drawText(QPointF(x + 2, baseline - 6), label);
    painter.restore();
}

void MapPainter::paintAttribution(QPainter& painter, const QString& attribution) const {
    if (attribution.isEmpty()) return;
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const double width = std::min(metrics.horizontalAdvance(attribution) + 8, size_.width());
    const QRectF box(size_.width() - width, size_.height() - metrics.height() - 4, width, metrics.height() + 4);
    painter.fillRect(box, QColor(255, 255, 255, 200));
    painter.setPen(QColor(40, 40, 40));
    painter.drawText(box, Qt::AlignCenter, metrics.elidedText(attribution, Qt::ElideLeft, width - 4));
    painter.restore();
}
