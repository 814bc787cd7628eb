#pragma once
// A marker on the map: where it stands, which way it faces and the text of its callout.

#include "MapTypes.h"

#include <QString>

#include <optional>

struct MapAnnotation {
    Coordinate coordinate;
    QString title;
    // Degrees clockwise from north; absent when not known (a marker then faces north).
    std::optional<double> heading = std::nullopt;
};
