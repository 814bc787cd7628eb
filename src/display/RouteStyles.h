#pragma once
// The looks of the route on the map: the part driven so far, red and solid, over the whole of
// the clip's or trip's route ahead, a faint light line with a thin dark edge that still reads on
// the light streets of map tiles. The red line is narrower than the faint one and covers its
// middle only, so the faint line's edge runs along the driven part too.

#include "MapViewDelegate.h"

#include <QColor>

inline constexpr PolylineStyle kRouteDrivenStyle{QColor(255, 0, 0), 4};

// For MapView::setUnderlay: its colour's alpha fades the whole line, edge included.
inline constexpr PolylineStyle kRouteAheadStyle{QColor(255, 255, 255, 140), 5, QColor(40, 40, 40), 1};
