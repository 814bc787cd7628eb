#pragma once
// Off-screen rendering of the skin on the window's backgrounds, and pixel checks: 8-bit colours
// may differ by one step from the fractions, and a picture blended over the background.

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <cstdlib>

inline const QColor kWindowBlue = QColor::fromRgbF(0.09f, 0.63f, 1.0f);
inline const QColor kInactiveGrey = QColor::fromRgbF(0.9f, 0.9f, 0.9f);

inline QImage renderOn(QWidget& widget, const QColor& background, qreal devicePixelRatio = 1.0) {
    const QSize pixels = widget.size() * devicePixelRatio;
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(background);
    QPainter painter(&image);
    // Without the window background a parentless widget would get: only what the widget draws.
    widget.render(&painter, {}, {}, QWidget::DrawChildren);
    return image;
}

// `top` over `bottom` at `opacity`, as the blend of two opaque colours.
inline QColor blend(const QColor& top, const QColor& bottom, double opacity) {
    auto mix = [&](int a, int b) { return static_cast<int>(a * opacity + b * (1.0 - opacity) + 0.5); };
    return QColor(mix(top.red(), bottom.red()), mix(top.green(), bottom.green()), mix(top.blue(), bottom.blue()));
}

inline bool sameColour(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) <= 1 && std::abs(a.green() - b.green()) <= 1 &&
           std::abs(a.blue() - b.blue()) <= 1;
}

inline bool isColour(const QImage& image, int x, int y, QColor expected) {
    return sameColour(image.pixelColor(x, y), expected);
}

inline bool isWhite(const QImage& image, int x, int y) { return isColour(image, x, y, Qt::white); }
