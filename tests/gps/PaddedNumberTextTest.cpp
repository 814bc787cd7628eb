// The read-outs must stay exactly what printf wrote: compared with printf itself over ties,
// signs, padding, non-finite values and a sweep of float bit patterns.
#include "PaddedNumberText.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace {

struct Pattern {
    int width;
    int precision;
};
// The speed and the coordinate read-outs.
constexpr Pattern kPatterns[] = {{5, 2}, {8, 5}};

std::string printfFixed(double value, Pattern p) {
    char text[kPaddedNumberTextMax];
    std::snprintf(text, sizeof text, "%0*.*f", p.width, p.precision, value);
    return text;
}

std::string ourFixed(double value, Pattern p) {
    std::array<char, kPaddedNumberTextMax> text;
    return std::string(text.data(), writeZeroPaddedFixed(text, value, p.width, p.precision));
}

TEST(PaddedNumberTextTest, FixedMatchesPrintf) {
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    const double edges[] = {0.0, -0.0, 0.005, 0.015, 0.125, 0.375, 2.5, -2.5, 0.000005, 0.000015, -0.001, 9.995,
                            99.995, 999.999995, 48.80003, -22.5, 114.25, 1e-40, -1e-40,
                            std::numeric_limits<float>::max(), -std::numeric_limits<float>::max(),
                            std::numeric_limits<float>::denorm_min(), nan, -nan, inf, -inf};
    for (const Pattern p : kPatterns)
        for (const double value : edges) EXPECT_EQ(ourFixed(value, p), printfFixed(value, p)) << value;

    // Any bit pattern can come out of a damaged record; real ones lie within a few hundred, and
    // eighths there are exact ties.
    std::mt19937 random(20261115);
    std::uniform_real_distribution<float> everyday(-400.0f, 400.0f);
    for (int i = 0; i < 100000; ++i) {
        const double values[] = {std::bit_cast<float>(uint32_t(random())), everyday(random),
                                 double(int(random() % 6400) - 3200) / 8.0};
        for (const double value : values)
            for (const Pattern p : kPatterns) ASSERT_EQ(ourFixed(value, p), printfFixed(value, p)) << value;
    }
}

TEST(PaddedNumberTextTest, IntMatchesPrintf) {
    for (const int value : {0, 1, 9, 10, 59, 99, 100, 12345, -1, -9, -10, INT_MAX, INT_MIN}) {
        std::array<char, kPaddedNumberTextMax> text;
        char expected[kPaddedNumberTextMax];
        std::snprintf(expected, sizeof expected, "%02d", value);
        EXPECT_EQ(std::string(text.data(), writeZeroPaddedInt(text, value, 2)), expected);
    }
}

}  // namespace
