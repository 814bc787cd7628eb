#include "WindowChromeMode.h"
#include "WindowEdges.h"

#include <gtest/gtest.h>

namespace {

TEST(WindowEdges, PointsNearTheBorderGrabTheirEdgesAndCornersBoth) {
    const QSize size(400, 300);
    const struct {
        QPoint point;
        Qt::Edges edges;
    } cases[] = {
        {{200, 150}, {}},
        {{0, 150}, Qt::LeftEdge},
        {{3, 150}, Qt::LeftEdge},
        {{4, 150}, {}},
        {{399, 150}, Qt::RightEdge},
        {{200, 0}, Qt::TopEdge},
        {{200, 299}, Qt::BottomEdge},
        {{0, 0}, Qt::LeftEdge | Qt::TopEdge},
        // Within the corner's larger reach along an edge.
        {{10, 1}, Qt::LeftEdge | Qt::TopEdge},
        {{398, 290}, Qt::RightEdge | Qt::BottomEdge},
        {{395, 2}, Qt::RightEdge | Qt::TopEdge},
        {{-1, 150}, {}},
        {{400, 150}, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(resizeEdgesAt(c.point, size, 4), c.edges) << c.point.x() << "," << c.point.y();
}

TEST(WindowEdges, DiagonalCursorsFollowTheCorner) {
    EXPECT_EQ(cursorForEdges(Qt::LeftEdge | Qt::TopEdge), Qt::SizeFDiagCursor);
    EXPECT_EQ(cursorForEdges(Qt::RightEdge | Qt::BottomEdge), Qt::SizeFDiagCursor);
    EXPECT_EQ(cursorForEdges(Qt::RightEdge | Qt::TopEdge), Qt::SizeBDiagCursor);
    EXPECT_EQ(cursorForEdges(Qt::LeftEdge | Qt::BottomEdge), Qt::SizeBDiagCursor);
    EXPECT_EQ(cursorForEdges(Qt::BottomEdge), Qt::SizeVerCursor);
    EXPECT_EQ(cursorForEdges({}), Qt::ArrowCursor);
}

TEST(WindowChromeMode, OwnTitleBarOnlyWhereTheWindowSystemMovesFramelessWindows) {
    EXPECT_EQ(chromeModeFor("xcb", ""), WindowChromeMode::OwnTitleBar);
    EXPECT_EQ(chromeModeFor("wayland-egl", ""), WindowChromeMode::OwnTitleBar);
    EXPECT_EQ(chromeModeFor("offscreen", ""), WindowChromeMode::SystemDecorations);
    EXPECT_EQ(chromeModeFor("xcb", "SYSTEM"), WindowChromeMode::SystemDecorations);
}

}  // namespace
