#include "GPSSliderCell.h"
#include "SkinColours.h"
#include "SkinControls.h"
#include "SkinTestSupport.h"

#include <QSlider>

#include <gtest/gtest.h>

#include <cmath>

namespace {

class SliderSkinTest : public ::testing::TestWithParam<double> {};

// Blue up to the knob's centre, grey after it, nothing past the bar's ends, and a white knob 3 in
// from the handle's sides over its full height.
TEST_P(SliderSkinTest, BarSplitsAtTheKnobsCentreUnderAnInsetWhiteKnob) {
    constexpr int w = 200, h = 20, maximum = 1000;
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, maximum);
    slider.resize(w, h);
    applySliderSkin(slider);
    slider.setValue(static_cast<int>(std::lround(GetParam() * maximum)));
    // On black, so that no blue, grey or white comes from a background.
    QImage image(slider.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    slider.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);

    const int knobLeft = static_cast<int>(std::lround(GetParam() * (w - GPSSliderCell::kKnobWidth)));
    const int knobEnd = knobLeft + GPSSliderCell::kKnobWidth;
    const int inset = GPSSliderCell::kKnobInset;
    const int mid = h / 2;
    EXPECT_FALSE(isColour(image, 0, mid, SkinColours::sliderDone()));
    EXPECT_FALSE(isColour(image, w - 1, mid, SkinColours::sliderRemaining()));
    for (int x = 2; x < w - 2; ++x) {
        const QColor expected = x < knobLeft + inset ? SkinColours::sliderDone()
                              : x < knobEnd - inset  ? SkinColours::sliderKnob()
                                                     : SkinColours::sliderRemaining();
        ASSERT_TRUE(isColour(image, x, mid, expected)) << "x " << x;
    }
    const int knobTop = (h - GPSSliderCell::kKnobHeight) / 2;
    const int centre = knobLeft + GPSSliderCell::kKnobWidth / 2;
    EXPECT_TRUE(isWhite(image, centre, knobTop));
    EXPECT_TRUE(isWhite(image, centre, knobTop + GPSSliderCell::kKnobHeight - 1));
    EXPECT_FALSE(isWhite(image, centre, knobTop - 1));
}

INSTANTIATE_TEST_SUITE_P(MinimumMiddleMaximum, SliderSkinTest, ::testing::Values(0.0, 0.5, 1.0));

}  // namespace
