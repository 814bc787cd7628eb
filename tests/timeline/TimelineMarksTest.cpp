#include "TimelineTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace {

// The marks are times on the series: clamped to it, kept by seeks and new series, gone when cleared.
TEST(TimelineMarksTest, MarksStayOnTheSeriesUntilCleared) {
    TimelineView view;
    view.resize(kWidth, kHeight);
    view.setSeries(testSeries());
    view.setMarkStart(300);
    view.setMarkEnd(500);
    EXPECT_EQ(view.markStart(), 300);
    EXPECT_EQ(view.markEnd(), kTotal);
    view.setMarkStart(std::nan(""));
    EXPECT_EQ(view.markStart(), 300);
    view.requestSeek(20);
    view.setPosition(40);
    EXPECT_EQ(view.markStart(), 300);
    view.setSeries(TimelineSeries{});
    EXPECT_EQ(view.markStart(), 300) << "kept over an empty series";
    TimelineSeries shorter = testSeries();
    shorter.totalSeconds = 250;
    view.setSeries(shorter);
    EXPECT_EQ(view.markStart(), 250);
    EXPECT_EQ(view.markEnd(), 250);
    view.clearMarks();
    EXPECT_FALSE(view.markStart());
    EXPECT_FALSE(view.markEnd());
}

TEST(TimelineMarksTest, DescriptionNamesTheMarkedSpan) {
    struct Row {
        std::optional<double> start, end;
        const char* says;  // absent from the description when null
    };
    const Row rows[] = {
        {70, 10, "; marked 0:10 to 1:10"},
        {10, std::nullopt, "; marked from 0:10"},
        {std::nullopt, 70, "; marked up to 1:10"},
        {std::nullopt, std::nullopt, nullptr},
    };
    for (const Row& row : rows) {
        TimelineView view;
        view.setSeries(testSeries());
        if (row.start) view.setMarkStart(*row.start);
        if (row.end) view.setMarkEnd(*row.end);
        const QString description = view.accessibleDescription();
        if (row.says) {
            EXPECT_TRUE(description.endsWith(QString::fromUtf8(row.says))) << description.toStdString();
        } else {
            EXPECT_FALSE(description.contains(QStringLiteral("marked"))) << description.toStdString();
        }
    }
}

// The band tints the gap (no chart there) between the marks, not beyond them.
TEST(TimelineMarksTest, MarkedSpanIsTintedBetweenItsEdges) {
    TimelineView view;
    view.resize(kWidth, kHeight);
    view.setSeries(testSeries());
    const QImage before = renderTimeline(view);
    view.setMarkStart(120);
    view.setMarkEnd(180);
    const QImage marked = renderTimeline(view);
    const int y = kHeight / 2;
    EXPECT_NE(marked.pixel(7 + 150, y), before.pixel(7 + 150, y));
    EXPECT_NE(marked.pixel(7 + 120, y), before.pixel(7 + 120, y)) << "the start's edge";
    EXPECT_EQ(marked.pixel(7 + 110, y), before.pixel(7 + 110, y));
    EXPECT_EQ(marked.pixel(7 + 190, y), before.pixel(7 + 190, y));
}

}  // namespace
