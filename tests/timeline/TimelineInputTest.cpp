#include "TimelineTestSupport.h"

#include <QAccessible>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace {

class TimelineInputTest : public ::testing::Test {
protected:
    void SetUp() override {
        view.resize(kWidth, kHeight);
        view.setSeries(testSeries());
    }
    TimelineView view;
    SeekLog log{view};
};

// The press seeks to the time under it; the drag once for each new pixel, the pointer past the end
// counting as the end; playback does not pull the cursor away from the pointer.
TEST_F(TimelineInputTest, ClickAndDragSeekToThePointersTimeOncePerPixel) {
    mouse(view, QEvent::MouseButtonPress, 57);
    view.setPosition(10);
    mouse(view, QEvent::MouseMove, 57.3);
    mouse(view, QEvent::MouseMove, 80);
    mouse(view, QEvent::MouseMove, 1000);
    mouse(view, QEvent::MouseMove, 1200);
    EXPECT_EQ(log.finished, 0);
    mouse(view, QEvent::MouseButtonRelease, 1200, Qt::NoButton);
    ASSERT_EQ(log.seeks.size(), 3u);
    EXPECT_NEAR(log.seeks[0], 50, 1e-9);
    EXPECT_NEAR(log.seeks[1], 73, 1e-9);
    EXPECT_EQ(log.seeks[2], kTotal);
    EXPECT_EQ(log.finished, 1);
    EXPECT_EQ(view.position(), kTotal);
    // Moving without a button held only hovers.
    mouse(view, QEvent::MouseMove, 100, Qt::NoButton);
    EXPECT_EQ(log.seeks.size(), 3u);
    view.setPosition(10);
    EXPECT_EQ(view.position(), 10);
}

struct KeyCase {
    double from;
    int key;
    Qt::KeyboardModifiers modifiers;
    std::optional<double> seek;  // absent: the key is left to the window
};

class TimelineKeyTest : public TimelineInputTest, public ::testing::WithParamInterface<KeyCase> {};

TEST_P(TimelineKeyTest, StepsWithinTheSeriesOrLeavesTheKey) {
    const KeyCase& c = GetParam();
    view.setPosition(c.from);
    QKeyEvent press(QEvent::KeyPress, c.key, c.modifiers);
    QApplication::sendEvent(&view, &press);
    EXPECT_EQ(press.isAccepted(), c.seek.has_value());
    EXPECT_EQ(log.seeks, c.seek ? std::vector<double>{*c.seek} : std::vector<double>{});
}

INSTANTIATE_TEST_SUITE_P(Keys, TimelineKeyTest,
                         ::testing::Values(KeyCase{100, Qt::Key_Right, Qt::NoModifier, 110},
                                           KeyCase{100, Qt::Key_Left, Qt::KeypadModifier, 90},
                                           KeyCase{4, Qt::Key_Left, Qt::NoModifier, 0},
                                           KeyCase{380, Qt::Key_Right, Qt::NoModifier, kTotal},
                                           KeyCase{100, Qt::Key_Home, Qt::NoModifier, 0},
                                           KeyCase{100, Qt::Key_End, Qt::NoModifier, kTotal},
                                           KeyCase{100, Qt::Key_Left, Qt::ControlModifier, std::nullopt},
                                           KeyCase{100, Qt::Key_Space, Qt::NoModifier, std::nullopt}));

TEST_F(TimelineInputTest, AnEmptyTimelineAsksForNoSeek) {
    view.setSeries({});
    mouse(view, QEvent::MouseButtonPress, 57);
    QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
    QApplication::sendEvent(&view, &end);
    EXPECT_TRUE(log.seeks.empty());
    // Without GPS but with a length, the timeline still seeks.
    view.setSeries(TimelineSeries{60, {}, {}, 10});
    QApplication::sendEvent(&view, &end);
    EXPECT_EQ(log.seeks, std::vector<double>{60});
}

// The default tooltip: the time and the speed there, or that the GPS is missing.
TEST_F(TimelineInputTest, HoverTextNamesTimeAndSpeedUnlessAProviderIsGiven) {
    view.setSpeedUnitName(QStringLiteral("MPH"));
    EXPECT_EQ(view.hoverText(62.5).toStdString(), "1:02  50.0 MPH");
    EXPECT_EQ(view.hoverText(150).toStdString(), "2:30  no GPS");
    view.setHoverTextProvider([](double s) { return QString::number(s); });
    EXPECT_EQ(view.hoverText(150).toStdString(), "150");
}

TEST_F(TimelineInputTest, AccessibleSliderReadsThePositionAndSeeksWhenSet) {
    view.setPosition(120);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Slider);
    EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(), "Timeline");
    EXPECT_EQ(accessible->text(QAccessible::Description).toStdString(), "Speed over 6:26, highest 100.0 KM/H at 6:25");
    QAccessibleValueInterface* value = accessible->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toDouble(), 120);
    EXPECT_EQ(value->maximumValue().toDouble(), kTotal);
    value->setCurrentValue(200.5);
    EXPECT_EQ(log.seeks, std::vector<double>{200.5});
    EXPECT_EQ(value->currentValue().toDouble(), 200.5);
}

}  // namespace
