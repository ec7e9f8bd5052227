#include "ipp.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <vector>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

// The image room's tests cover the results for all forms. These cover every value at which rounding changes, and rejected
// arguments.

TEST(ippiScale, FloatsToIntegersAtEveryRoundingPoint)
{
    for (const int bits : {8, 16}) {
        const float full = bits == 8 ? 255.0f : 65535.0f;
        std::vector<float> samples;
        for (int step = 0; step <= 2 * int(full); ++step) { // each integer and each midpoint, with its neighbours
            const float middle = float(step) / 2.0f / full;
            samples.insert(samples.end(), {std::nextafter(middle, -1.0f), middle, std::nextafter(middle, 2.0f)});
        }
        constexpr float kInfinity = std::numeric_limits<float>::infinity();
        samples.insert(samples.end(), {std::nanf(""), -std::nanf(""), kInfinity, -kInfinity, -0.0f, 3e38f, -3e38f, 1e-45f});
        std::vector<std::uint16_t> result(samples.size());
        const int count = int(samples.size());
        ASSERT_EQ(ippStsNoErr, ippiScale(samples.data(), count * 4, 32, result.data(), count * 2, bits, 1, {count, 1}));
        const auto *bytes = reinterpret_cast<const std::uint8_t *>(result.data());
        int wrong = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const float product = samples[i] * full;
            const float plain = std::isnan(product) || product <= 0.0f ? 0.0f : product >= full ? full : std::nearbyint(product);
            wrong += float(bits == 8 ? bytes[i] : result[i]) != plain;
        }
        EXPECT_EQ(0, wrong) << bits;
    }
}

TEST(ippiCopy, TouchesNoPixelOutsideTheRectangle)
{
    // 3 x 1 pixels in rows of 5: copying four samples at once must stop before the last pixel.
    std::uint8_t wide[20], narrow[15];
    std::memset(wide, 1, sizeof(wide));
    std::memset(narrow, 2, sizeof(narrow));
    ASSERT_EQ(ippStsNoErr, ippiCopy(wide, 20, 4, narrow, 15, 3, 8, {3, 1}));
    EXPECT_THAT(narrow, ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2));
    const std::uint8_t alpha = 9;
    std::memset(narrow, 3, sizeof(narrow));
    ASSERT_EQ(ippStsNoErr, ippiCopy(narrow, 15, 3, wide, 20, 4, 8, {3, 1}, &alpha));
    EXPECT_THAT(wide, ElementsAre(3, 3, 3, 9, 3, 3, 3, 9, 3, 3, 3, 9, 1, 1, 1, 1, 1, 1, 1, 1));
    ASSERT_EQ(ippStsNoErr, ippiCopy(narrow + 14, 1, 1, wide, 20, 4, 8, {1, 1})); // alpha stays
    EXPECT_THAT(std::vector<int>(wide, wide + 5), ElementsAre(3, 3, 3, 9, 3));
}

TEST(ippi, RejectionsLeaveTheTargetUnchanged)
{
    std::uint8_t source[16] = {}, target[16];
    std::memset(target, 5, sizeof(target));
    const int order[4] = {0, 1, 2, 4};
    EXPECT_EQ(ippStsSizeErr, ippiScale(source, 4, 8, target, 4, 16, 1, {0, 1}));
    EXPECT_EQ(ippStsSizeErr, ippiScale(source, 4, 8, target, 4, 16, 1, {1, -1}));
    EXPECT_EQ(ippStsSizeErr, ippiScale(source, 4, 8, target, 4, 12, 1, {1, 1}));
    EXPECT_EQ(ippStsNullPtrErr, ippiScale(nullptr, 4, 8, target, 4, 16, 1, {1, 1}));
    EXPECT_EQ(ippStsSizeErr, ippiCopy(source, 4, 4, target, 4, 1, 8, {1, 1}));
    EXPECT_EQ(ippStsSizeErr, ippiCopy(source, 4, 1, target, 4, 3, 8, {1, 0}));
    EXPECT_EQ(ippStsSizeErr, ippiRGBToGray(source, 4, 1, target, 4, 8, {1, 1}));
    EXPECT_EQ(ippStsSizeErr, ippiSwapChannels(target, 4, {1, 1}, order));
    EXPECT_THAT(target, testing::Each(5));
}

TEST(ippiMalloc, RowsAreAlignedAndWhole)
{
    for (const PixelForm form : {PixelForm{1, 8}, PixelForm{3, 16}, PixelForm{4, 32}}) {
        int step = 0;
        auto *raster = static_cast<unsigned char *>(ippiMalloc(13, 7, form, &step));
        ASSERT_NE(nullptr, raster);
        EXPECT_EQ(0, step % 64);
        EXPECT_GE(step, 13 * int(form.pixelBytes()));
        EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(raster) % 64);
        std::memset(raster, 1, std::size_t(step) * 7);
        ippiFree(raster);
    }
    int step = 0;
    EXPECT_EQ(nullptr, ippiMalloc(0, 5, {1, 8}, &step));
    EXPECT_EQ(nullptr, ippiMalloc(5, -1, {1, 8}, &step));
    EXPECT_EQ(nullptr, ippiMalloc(std::numeric_limits<int>::max(), 1, {4, 32}, &step));
    EXPECT_EQ(nullptr, ippsMalloc(std::numeric_limits<std::size_t>::max()));
    ippsFree(ippsMalloc(0));
}

TEST(ippiResize, RejectsInvalidSizesAndRows)
{
    EXPECT_EQ(0u, ippiResizeGetSize({0, 4}, {2, 2}, IppiInterpolation::Super));
    EXPECT_EQ(0u, ippiResizeGetSize({4, 4}, {2, -2}, IppiInterpolation::Linear));
    const std::size_t bytes = ippiResizeGetSize({4, 4}, {2, 2}, IppiInterpolation::Super);
    std::vector<std::uint64_t> block(bytes / 8 + 1);
    auto *spec = reinterpret_cast<IppiResizeSpec *>(block.data());
    EXPECT_EQ(ippStsNullPtrErr, ippiResizeInit({4, 4}, {2, 2}, IppiInterpolation::Super, {1, 8}, nullptr));
    ASSERT_EQ(ippStsNoErr, ippiResizeInit({4, 4}, {2, 2}, IppiInterpolation::Super, {1, 8}, spec));
    std::vector<double> buffer(ippiResizeGetBufferSize(spec) / sizeof(double));
    const std::uint8_t source[16] = {};
    std::uint8_t target[4] = {5, 5, 5, 5};
    EXPECT_EQ(ippStsSizeErr, ippiResize(source, 4, target, 2, 1, 2, spec, buffer.data()));
    EXPECT_EQ(ippStsSizeErr, ippiResize(source, 4, target, 2, -1, 1, spec, buffer.data()));
    EXPECT_EQ(ippStsNullPtrErr, ippiResize(source, 4, target, 2, 0, 1, spec, nullptr));
    EXPECT_THAT(target, testing::Each(5));
    EXPECT_EQ(ippStsNoErr, ippiResize(source, 4, target, 2, 1, 1, spec, buffer.data()));
    EXPECT_THAT(target, ElementsAre(5, 5, 0, 0)) << "only the requested rows";
}

} // namespace
