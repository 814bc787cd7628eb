#pragma once
// A marker on the map: where it stands and the text of its callout.

#include "MapTypes.h"

#include <QString>

struct MapAnnotation {
    Coordinate coordinate;
    QString title;
};
