#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "ipp.h"

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

bool isBelow(float a, float b)
{
    return a < b || (a == b && std::signbit(a) && !std::signbit(b));
}

struct Case
{
    IppiSize region;
    IppiSize mask;
    IppiPoint anchor;
};

TEST(ippiFilterMinBorder, EqualsThePlainMinimum)
{
    const Case cases[] = {{{1, 1}, {3, 3}, {1, 1}},   {{7, 5}, {3, 3}, {1, 1}},     {{5, 7}, {1, 1}, {0, 0}},
                          {{40, 30}, {9, 9}, {4, 4}}, {{129, 3}, {5, 5}, {2, 2}},   {{300, 2}, {9, 3}, {8, 0}},
                          {{6, 50}, {4, 7}, {0, 6}},  {{3, 3}, {21, 21}, {10, 10}}, {{16, 16}, {17, 15}, {16, 14}}};
    std::mt19937 random(7);
    const float special[] = {
        kNan, -kNan, 0.0f, -0.0f, -2.5f, std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(), 1e-42f};
    for (const Case &row : cases) {
        for (const unsigned share : {0u, 3u, 1u}) { // one in so many samples is special
            const auto [width, height] = row.region;
            SCOPED_TRACE(testing::Message() << width << " x " << height << ", mask " << row.mask.width << " x " << row.mask.height
                                            << ", share " << share);
            const int sourceStride = width * 4 + 3;
            const int targetStride = width * 4 + 8;
            std::vector<float> source(std::size_t(sourceStride * height));
            for (float &value : source)
                value = share && random() % share == 0 ? special[random() % 8] : float(random() % 1000) / 1000.0f;
            std::vector<float> target(std::size_t(targetStride * height), 9.0f);
            std::vector<std::int32_t> buffer(ippiFilterMinGetBufferSize(row.region, row.mask) / sizeof(std::int32_t));
            ASSERT_EQ(ippiFilterMinBorder(source.data(), sourceStride * 4, target.data(), targetStride * 4, row.region, row.mask,
                                          row.anchor, buffer.data()),
                      ippStsNoErr);
            for (int y = 0; y < height; ++y) {
                for (int s = 0; s < targetStride; ++s) {
                    float expected = kNan;
                    if (s >= width * 4)
                        expected = 9.0f;
                    for (int wy = y - row.anchor.y; s < width * 4 && wy < y - row.anchor.y + row.mask.height; ++wy) {
                        for (int wx = s / 4 - row.anchor.x; wx < s / 4 - row.anchor.x + row.mask.width; ++wx) {
                            const int cx = std::clamp(wx, 0, width - 1); // the border is replicated
                            const int cy = std::clamp(wy, 0, height - 1);
                            const float value = source[std::size_t(cy * sourceStride + cx * 4 + s % 4)];
                            if (std::isnan(expected) || isBelow(value, expected))
                                expected = value;
                        }
                    }
                    const float result = target[std::size_t(y * targetStride + s)];
                    ASSERT_TRUE(std::memcmp(&result, &expected, sizeof result) == 0 ||
                                (std::isnan(result) && std::isnan(expected)))
                        << s << ", " << y << ": " << result << " and " << expected;
                }
            }
        }
    }
}

TEST(ippiFilterMinBorder, RejectionsLeaveTheTargetUnchanged)
{
    float source[4] = {1.0f, 1.0f, 1.0f, 1.0f};
    float target[4] = {5.0f, 5.0f, 5.0f, 5.0f};
    std::vector<unsigned char> buffer(ippiFilterMinGetBufferSize({1, 1}, {3, 3}));
    const Case refused[] = {
        {{0, 1}, {3, 3}, {1, 1}}, {{1, -1}, {3, 3}, {1, 1}}, {{1, 1}, {3, 3}, {3, 1}}, {{1, 1}, {3, 3}, {1, -1}}};
    for (const Case &row : refused)
        EXPECT_EQ(ippiFilterMinBorder(source, 16, target, 16, row.region, row.mask, row.anchor, buffer.data()), ippStsSizeErr);
    EXPECT_EQ(ippiFilterMinBorder(source, 16, nullptr, 16, {1, 1}, {3, 3}, {1, 1}, buffer.data()), ippStsNullPtrErr);
    EXPECT_EQ(target[0], 5.0f);
    EXPECT_EQ(ippiFilterMinGetBufferSize({0, 1}, {3, 3}), 0u);
}

} // namespace
