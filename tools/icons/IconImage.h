#pragma once
// The application icon drawn at one square size, for the installed PNGs.

#include <QImage>

class QSvgRenderer;

// Transparent outside the drawing; a null image when the renderer holds no valid drawing.
QImage iconImage(QSvgRenderer& renderer, int size);
