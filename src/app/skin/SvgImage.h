#pragma once
// A vector picture loaded once from an SVG file or resource. Copies share the parsed document, and
// drawing goes straight to the painter, so the picture stays sharp at any device pixel ratio.

#include <QRectF>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

class QPainter;
class QSvgRenderer;

class SvgImage {
public:
    // Absent when the file is missing or is not a valid SVG document.
    static std::optional<SvgImage> load(const QString& path);

    const QString& path() const { return path_; }
    // The document's own size (its viewBox when it has one).
    QSize size() const;
    // The whole picture, stretched to `frame`, with the painter's opacity and composition mode.
    void draw(QPainter& painter, const QRectF& frame) const;

private:
    SvgImage(QString path, std::shared_ptr<QSvgRenderer> renderer);

    QString path_;
    std::shared_ptr<QSvgRenderer> renderer_;
};
