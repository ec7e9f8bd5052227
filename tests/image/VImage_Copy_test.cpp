#include "VImage.h"

#include <cfenv>
#include <cmath>
#include <limits>

#include <QImage>
#include <gmock/gmock.h>

#include "PlainImage.h"
#include "messageOf.h"
#include "threadCount.h"

namespace {

constexpr const char *kSource = "VImage_Copy.cpp";
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Pixel = std::array<double, 4>;

// A plain version of the conversion: one pixel at a time, one step after another.

double plainDepth(double sample, int from, int to)
{
    if (from == to)
        return sample;
    if (from == 8)
        return to == 16 ? sample * 257.0 : double(float(sample) / 255.0f);
    if (from == 16)
        return to == 8 ? std::floor((sample * 255.0 + 32767.0) / 65535.0) : double(float(sample) * (1.0f / 65535.0f));
    const float full = to == 8 ? 255.0f : 65535.0f;
    const float product = float(sample) * full;
    return std::isnan(product) || product <= 0.0f ? 0.0 : product >= full ? full : std::nearbyint(product);
}

double plainGrey(const Pixel &pixel, int bits)
{
    if (bits == 32)
        return 0.299f * float(pixel[0]) + 0.587f * float(pixel[1]) + 0.114f * float(pixel[2]);
    return std::floor((299.0 * pixel[0] + 587.0 * pixel[1] + 114.0 * pixel[2] + 500.0) / 1000.0);
}

Pixel plainChannels(Pixel pixel, int from, int to, int bits)
{
    if (to == 1 && from > 1)
        pixel[0] = plainGrey(pixel, bits);
    if (from == 1 && to > 1)
        pixel[1] = pixel[2] = pixel[0];
    return pixel;
}

Pixel plainPixel(Pixel pixel, Form from, Form to, double heldAlpha)
{
    const bool depthFirst = from.channels() < to.channels() || from.bits < to.bits;
    if (!depthFirst)
        pixel = plainChannels(pixel, from.channels(), to.channels(), from.bits);
    for (double &sample : pixel)
        sample = plainDepth(sample, from.bits, to.bits);
    if (depthFirst)
        pixel = plainChannels(pixel, from.channels(), to.channels(), to.bits);
    if (from.channels() < 4 && to.channels() == 4) {
        pixel[3] = to.bits == 8 ? 255.0 : to.bits == 16 ? 65535.0 : 1.0;
        if (from.channels() == 1 && from.bits == 16 && to.bits != 8)
            pixel[3] = heldAlpha;
        if (from.channels() == 1 && from.bits == 32 && to.bits == 16)
            pixel[3] = 255.0;
    }
    return pixel;
}

double testSample(Numbers &numbers, int bits)
{
    const std::uint32_t number = numbers.next();
    if (bits < 32)
        return number % (1u << bits);
    constexpr double kOdd[] = {kNaN,        kInfinity,     -kInfinity, 1.5, -0.25, 0.5 / 255.0,
                               1.5 / 255.0, 2.5 / 65535.0, 1.0,        0.0, 1e-40, 3e38};
    return number % 16 < std::size(kOdd) ? kOdd[number % 16] : (number >> 4) % 4096 / 4096.0;
}

void fill(VImage &image, Numbers &numbers)
{
    for (int y = 0; y < image.Height(); ++y)
        for (int x = 0; x < image.Width(); ++x)
            for (int channel = 0; channel < image.Bitmap()->componentsPerPixel; ++channel)
                setSample(image, x, y, channel, testSample(numbers, image.BitsPerComponent()));
}

struct Fact
{
    const char *name;
    Form from, to;
    std::vector<double> source, target;
};

struct Area
{
    int width, height;
    int x, y;         ///< Its corner in the source; in the target x and y are exchanged.
    int extraSamples; ///< After each row of the views.
};

/// A view with padded rows, and its memory.
struct PaddedImage
{
    PaddedImage(int width, int height, Form form, int extraSamples)
    {
        const int stride = (width * form.channels() + extraSamples) * form.bits / 8;
        memory.resize(std::size_t(stride) * std::size_t(height) / sizeof(float) + 1);
        image.Create(width, height, form.type, form.bits, /*clear=*/false, memory.data(), stride);
    }
    std::vector<float> memory;
    VImage image;
};

/// Compares the target with the plain version; outside the rectangle it must equal `before`.
void expectPlain(const VImage &source, const VImage &before, const VImage &target, const Area &area, Form from, Form to)
{
    int wrong = 0;
    for (int y = 0; y < target.Height(); ++y)
        for (int x = 0; x < target.Width(); ++x) {
            const int dx = x - area.y, dy = y - area.x;
            const bool inside = dx >= 0 && dx < area.width && dy >= 0 && dy < area.height;
            Pixel expected{};
            for (int channel = 0; channel < (inside ? from : to).channels(); ++channel)
                expected[std::size_t(channel)] =
                    inside ? sampleOf(source, area.x + dx, area.y + dy, channel) : sampleOf(before, x, y, channel);
            if (inside)
                expected = plainPixel(expected, from, to, to.channels() == 4 ? sampleOf(before, x, y, 3) : 0.0);
            for (int channel = 0; channel < to.channels(); ++channel) {
                const double value = sampleOf(target, x, y, channel);
                const double wanted =
                    to.bits == 32 ? double(float(expected[std::size_t(channel)])) : expected[std::size_t(channel)];
                if (value != wanted && !(std::isnan(value) && std::isnan(wanted)) && wrong++ == 0)
                    ADD_FAILURE() << "x " << x << " y " << y << " channel " << channel << ": " << value << " for " << wanted;
            }
        }
    EXPECT_EQ(0, wrong);
}

TEST(VImage_Copy, AllPairsAtAwkwardSizes)
{
    const Area areas[] = {{1, 1, 0, 0, 0}, {5, 3, 1, 2, 1}, {67, 2, 0, 1, 3}, {16, 9, 3, 0, 0}, {515, 3, 2, 1, 1}};
    Numbers numbers;
    for (const Area &area : areas)
        for (const Form from : kForms) {
            PaddedImage source(area.width + area.x + 1, area.height + area.y + 1, from, area.extraSamples);
            fill(source.image, numbers);
            for (const Form to : kForms) {
                SCOPED_TRACE(testing::Message() << from.channels() << " x " << from.bits << " to " << to.channels() << " x "
                                                << to.bits << ", " << area.width << " wide");
                PaddedImage target(area.width + area.y + 1, area.height + area.x + 1, to, area.extraSamples);
                fill(target.image, numbers);
                VImage before;
                before.Assign(target.image);
                source.image.CopyRect(area.x, area.y, area.width, area.height, target.image, area.y, area.x);
                expectPlain(source.image, before, target.image, area, from, to);
            }
        }
}

TEST(VImage_Copy, ATeamGivesTheSameResult)
{
    Numbers numbers;
    const int width = 515, height = 301; // large enough for a team
    for (const Form from : kForms) {
        VImage source(width, height, from.type, from.bits);
        fill(source, numbers);
        for (const Form to : {Form{VImage::Rgba, 32}, Form{VImage::Rgb, 8}, Form{VImage::Grey, 16}}) {
            VImage alone(width, height, to.type, to.bits, /*clear=*/true);
            VImage together(width, height, to.type, to.bits, /*clear=*/true);
            threadCount = 1;
            source.ConvertTo(alone, to.type, to.bits);
            threadCount = 3;
            source.ConvertTo(together, to.type, to.bits);
            threadCount = 1;
            EXPECT_EQ(0, std::memcmp(alone.PixelAddress(0, 0), together.PixelAddress(0, 0),
                                     std::size_t(alone.BytesPerLine()) * std::size_t(height)));
        }
    }
}

TEST(VImage_Copy, EverySixteenBitValue)
{
    VImage source(65536, 1, VImage::Grey, 16), bytes, floats, back, colours, grey;
    for (int x = 0; x < 65536; ++x)
        setSample(source, x, 0, 0, x);
    source.ConvertTo(bytes, VImage::Grey, 8);
    source.ConvertTo(floats, VImage::Grey, 32);
    floats.ConvertTo(back, VImage::Grey, 16);
    source.ConvertTo(colours, VImage::Rgb, 16);
    colours.ConvertTo(grey, VImage::Grey, 16);
    int wrong = 0;
    for (int x = 0; x < 65536; ++x)
        wrong +=
            sampleOf(bytes, x, 0, 0) != std::nearbyint(x / 257.0) || sampleOf(back, x, 0, 0) != x || sampleOf(grey, x, 0, 0) != x;
    EXPECT_EQ(0, wrong) << "nearest, and 16 bits come back from float and from equal colours";
}

struct Refusal
{
    const char *name;
    Form from, to;
    int rect[6]; ///< x, y, width, height, target x, target y; source and target are 4 x 3.
    const char *message;
};

TEST(VImage_Copy, Refusals)
{
    const Form rgb{VImage::Rgb, 8}, other{0x0040, 8}, bits1{VImage::Grey, 1}, none{0, 0};
    const Refusal refusals[] = {
        {"empty_source", none, rgb, {0, 0, 1, 1, 0, 0}, "Invalid Bitmap"},
        {"source_before_target", none, none, {0, 0, 1, 1, 0, 0}, "Invalid Bitmap"},
        {"source_depth", bits1, rgb, {0, 0, 1, 1, 0, 0}, "Invalid Bitmap"},
        {"source_type", other, rgb, {0, 0, 1, 1, 0, 0}, "Invalid Bitmap"},
        {"empty_target", rgb, none, {0, 0, 1, 1, 0, 0}, "Invalid Parameter"},
        {"target_type", rgb, other, {0, 0, 1, 1, 0, 0}, "Invalid Parameter"},
        {"target_depth", rgb, bits1, {0, 0, 1, 1, 0, 0}, "Invalid Parameter"},
        {"target_x", rgb, rgb, {0, 0, 1, 1, -1, 0}, "Invalid Parameter"},
        {"target_y", rgb, rgb, {0, 0, 1, 1, 0, -1}, "Invalid Parameter"},
        {"x", rgb, rgb, {-1, 0, 4, 1, 0, 0}, "Invalid Parameter"},
        {"y", rgb, rgb, {0, -1, 1, 4, 0, 0}, "Invalid Parameter"},
        {"empty_rectangle", rgb, rgb, {0, 0, 0, 3, 0, 0}, "no exception"},
        {"empty_rectangle_with_buffer", rgb, {VImage::Rgba, 16}, {0, 0, 4, 0, 0, 0}, "no exception"},
        {"far_edge_is_not_tested", rgb, rgb, {0, 0, 0, 0, 4, 3}, "no exception"},
        {"negative_reaching_past_the_far_edge", rgb, rgb, {-1, 0, 6, 0, 0, 0}, "no exception"},
        {"no_overflow_in_the_test", rgb, rgb, {-1, 0, std::numeric_limits<int>::min(), 1, 0, 0}, "Invalid Parameter"},
    };
    for (const Refusal &refusal : refusals) {
        VImage source, target;
        if (refusal.from.bits)
            source.Create(4, 3, refusal.from.type, refusal.from.bits, /*clear=*/true);
        if (refusal.to.bits)
            target.Create(4, 3, refusal.to.type, refusal.to.bits, /*clear=*/true);
        const int *r = refusal.rect;
        EXPECT_EQ(refusal.message, messageOf([&] { source.CopyRect(r[0], r[1], r[2], r[3], target, r[4], r[5]); }, kSource))
            << refusal.name;
    }
    VImage same;
    EXPECT_EQ("Invalid Parameter", messageOf([&] { same.CopyRect(0, 0, 1, 1, same, 0, 0); }, kSource));
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { same.ConvertTo(same, VImage::Rgb, 8); }, kSource));
    const VImage unknown(2, 2, 0x0080, 8);
    VImage target(3, 3, VImage::Grey, 8);
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { unknown.ConvertTo(target, VImage::Rgb, 8); }, kSource));
    EXPECT_EQ(VImage::Grey, target.Type()) << "refused before the target is shaped";
}

