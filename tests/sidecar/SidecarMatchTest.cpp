#include "SidecarMatch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

// Fixes a second apart from clock 1000 on; the latitude tells them apart.
std::vector<GPSFix> fixesFrom(double first, int count) {
    std::vector<GPSFix> fixes;
    for (int i = 0; i < count; ++i) {
        GPSFix fix;
        fix.clockSeconds = first + i;
        fix.latitude = i;
        fixes.push_back(fix);
    }
    return fixes;
}

struct MatchCase {
    const char* what;
    ClipSpan clip;
    std::vector<double> movieSeconds;  // of the fixes kept, in order
};

class SidecarMatchTest : public testing::TestWithParam<MatchCase> {};

TEST_P(SidecarMatchTest, KeepsTheFixesInsideTheClip) {
    const auto matched = matchFixesToClip(fixesFrom(1000, 10), GetParam().clip);
    std::vector<double> seconds;
    for (const GPSFix& fix : matched) {
        seconds.push_back(*fix.movieSeconds);
        EXPECT_DOUBLE_EQ(*fix.clockSeconds - 1000, fix.latitude) << "the fix itself is unchanged";
    }
    EXPECT_EQ(seconds, GetParam().movieSeconds) << GetParam().what;
}

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Cases, SidecarMatchTest,
    testing::Values(MatchCase{"ends inclusive", {1003, 2}, {0, 1, 2}},
                    MatchCase{"start between fixes", {1002.5, 2}, {0.5, 1.5}},
                    MatchCase{"whole log inside", {990, 100}, {10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
                    MatchCase{"clip before the log", {900, 60}, {}},
                    MatchCase{"clip after the log", {1009.5, 60}, {}},
                    MatchCase{"zero duration on a fix", {1004, 0}, {0}},
                    MatchCase{"negative duration", {1004, -2}, {}},
                    MatchCase{"NaN start", {kNaN, 10}, {}},
                    MatchCase{"infinite duration", {1000, kInf}, {}}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

TEST(SidecarMatchTest, LeavesOutFixesWithoutClockAndOrdersByTime) {
    std::vector<GPSFix> fixes = fixesFrom(1000, 3);
    std::swap(fixes[0], fixes[2]);
    fixes.insert(fixes.begin() + 1, GPSFix{});
    const auto matched = matchFixesToClip(fixes, {1000, 10});
    ASSERT_EQ(matched.size(), 3u);
    EXPECT_EQ(*matched[0].movieSeconds, 0);
    EXPECT_EQ(*matched[1].movieSeconds, 1);
    EXPECT_EQ(*matched[2].movieSeconds, 2);
}

}  // namespace
