#include "TimelineTestSupport.h"

#include <QPaintEvent>

#include <gtest/gtest.h>

namespace {

class TimelinePaintTest : public ::testing::TestWithParam<double> {
protected:
    void SetUp() override { view.resize(kWidth, kHeight); }
    // The colour at a logical point of an image rendered at the parameter's ratio.
    QColor at(const QImage& image, double x, double y) const {
        return image.pixelColor(int(x * GetParam()), int(y * GetParam()));
    }
    TimelineView view;
};

// Both sides of the cursor over the same flat stretch of speed: the played side is brighter.
TEST_P(TimelinePaintTest, PlayedPartIsBrighterThanTheRest) {
    view.setSeries(testSeries());
    view.setPosition(50);
    const QImage image = renderTimeline(view, GetParam());
    EXPECT_EQ(image.size(), QSize(kWidth, kHeight) * GetParam());
    for (double y : {31.0, 36.0, 40.0})
        EXPECT_GT(at(image, 7 + 30, y).lightness(), at(image, 7 + 70, y).lightness() + 30) << "y " << y;
}

// In the gap the chart draws nothing: that column is what it is when the samples lie elsewhere.
TEST_P(TimelinePaintTest, GapColumnHoldsNoChart) {
    view.setSeries(testSeries());
    const QImage withGap = renderTimeline(view, GetParam());
    TimelineSeries elsewhere = testSeries();
    elsewhere.runs.erase(elsewhere.runs.begin());
    view.setSeries(elsewhere);
    const QImage withoutChart = renderTimeline(view, GetParam());
    for (int y = 0; y < kHeight; ++y) {
        ASSERT_EQ(at(withGap, 7 + 150, y), at(withoutChart, 7 + 150, y)) << "y " << y;
    }
    EXPECT_NE(at(withGap, 7 + 50, 36), at(withoutChart, 7 + 50, 36));
}

INSTANTIATE_TEST_SUITE_P(DevicePixelRatios, TimelinePaintTest, ::testing::Values(1.0, 2.0));

// The paint events a shown timeline receives.
class RecordingTimeline : public TimelineView {
public:
    QRegion painted;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override {
        painted += event->region();
        ++paints;
        TimelineView::paintEvent(event);
    }
};

TEST(TimelineRepaintTest, MovingTheCursorRepaintsOnlyTheStripItCrossed) {
    RecordingTimeline view;
    view.resize(kWidth, kHeight);
    view.setSeries(testSeries());
    view.setPosition(100);
    view.show();
    for (int i = 0; i < 50 && view.paints == 0; ++i) QApplication::processEvents();
    ASSERT_GT(view.paints, 0) << "the shown timeline was never painted";

    view.painted = {};
    view.setPosition(100.3);  // the same pixel
    QApplication::processEvents();
    EXPECT_TRUE(view.painted.isEmpty());

    view.setPosition(110);
    QApplication::processEvents();
    const QRect strip = view.painted.boundingRect();
    EXPECT_TRUE(strip.contains(7 + 100, 0) && strip.contains(7 + 110, kHeight - 1))
        << strip.x() << "+" << strip.width();
    EXPECT_LE(strip.width(), 10 + 16);
}

}  // namespace
