#include "SliderFraction.h"

#include <QSignalSpy>
#include <QSlider>

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(SliderFraction, ReadsAFractionOfTheRangeAndWritesTheNearestStepSilently) {
    for (const auto& [minimum, maximum, value, fraction] :
         {std::tuple{0, 100, 7, 0.07}, {-50, 50, 0, 0.5}, {10, 10, 10, 0.0}}) {  // empty range: no division by 0
        QSlider slider;
        slider.setRange(minimum, maximum);
        slider.setValue(value);
        EXPECT_DOUBLE_EQ(sliderFraction(slider), fraction) << minimum << ".." << maximum << " at " << value;
    }
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
    // The sliders' actions run on valueChanged; a program write must not seek or change the volume.
    QSlider slider;
    slider.setRange(0, 100);
    QSignalSpy changes(&slider, &QSlider::valueChanged);
    for (const auto& [fraction, value] :
         {std::pair{0.104, 10}, {0.105, 11}, {-0.5, 0}, {1.5, 100}, {nan, 0}, {inf, 100}}) {
        slider.setValue(50);
        changes.clear();
        setSliderFraction(slider, fraction);
        EXPECT_EQ(slider.value(), value) << "fraction " << fraction;
        EXPECT_EQ(changes.count(), 0);
    }
}

}  // namespace
