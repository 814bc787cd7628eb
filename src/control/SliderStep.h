#pragma once
// One step of a slider whose values run from 0 to 1: the ten-second step of the position slider
// (OnBackward, OnForward, by the engine's seekUnit) and the volume step (VolumeDown, VolumeUp).

#include <optional>

class SliderStep {
public:
    static constexpr double kVolumeStep = 0.1;

    // value − step, not below 0; absent when value is not above 0 (nothing to do).
    static std::optional<double> down(double value, double step);
    // value + step, not above 1; absent when value is not below 1.
    static std::optional<double> up(double value, double step);
};
