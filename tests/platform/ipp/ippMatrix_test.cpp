#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "ipp.h"

namespace {

TEST(ippmInvert3x3, InvertsRegularMatrices)
{
    const struct
    {
        float source[9];
        float inverse[9];
    } rows[] = {
        {{2, 0, 0, 0, 4, 0, 0, 0, 8}, {0.5f, 0, 0, 0, 0.25f, 0, 0, 0, 0.125f}},
        {{0, 0, 1, 1, 0, 0, 0, 1, 0}, {0, 1, 0, 0, 0, 1, 1, 0, 0}},
        {{1, 2, 3, 0, 1, 4, 5, 6, 0}, {-24, 18, 5, 20, -15, -4, -5, 4, 1}},
    };
    for (const auto &row : rows) {
        float inverse[9] = {};
        ASSERT_EQ(ippmInvert3x3(row.source, inverse), ippStsNoErr);
        for (int i = 0; i < 9; ++i)
            EXPECT_FLOAT_EQ(inverse[i], row.inverse[i]) << i;
    }
}

TEST(ippmInvert3x3, NearlySingularKeepsItsDigits)
{
    // Nearly grey colours: all moments equal, slightly more on the diagonal. By hand: (D + c J)^-1 with D = e I is (I - c / (e +
    // 3 c) J) / e. In 32 bits the minors would cancel to noise.
    constexpr float c = 0.0625f;
    constexpr float e = 0x1p-13f;
    const float source[9] = {c + e, c, c, c, c + e, c, c, c, c + e};
    float inverse[9];
    ASSERT_EQ(ippmInvert3x3(source, inverse), ippStsNoErr);
    const double share = double(c) / (double(e) + 3.0 * double(c));
    for (int i = 0; i < 9; ++i)
        EXPECT_FLOAT_EQ(inverse[i], float(((i % 4 == 0 ? 1.0 : 0.0) - share) / double(e))) << i;
}

TEST(ippmInvert3x3, SingularLeavesTheTargetUnchanged)
{
    const float kNan = std::numeric_limits<float>::quiet_NaN();
    const float kInfinity = std::numeric_limits<float>::infinity();
    const float sources[][9] = {
        {}, {1, 2, 3, 2, 4, 6, 0, 0, 1}, {kNan, 0, 0, 0, 1, 0, 0, 0, 1}, {kInfinity, 0, 0, 0, 1, 0, 0, 0, 1}};
    for (const auto &source : sources) {
        float target[9];
        std::fill_n(target, 9, 7.0f);
        EXPECT_EQ(ippmInvert3x3(source, target), ippStsSingularErr);
        EXPECT_TRUE(std::all_of(target, target + 9, [](float value) { return value == 7.0f; }));
    }
}

TEST(ippmMul3x3, AddsFromLeftToRightIn32Bits)
{
    // From the left, 2^24 absorbs the 1 and is then cancelled; any other order or precision gives 1.
    const float matrix[9] = {0x1p24f, 1, -0x1p24f, 1, 2, 3, 0, 0, -1};
    const float vector[3] = {1, 1, 1};
    float target[3];
    ASSERT_EQ(ippmMul3x3(matrix, vector, target), ippStsNoErr);
    EXPECT_EQ(target[0], 0.0f);
    EXPECT_EQ(target[1], 6.0f);
    EXPECT_EQ(target[2], -1.0f);
}

} // namespace
