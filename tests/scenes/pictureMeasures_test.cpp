#include "pictureMeasures.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "VImage.h"
#include "drawDepthScene.h"

namespace {

using testing::DoubleNear;

constexpr int kWidth = 300, kHeight = 200;

/// A map with this value at each pixel.
template<typename Value>
std::vector<float> mapOf(Value value)
{
    std::vector<float> map;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            map.push_back(float(value(x, y)));
    return map;
}

template<typename Grey>
void fill(VImage &image, Grey grey)
{
    image.Create(kWidth, kHeight, VImage::Rgba, 32);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            auto *pixel = reinterpret_cast<float *>(image.PixelAddress(x, y));
            pixel[0] = pixel[1] = pixel[2] = float(grey(x, y));
            pixel[3] = x < 30 ? 0.0f : 1.0f;
        }
}

TEST(PictureMeasures, PicturesAreComparedWhereTheyAreOpaque)
{
    const auto wave = [](int x, int y) { return 0.4 + 0.2 * std::sin(x * 0.3) * std::cos(y * 0.4); };
    VImage truth, same, lighter, flat;
    fill(truth, wave);
    fill(same, [&](int x, int y) { return x < 30 ? 0.9 : wave(x, y); });
    fill(lighter, [&](int x, int y) { return wave(x, y) + 0.1; });
    fill(flat, [](int, int) { return 0.4; });
    EXPECT_EQ(psnr(same, truth), 99.0);
    EXPECT_THAT(ssim(same, truth), DoubleNear(1.0, 1e-12));
    EXPECT_THAT(psnr(lighter, truth), DoubleNear(20.0, 1e-4));
    EXPECT_GT(ssim(lighter, truth), 0.9); // the structure is the same
    EXPECT_LT(ssim(flat, truth), 0.4);
}

TEST(PictureMeasures, MapErrorLeavesOutWhatIsNotKnown)
{
    const MapError error = mapError({0.5f, 0.2f, 0.9f}, {0.25f, 0.7f, std::numeric_limits<float>::quiet_NaN()});
    EXPECT_THAT(error.absolute, DoubleNear(0.375, 1e-6));
    EXPECT_THAT(error.bias, DoubleNear(-0.125, 1e-6));
}

TEST(PictureMeasures, EdgesInEveryDirection)
{
    const double turns[] = {0.0, 0.5, 0.8, 1.5708, 3.0, 4.2};
    for (const double turn : turns) {
        const auto away = [&](int x, int y) { return (x - 150) * std::cos(turn) + (y - 100) * std::sin(turn); };
        const auto truth = mapOf([&](int x, int y) { return away(x, y) > 0 ? 0.8 : 0.2; });
        const auto exact = edgeFigures(truth, truth, kWidth, kHeight);
        ASSERT_TRUE(exact) << turn;
        EXPECT_EQ(exact->halo, 0.0) << turn;
        EXPECT_THAT(exact->stepKept, DoubleNear(1.0, 1e-6)) << turn;

        const auto late = edgeFigures(mapOf([&](int x, int y) { return away(x, y) > -4.5 ? 0.8 : 0.2; }), truth, kWidth, kHeight);
        EXPECT_THAT(late->halo, DoubleNear(4.5, 1.0)) << turn;
        const auto weak = edgeFigures(mapOf([&](int x, int y) { return away(x, y) > 0 ? 0.6 : 0.3; }), truth, kWidth, kHeight);
        EXPECT_EQ(weak->halo, 0.0) << turn;
        EXPECT_THAT(weak->stepKept, DoubleNear(0.5, 1e-6)) << turn;
    }
    const auto level = mapOf([](int x, int) { return x * 0.003; });
    EXPECT_FALSE(edgeFigures(level, level, kWidth, kHeight));
}

TEST(PictureMeasures, ScenesAreMixedFromTheirParts)
{
    for (const QString &name : depthSceneNames()) {
        if (name.contains("noise") || name.contains("night") || name == "landscape")
            continue;
        const DepthScene scene = drawDepthScene(name, 60, 40);
        ASSERT_EQ(scene.transmission.size(), 2400u);
        std::size_t faults = 0, transparent = 0;
        for (std::size_t i = 0; i < scene.transmission.size(); ++i) {
            const float t = scene.transmission[i];
            transparent += std::isnan(t);
            if (std::isnan(t) ? scene.hazy[4 * i + 3] != 0.0f : t < 0.0f || t > 1.0f)
                ++faults;
            // In a pixel on an edge, the mean of both sides' mixtures is not the mixture of their means.
            for (std::size_t c = 0; c < 3 && !std::isnan(t); ++c)
                if (std::fabs(scene.hazy[4 * i + c] - scene.airlight[c] - t * (scene.truth[4 * i + c] - scene.airlight[c])) >
                    0.25f)
                    ++faults;
        }
        EXPECT_EQ(faults, 0u) << qPrintable(name);
        EXPECT_EQ(transparent > 0, name.contains("border")) << qPrintable(name);
    }
    EXPECT_TRUE(drawDepthScene("unknown", 60, 40).hazy.empty());
}

} // namespace
