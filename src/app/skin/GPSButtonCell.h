#pragma once
// The state and drawing of an image button: a normal, a hover and a pressed picture, drawn bare
// (no bezel, border or background) and at half opacity while the button is disabled.

#include "SvgImage.h"

#include <QRectF>

#include <optional>

class QPainter;

class GPSButtonCell {
public:
    GPSButtonCell() = default;
    explicit GPSButtonCell(std::optional<SvgImage> image) : image_(std::move(image)) {}

    const std::optional<SvgImage>& defaultImage() const { return defaultImage_; }
    void setDefaultImage(std::optional<SvgImage> image) { defaultImage_ = std::move(image); }
    const std::optional<SvgImage>& overImage() const { return overImage_; }
    void setOverImage(std::optional<SvgImage> image) { overImage_ = std::move(image); }
    const std::optional<SvgImage>& downImage() const { return downImage_; }
    void setDownImage(std::optional<SvgImage> image) { downImage_ = std::move(image); }
    // The picture drawn when neither hovered nor pressed, and in place of an absent one.
    const std::optional<SvgImage>& image() const { return image_; }
    void setImage(std::optional<SvgImage> image) { image_ = std::move(image); }

    bool isOVer() const { return isOVer_; }
    bool isHighlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted) { highlighted_ = highlighted; }

    // While a modal view covers the window the buttons ignore the pointer coming in; a button
    // already hovered keeps its hover picture until the pointer leaves it.
    void mouseEntered(bool statusIsModal);
    void mouseExited();

    // The picture for the current state, or null when there is none at all.
    const SvgImage* chosenImage() const;
    static constexpr double opacity(bool enabled) { return enabled ? 1.0 : 0.5; }
    // Returns false when there was no picture to draw.
    bool draw(QPainter& painter, const QRectF& frame, bool enabled) const;

private:
    std::optional<SvgImage> defaultImage_;
    std::optional<SvgImage> overImage_;
    std::optional<SvgImage> downImage_;
    std::optional<SvgImage> image_;
    bool isOVer_ = false;
    bool highlighted_ = false;
};
