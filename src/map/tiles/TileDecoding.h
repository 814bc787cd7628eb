#pragma once
// Turns a tile's file bytes into pixels ready to draw.

#include <QByteArray>
#include <QImage>

// Largest edge a tile may have: bigger claims in a file are refused before any pixels are allocated.
inline constexpr int kLargestTileEdge = 4096;

// The decoded tile in premultiplied ARGB (what painting wants), or a null image for bytes that are
// no image or claim an absurd size.
QImage decodeTile(const QByteArray& bytes);
