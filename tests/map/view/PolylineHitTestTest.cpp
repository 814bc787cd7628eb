#include "PolylineHitTest.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

TEST(PolylineHitTest, FindsTheNearerEndOfTheNearestSegmentWithinTheRadius) {
    const QPointF lost(NAN, NAN);
    const std::vector<QPointF> ell{{0, 0}, {100, 0}, {100, 100}};
    const struct {
        const char* name;
        std::vector<QPointF> points;
        QPointF target;
        double radius;
        std::optional<std::size_t> expected;
    } cases[] = {
        {"no points", {}, {0, 0}, 8, std::nullopt},
        {"a lone point within", {{10, 10}}, {14, 13}, 8, 0},
        {"a lone point outside", {{10, 10}}, {20, 10}, 8, std::nullopt},
        {"exactly at the radius", {{10, 10}}, {18, 10}, 8, 0},
        {"near a segment's first end", ell, {30, 5}, 8, 0},
        {"near a segment's second end", ell, {70, -5}, 8, 1},
        {"halfway: the earlier end", ell, {50, 3}, 8, 0},
        {"on the second segment", ell, {95, 90}, 8, 2},
        {"too far from every segment", ell, {50, 50}, 8, std::nullopt},
        {"the nearest wins over an earlier one", {{0, 0}, {100, 0}, {100, 10}, {0, 10}}, {20, 7}, 8, 3},
        {"a place passed twice: the first pass", {{0, 0}, {100, 0}, {0, 0}}, {10, 2}, 8, 0},
        {"no segment across a gap", {{0, 0}, lost, {20, 0}}, {10, 0}, 8, std::nullopt},
        {"a point alone between gaps", {lost, {5, 5}, lost}, {6, 5}, 8, 1},
        {"a negative radius", ell, {0, 0}, -1, std::nullopt},
        {"a target that is not a number", ell, lost, 8, std::nullopt},
    };
    for (const auto& c : cases) EXPECT_EQ(nearestPointWithin(c.points, c.target, c.radius), c.expected) << c.name;
}
