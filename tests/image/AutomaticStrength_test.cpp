#include <cstring>
#include <limits>

#include <gtest/gtest.h>

#include "AutomaticStrength.h"
#include "VImage.h"

namespace {

/// From left to right, in columns: nothing (black under alpha 0), sky of 0.8, things of `red` and 0.4 or, if grey, of 0.2. The
/// map is 0.25 over the things but 1 in the sky, and the sky is the airlight, which no strength changes. So at strength s the
/// mean is 0.8 - q (0.8 - L) / (1 - s / 4), L being the luminance of the things and q their share of what isn't transparent.
struct Picture
{
    int transparent, sky, things, height;
    bool grey = true;
};

void draw(const Picture &picture, VImage &image)
{
    image.Create(picture.transparent + picture.sky + picture.things, picture.height, VImage::Rgba, 32);
    for (int y = 0; y < picture.height; ++y) {
        auto *pixel = reinterpret_cast<float *>(image.PixelAddress(0, y));
        for (int x = 0; x < image.Width(); ++x, pixel += 4) {
            const bool sky = x < picture.transparent + picture.sky;
            const float first = x < picture.transparent ? 0.0f : sky ? 0.8f : 0.2f;
            pixel[0] = first;
            pixel[1] = pixel[2] = sky || picture.grey ? first : 0.4f;
            pixel[3] = x < picture.transparent ? 0.0f : 1.0f;
        }
    }
}

} // namespace

TEST(AutomaticStrength, IsTheHighestThatKeepsThePictureBrightEnough)
{
    // All are the size of their own copy of 100,000 pixels, so that nothing is scaled.
    const struct
    {
        Picture picture;
        int strength;
    } cases[] = {
        {{0, 149, 167, 316}, 66},       // s = 4 (1 - 167 / 316 * 0.6 / 0.38) = 0.662
        {{0, 166, 150, 316}, 80},       // 1.002
        {{0, 126, 190, 316}, 50},       // 0.203
        {{0, 97, 219, 316, false}, 64}, // 4 (1 - 219 / 316 * 0.4598 / 0.38) = 0.646
        {{100, 99, 117, 316}, 57},      // 4 (1 - 117 / 216 * 0.6 / 0.38) = 0.579; transparent black doesn't count
        {{0, 11900, 13100, 4}, 69},     // 0.691; the width times 100,000 is beyond 31 bits
    };
    for (const auto &[picture, strength] : cases) {
        VImage image;
        draw(picture, image);
        EXPECT_EQ(AutomaticStrength::of(image), strength) << picture.things;
    }
}

TEST(AutomaticStrength, IsTheSameForAllFormsAndSizesOfAPicture)
{
    VImage image;
    draw({0, 149, 167, 316}, image);
    for (const unsigned short type : {VImage::Grey, VImage::Rgb, VImage::Rgba})
        for (const int bits : {8, 16, 32}) {
            VImage same, scaled;
            image.ConvertTo(same, type, bits);
            EXPECT_EQ(AutomaticStrength::of(same), 66) << type << ' ' << bits;
            same.Resample(scaled, 632, 632);
            EXPECT_NEAR(AutomaticStrength::of(scaled).value_or(0), 66, 1) << type << ' ' << bits; // the edge is smooth now
        }
}

TEST(AutomaticStrength, IsNothingWhereTheEngineChangesNothingAndInRangeElsewhere)
{
    constexpr float kNothing = std::numeric_limits<float>::quiet_NaN(), kInfinite = std::numeric_limits<float>::infinity();
    const struct
    {
        int width, height;
        float red, alpha;
        std::optional<int> strength;
    } cases[] = {
        {316, 316, kNothing, 1, std::nullopt},
        {316, 316, kInfinite, 1, std::nullopt},
        {316, 316, -2, 1, std::nullopt},
        {316, 316, 0.5f, 0, std::nullopt},
        {1, 200000, 0.5f, 1, std::nullopt},
        {1, 1, 0.5f, 1, 80},
        {1, 1, 0.4f, 1, 50},
        {90000, 1, 300, 1, 80},
        {2, 3, 0, 1, 50},
    };
    for (const auto &[width, height, red, alpha, strength] : cases) {
        VImage image(width, height, VImage::Rgba, 32);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const float pixel[] = {red, red, red, alpha};
                std::memcpy(image.PixelAddress(x, y), pixel, sizeof pixel);
            }
        EXPECT_EQ(AutomaticStrength::of(image), strength) << width << ' ' << red << ' ' << alpha;
    }
    EXPECT_EQ(AutomaticStrength::of(VImage()), std::nullopt);
}
