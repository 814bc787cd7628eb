#include "SliderFraction.h"

#include <QAbstractSlider>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

double sliderFraction(const QAbstractSlider& slider) {
    const int range = slider.maximum() - slider.minimum();
    if (range <= 0) return 0.0;
    return static_cast<double>(slider.value() - slider.minimum()) / range;
}

void setSliderFraction(QAbstractSlider& slider, double fraction) {
    // NaN would turn into any integer; treat it as the start.
    const double clamped = std::isnan(fraction) ? 0.0 : std::clamp(fraction, 0.0, 1.0);
    const int range = slider.maximum() - slider.minimum();
    const QSignalBlocker quiet(slider);
    slider.setValue(slider.minimum() + static_cast<int>(std::lround(clamped * range)));
}
