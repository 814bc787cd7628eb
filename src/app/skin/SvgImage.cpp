#include "SvgImage.h"

#include <QPainter>
#include <QSvgRenderer>

std::optional<SvgImage> SvgImage::load(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    auto renderer = std::make_shared<QSvgRenderer>(path);
    if (!renderer->isValid()) return std::nullopt;
    // The picture is stretched into the frame it is given, like any other image.
    renderer->setAspectRatioMode(Qt::IgnoreAspectRatio);
    return SvgImage(path, std::move(renderer));
}

SvgImage::SvgImage(QString path, std::shared_ptr<QSvgRenderer> renderer)
    : path_(std::move(path)), renderer_(std::move(renderer)) {}

QSize SvgImage::size() const { return renderer_->defaultSize(); }

void SvgImage::draw(QPainter& painter, const QRectF& frame) const { renderer_->render(&painter, frame); }
