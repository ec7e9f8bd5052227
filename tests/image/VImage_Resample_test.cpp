#include "VImage.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "PlainImage.h"
#include "messageOf.h"
#include "threadCount.h"

namespace {

struct Size
{
    int width, height;
};

/// Weight of source pixel `index` in target pixel `targetIndex` along one axis: an exact ratio of whole numbers, in 64 bits.
double plainShare(int index, int source, int targetIndex, int target, bool linear)
{
    if (!linear) {
        const double begin = std::max(double(targetIndex) * source, double(index) * target);
        const double end = std::min(double(targetIndex + 1) * source, double(index + 1) * target);
        return std::max(end - begin, 0.0) / source;
    }
    const double position = std::clamp((targetIndex + 0.5) * source / target - 0.5, 0.0, source - 1.0);
    return std::max(1.0 - std::abs(position - index), 0.0);
}

double plainSample(const VImage &source, Size to, int x, int y, int channel)
{
    const bool linear = to.width > source.Width() || to.height > source.Height();
    double sum = 0.0;
    for (int row = 0; row < source.Height(); ++row)
        if (const double share = plainShare(row, source.Height(), y, to.height, linear); share > 1e-12)
            for (int column = 0; column < source.Width(); ++column)
                if (const double columnShare = plainShare(column, source.Width(), x, to.width, linear); columnShare > 1e-12)
                    sum += share * columnShare * sampleOf(source, column, row, channel);
    return sum;
}

void fill(VImage &image, Numbers &numbers)
{
    for (int y = 0; y < image.Height(); ++y)
        for (int x = 0; x < image.Width(); ++x)
            for (int channel = 0; channel < image.Bitmap()->componentsPerPixel; ++channel)
                setSample(image, x, y, channel,
                          image.BitsPerComponent() == 32 ? numbers.next() % 4096 / 2048.0 - 0.5
                                                         : numbers.next() % (1u << image.BitsPerComponent()));
}

std::size_t bytesOf(const VImage &image)
{
    return std::size_t(image.BytesPerLine()) * std::size_t(image.Height());
}

TEST(VImage_Resample, AllFormsAgainstThePlainVersion)
{
    const Size sizes[][2] = {
        {{1, 1}, {5, 3}},     {{5, 3}, {1, 1}},   {{2, 2}, {3, 3}},   {{13, 7}, {5, 6}},
        {{13, 7}, {14, 3}}, // wider but lower: linear on both axes
        {{7, 13}, {7, 6}},  // one axis unchanged
        {{33, 20}, {32, 19}}, {{64, 48}, {8, 3}}, {{4, 100}, {3, 1}}, {{8, 5}, {16, 10}},
    };
    Numbers numbers;
    for (const auto &[from, to] : sizes)
        for (const Form form : kForms) {
            SCOPED_TRACE(testing::Message() << from.width << "x" << from.height << " to " << to.width << "x" << to.height << ", "
                                            << form.channels() << " x " << form.bits);
            VImage source(from.width, from.height, form.type, form.bits), target;
            fill(source, numbers);
            source.Resample(target, to.width, to.height);
            ASSERT_EQ(form.type, target.Type());
            ASSERT_EQ(form.bits, target.BitsPerComponent());
            ASSERT_EQ(to.width, target.Width());
            ASSERT_EQ(to.height, target.Height());
            // An integer must be the nearest, unless the plain sum is within its rounding error of a half. A float sums at most
            // 100 samples below 1.5 in 32 bits.
            const double tolerance = form.bits == 32 ? 100 * 1.5 * 6e-8 : 0.5 + 1e-6;
            int wrong = 0;
            for (int y = 0; y < to.height; ++y)
                for (int x = 0; x < to.width; ++x)
                    for (int channel = 0; channel < form.channels(); ++channel)
                        wrong +=
                            !(std::abs(sampleOf(target, x, y, channel) - plainSample(source, to, x, y, channel)) <= tolerance);
            EXPECT_EQ(0, wrong);
        }
}

struct Fact
{
    const char *name;
    Form form;
    Size to;
    std::vector<double> source; ///< One row, or two of the same length.
    int rows;
    std::vector<double> target;
};

TEST(VImage_Resample, NamedFacts)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const Form grey8{VImage::Grey, 8}, grey16{VImage::Grey, 16}, grey32{VImage::Grey, 32};
    const Fact facts[] = {
        {"linear_if_one_side_grows", grey32, {1, 2}, {0, 2, 8}, 1, {2, 2}}, // area averaging would give the mean
        {"ties_to_even", grey8, {2, 1}, {0, 1, 1, 2}, 1, {0, 2}},
        {"mean_of_two_rows", grey16, {1, 1}, {65535, 65535, 65535, 65534}, 2, {65535}},
        {"infinity_stays", grey32, {2, 1}, {kInfinity, kInfinity, 1, 1}, 1, {kInfinity, 1}},
        {"beyond_one_is_kept", grey32, {2, 1}, {-4, -4, 1e6, 1e6}, 1, {-4, 1e6}},
    };
    for (const Fact &fact : facts) {
        SCOPED_TRACE(fact.name);
        const int width = int(fact.source.size()) / fact.rows;
        VImage source(width, fact.rows, fact.form.type, fact.form.bits), target;
        for (int i = 0; i < width * fact.rows; ++i)
            setSample(source, i % width, i / width, 0, fact.source[std::size_t(i)]);
        source.Resample(target, fact.to.width, fact.to.height);
        for (int i = 0; i < fact.to.width * fact.to.height; ++i)
            EXPECT_EQ(fact.target[std::size_t(i)], sampleOf(target, i % fact.to.width, i / fact.to.width, 0)) << i;
    }
}

