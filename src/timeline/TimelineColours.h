#pragma once
// The timeline's colours. The chart is white on a darkened panel so that it reads on the window's
// blue and on the grey the window turns when another application is in front.

#include <QColor>

namespace TimelineColours {

inline QColor panel() { return QColor(0, 20, 50, 60); }
inline QColor grid() { return QColor(255, 255, 255, 36); }
inline QColor baseline() { return QColor(255, 255, 255, 110); }
inline QColor unplayedAreaTop() { return QColor(255, 255, 255, 70); }
inline QColor unplayedAreaBottom() { return QColor(255, 255, 255, 36); }
inline QColor unplayedLine() { return QColor(255, 255, 255, 150); }
inline QColor playedAreaTop() { return QColor(255, 255, 255, 170); }
inline QColor playedAreaBottom() { return QColor(255, 255, 255, 100); }
inline QColor playedLine() { return QColor(255, 255, 255); }
inline QColor label() { return QColor(255, 255, 255, 230); }
inline QColor quietLabel() { return QColor(255, 255, 255, 150); }
inline QColor cursor() { return QColor(255, 255, 255); }
// The span marked for saving: an amber tint over the chart between two amber lines.
inline QColor markedSpan() { return QColor(255, 190, 40, 70); }
inline QColor markEdge() { return QColor(255, 190, 40); }
// The dark edge that keeps the white cursor and marker apart from the white chart.
inline QColor outline() { return QColor(0, 40, 80, 150); }

}  // namespace TimelineColours
