#pragma once
// The edges of a frameless window that a press at a point would drag: within `band` pixels of an
// edge, that edge; near a corner, both of its edges.

#include <QPoint>
#include <QSize>
#include <QWidget>

Qt::Edges resizeEdgesAt(QPoint inWindow, QSize windowSize, int band);

// The pointer's shape over those edges (the arrow where there are none).
Qt::CursorShape cursorForEdges(Qt::Edges edges);

// Hands the resize to the window system; false where it cannot (no window manager).
bool startWindowResize(QWidget& window, Qt::Edges edges);
