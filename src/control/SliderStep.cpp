#include "SliderStep.h"

#include <algorithm>
#include <cmath>

namespace {

// A step that is not a number (a movie without a duration) moves nothing.
std::optional<double> withinSlider(double value) {
    if (std::isnan(value)) return std::nullopt;
    return std::clamp(value, 0.0, 1.0);
}

}  // namespace

std::optional<double> SliderStep::down(double value, double step) {
    if (!(value > 0.0)) return std::nullopt;
    return withinSlider(value - step);
}

std::optional<double> SliderStep::up(double value, double step) {
    if (!(value < 1.0)) return std::nullopt;
    return withinSlider(value + step);
}
