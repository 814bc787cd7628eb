#include "SliderFraction.h"

#include <QSignalSpy>
#include <QSlider>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(SliderFraction, ReadsTheValueAsAFractionOfTheRange) {
    struct Case {
        int minimum, maximum, value;
        double fraction;
    };
    const Case cases[] = {
        {0, 100000, 0, 0.0},  {0, 100000, 100000, 1.0}, {0, 100000, 25000, 0.25},
        {0, 100, 7, 0.07},    {-50, 50, 0, 0.5},        {10, 10, 10, 0.0},  // empty range: no division by 0
    };
    for (const auto& c : cases) {
        QSlider slider;
        slider.setRange(c.minimum, c.maximum);
        slider.setValue(c.value);
        EXPECT_DOUBLE_EQ(sliderFraction(slider), c.fraction) << c.minimum << ".." << c.maximum << " at " << c.value;
    }
}

TEST(SliderFraction, WritesTheNearestStepClampedToTheRange) {
    struct Case {
        double fraction;
        int value;
    };
    const Case cases[] = {
        {0.0, 0},    {1.0, 100},  {0.104, 10}, {0.105, 11},  // rounds, not truncates
        {-0.5, 0},   {1.5, 100},  {std::numeric_limits<double>::quiet_NaN(), 0},
        {std::numeric_limits<double>::infinity(), 100},
    };
    for (const auto& c : cases) {
        QSlider slider;
        slider.setRange(0, 100);
        slider.setValue(50);
        setSliderFraction(slider, c.fraction);
        EXPECT_EQ(slider.value(), c.value) << "fraction " << c.fraction;
    }
}

TEST(SliderFraction, WritingSendsNoValueChanged) {
    // The sliders' actions run on valueChanged; a program write must not seek or change the volume.
    QSlider slider;
    slider.setRange(0, 100);
    QSignalSpy changes(&slider, &QSlider::valueChanged);
    setSliderFraction(slider, 0.3);
    EXPECT_EQ(slider.value(), 30);
    EXPECT_EQ(changes.count(), 0);
}

}  // namespace