TEST(VImage_Copy, ConvertToWritesThroughAView)
{
    VImage source(2, 2, VImage::Grey, 8);
    std::memset(source.PixelAddress(0, 0), 50, 8);
    unsigned char memory[24] = {};
    VImage view(2, 2, VImage::Rgba, 8, /*clear=*/false, memory, 12);
    source.ConvertTo(view, VImage::Rgba, 8);
    EXPECT_EQ(memory, view.PixelAddress(0, 0));
    EXPECT_THAT(memory,
                testing::ElementsAre(50, 50, 50, 255, 50, 50, 50, 255, 0, 0, 0, 0, 50, 50, 50, 255, 50, 50, 50, 255, 0, 0, 0, 0));
}

TEST(VImage_Copy, ToQImage)
{
    VImage source(3, 2, VImage::Rgba, 32, /*clear=*/true);
    const double colour[] = {1.0, 0.2, 0.0, 0.6};
    for (int channel = 0; channel < 4; ++channel)
        setSample(source, 2, 1, channel, colour[channel]);
    QImage picture;
    source.ToQImage(picture);
    EXPECT_EQ(QSize(3, 2), picture.size());
    EXPECT_EQ(QImage::Format_ARGB32, picture.format());
    EXPECT_EQ(qRgba(255, 51, 0, 153), picture.pixel(2, 1));
    EXPECT_EQ(qRgba(0, 0, 0, 0), picture.pixel(0, 0));

    const VImage noRows(3, 0, VImage::Rgba, 32);
    noRows.ToQImage(picture);
    EXPECT_TRUE(picture.isNull());
    const VImage unknown(2, 2, 0x0080, 8);
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { unknown.ToQImage(picture); }, kSource));
}

} // namespace
