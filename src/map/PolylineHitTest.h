#pragma once
// Which point of a line drawn on screen a click meant, for seeking to the sample under the pointer.

#include <QPointF>

#include <cstddef>
#include <optional>
#include <span>

// The line through the points in order (a route projected into the widget), measured to its
// segments, not only to its points: a click between two samples far apart still finds the line.
// Gives the nearer end of the nearest segment within radius (the earlier end when halfway), or
// the nearest lone point; ties go to the earlier segment, so a place passed twice means the first
// pass. Points that are not numbers split the line. Nothing within radius gives nothing.
std::optional<std::size_t> nearestPointWithin(std::span<const QPointF> points, QPointF target, double radius);
