#pragma once
// Pixel checks shared by the skin's tests: 8-bit colours may differ by one step from the fractions.

#include <QColor>
#include <QImage>

#include <cstdlib>

inline bool sameColour(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) <= 1 && std::abs(a.green() - b.green()) <= 1 &&
           std::abs(a.blue() - b.blue()) <= 1;
}

inline bool isColour(const QImage& image, int x, int y, QColor expected) {
    return sameColour(image.pixelColor(x, y), expected);
}

inline bool isWhite(const QImage& image, int x, int y) { return isColour(image, x, y, Qt::white); }