TEST(VImage_Resample, AConstantStaysConstantAndNotANumberStaysLocal)
{
    const Size sizes[][2] = {{{601, 401}, {122, 82}}, {{97, 61}, {96, 60}}, {{97, 61}, {200, 120}}, {{300, 200}, {100, 50}}};
    for (const auto &[from, to] : sizes)
        for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
            SCOPED_TRACE(testing::Message() << from.width << " to " << to.width);
            VImage source(from.width, from.height, VImage::Rgba, 32), target;
            for (int y = 0; y < from.height; ++y)
                for (int x = 0; x < from.width; ++x)
                    for (int channel = 0; channel < 4; ++channel)
                        setSample(source, x, y, channel, channel == 3 ? 0.0 : 1.0);
            setSample(source, 40, 30, 1, bad);
            source.Resample(target, to.width, to.height);
            int touched = 0;
            for (int y = 0; y < to.height; ++y)
                for (int x = 0; x < to.width; ++x) {
                    EXPECT_EQ(1.0, sampleOf(target, x, y, 0));
                    EXPECT_EQ(0.0, sampleOf(target, x, y, 3));
                    if (sampleOf(target, x, y, 1) != 1.0) {
                        ++touched;
                        EXPECT_LE(std::abs((x + 0.5) * from.width / to.width - 40.5), 1.0 + 0.5 * from.width / to.width);
                        EXPECT_LE(std::abs((y + 0.5) * from.height / to.height - 30.5), 1.0 + 0.5 * from.height / to.height);
                    }
                }
            EXPECT_GT(touched, 0);
        }
}

TEST(VImage_Resample, ATeamGivesTheSameResult)
{
    Numbers numbers;
    for (const Form form : {Form{VImage::Rgba, 32}, Form{VImage::Rgb, 16}, Form{VImage::Grey, 8}})
        for (const Size to : {Size{91, 61}, Size{800, 601}, Size{3, 1}}) {
            VImage source(640, 480, form.type, form.bits), alone, together;
            fill(source, numbers);
            threadCount = 1;
            source.Resample(alone, to.width, to.height);
            threadCount = 4;
            source.Resample(together, to.width, to.height);
            threadCount = 1;
            int wrong = 0;
            for (int y = 0; y < to.height; ++y)
                wrong += std::memcmp(alone.PixelAddress(0, y), together.PixelAddress(0, y),
                                     std::size_t(to.width) * alone.Bitmap()->bytesPerPixel) != 0;
            EXPECT_EQ(0, wrong) << form.bits << " to " << to.width;
        }
}

TEST(VImage_Resample, WhatCannotBeResized)
{
    VImage target;
    EXPECT_EQ("", messageOf([&] { VImage().Resample(target, 2, 2); }));

    float memory[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    const VImage view(2, 2, VImage::Grey, 32, /*clear=*/false, memory, 16);
    view.Resample(target, 2, 2);
    EXPECT_EQ(16, target.BytesPerLine()) << "the same size is a deep copy";
    EXPECT_EQ(6.0, sampleOf(target, 1, 1, 0));
    EXPECT_NE(static_cast<void *>(memory), target.PixelAddress(0, 0));

    for (const Form form : {Form{0x0080, 8}, Form{VImage::Rgb, 4}}) { // a type and a depth that nothing processes
        const VImage unknown(4, 4, form.type, form.bits, /*clear=*/true);
        target.Create(3, 2, form.type, form.bits);
        std::memset(target.PixelAddress(0, 0), 1, bytesOf(target));
        unknown.Resample(target, 3, 2);
        EXPECT_THAT(std::vector<unsigned char>(target.PixelAddress(0, 0), target.PixelAddress(0, 0) + bytesOf(target)),
                    testing::Each(0));
    }
    view.Resample(target, 18, 0);
    EXPECT_EQ(18, target.Width());
    EXPECT_EQ(0, target.Height());
    EXPECT_THROW(view.Resample(target, -1, 2), VException);
}

} // namespace
