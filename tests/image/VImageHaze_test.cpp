#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "HazeMattingRows.h"
#include "HazeReference.h"
#include "messageOf.h"
#include "threadCount.h"

using namespace hazeReference;

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr Kind kKinds[] = {Kind::Smooth, Kind::Noise, Kind::Steps, Kind::Wild};

struct Threads
{
    explicit Threads(int count) { threadCount = count; }
    ~Threads() { threadCount = 1; }
};

std::unique_ptr<float[]> darkChannelOf(const Picture &picture, float airlight[3])
{
    return std::unique_ptr<float[]>(picture.image->HazeDarkChannel(airlight));
}

void fill(Picture &picture, float r, float g, float b)
{
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const float colour[4] = {r, g, b, 1.0f};
            std::memcpy(picture.at(x, y), colour, sizeof colour);
        }
    }
}

TEST(VImageHaze, EveryStageRefusesOtherForms)
{
    VImage rgba(4, 4, VImage::Rgba, 32, /*clear=*/true);
    VImage rgb(4, 4, VImage::Rgb, 32);
    VImage shallow(4, 4, VImage::Rgba, 16);
    float map[16] = {};
    float airlight[3] = {1.0f, 1.0f, 1.0f};
    const auto message = [](auto &&call) { return messageOf(call, "VImageHaze.cpp"); };
    for (VImage *image : {&rgb, &shallow}) {
        const QString expected = QStringLiteral("Invalid Bitmap");
        EXPECT_EQ(message([&] { return image->HazeDarkChannel(airlight); }), expected);
        EXPECT_EQ(message([&] { return image->HazeMatting(map); }), expected);
        EXPECT_EQ(message([&] { image->HazeRecover(map, airlight, 0.5f); }), expected);
        EXPECT_EQ(message([&] { return image->HazeUpsample(map, &rgba); }), expected);
        EXPECT_EQ(message([&] { return rgba.HazeUpsample(map, image); }), expected);
        EXPECT_EQ(message([&] { return image->HazeJointUpsample(map, &rgba); }), expected);
        EXPECT_EQ(message([&] { return rgba.HazeJointUpsample(map, image); }), expected);
    }
}

TEST(HazeDarkChannel, EqualsThePlainVersion)
{
    const std::pair<int, int> sizes[] = {{1, 1},     {2, 7},    {7, 2},    {99, 99}, {100, 99},
                                         {301, 260}, {5, 1001}, {3, 2000}, {131, 17}};
    for (const auto &[width, height] : sizes) {
        for (const Kind kind : kKinds) {
            const Picture picture = makePicture(width, height, kind);
            SCOPED_TRACE(testing::Message() << width << " x " << height << ", kind " << int(kind));
            const auto expected = darkChannel(picture);
            for (const int threads : {1, 3}) {
                const Threads team(threads);
                float airlight[3] = {-3.0f, -3.0f, -3.0f};
                const auto map = darkChannelOf(picture, airlight);
                ASSERT_EQ(bool(map), bool(expected));
                if (!map)
                    continue;
                EXPECT_EQ(firstDifference(airlight, expected->airlight, 3), "");
                EXPECT_EQ(firstDifference(map.get(), expected->map.data(), expected->map.size()), "");
            }
        }
    }
}

TEST(HazeDarkChannel, ChannelsWithoutLightAreIgnored)
{
    const struct
    {
        const char *name;
        float airlight[3], colour[3], expected;
    } rows[] = {
        {"no red", {0.0f, 0.5f, 1.0f}, {0.0f, 0.25f, 0.25f}, 0.25f},
        {"no green", {0.5f, 0.0f, 1.0f}, {0.375f, 0.0f, 0.25f}, 0.25f},
        {"no blue", {1.0f, 0.5f, 0.0f}, {0.25f, 0.25f, 0.0f}, 0.25f},
        {"blue alone", {0.0f, 0.0f, 1.0f}, {0.0f, 0.0f, 0.25f}, 0.25f},
        {"red that the airlight lacks", {0.0f, 0.5f, 1.0f}, {0.5f, 0.25f, 0.25f}, 0.25f},
        {"black", {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}, 0.0f},
        {"only what the airlight lacks", {1.0f, 0.0f, 0.0f}, {kNan, 0.25f, 0.5f}, kInfinity},
    };
    for (const auto &row : rows) {
        Picture picture(6, 1);
        fill(picture, row.colour[0], row.colour[1], row.colour[2]);
        for (int x = 0; x < 3; ++x)
            std::memcpy(picture.at(x, 0), row.airlight, sizeof row.airlight);
        float airlight[3];
        const auto map = darkChannelOf(picture, airlight);
        ASSERT_TRUE(map) << row.name;
        EXPECT_EQ(firstDifference(airlight, row.airlight, 3), "") << row.name;
        EXPECT_EQ(map[5], row.expected) << row.name;
    }
}

TEST(HazeDarkChannel, IsNullWithoutACandidateAndDoesNotWriteTheAirlight)
{
    for (const float value : {kNan, -1.0f, -kInfinity}) {
        Picture picture(6, 5);
        fill(picture, value, value, value);
        float airlight[3] = {1.0f, 2.0f, 3.0f};
        EXPECT_FALSE(darkChannelOf(picture, airlight)) << value;
        EXPECT_EQ(airlight[0] + airlight[1] + airlight[2], 6.0f);
    }
    VImage empty(18, 0, VImage::Rgba, 32);
    float airlight[3];
    EXPECT_EQ(empty.HazeDarkChannel(airlight), nullptr);
}

/// The cells from HazeMattingRows, computed in `blocks` blocks of rows, as the upper triangle of a dense matrix.
std::vector<float> mattingCells(const Picture &picture, int blocks)
{
    const auto n = std::size_t(picture.width * picture.height);
    std::vector<float> matrix(n * n);
    HazeMattingRows rows(picture.samples.data(), std::ptrdiff_t(picture.stride), picture.width, picture.height);
    for (int block = 0; block < blocks; ++block) {
        const int end = picture.height * (block + 1) / blocks;
        int y = picture.height * block / blocks;
        for (rows.start(y, 0.001f); y < end; ++y) {
            const float *const cells = rows.next();
            for (int x = 0; x < picture.width; ++x) {
                for (int i = 0; i < HazeMattingRows::kCells; ++i) {
                    const auto offset = HazeMattingRows::offsetOf(i);
                    const int qx = x + offset.column;
                    const int qy = y + offset.row;
                    if (qx >= 0 && qx < picture.width && qy < picture.height)
                        matrix[std::size_t(y * picture.width + x) * n + std::size_t(qy * picture.width + qx)] =
                            cells[i * picture.width + x];
                }
            }
        }
    }
    return matrix;
}

TEST(HazeMatting, CellsAndSolutionAgreeWithThePlainVersion)
{
    const std::pair<int, int> sizes[] = {{3, 3}, {4, 3}, {3, 9}, {17, 11}, {150, 3}};
    for (const auto &[width, height] : sizes) {
        for (const Kind kind : {Kind::Smooth, Kind::Noise, Kind::Steps}) {
            SCOPED_TRACE(testing::Message() << width << " x " << height << ", kind " << int(kind));
            Picture picture = makePicture(width, height, kind);
            picture.at(1, 1)[3] = 0.0f; // counts like any other pixel
            const auto expected = mattingMatrix(picture);
            const auto cells = mattingCells(picture, 1);
            for (std::size_t i = 0; i < cells.size(); ++i)
                ASSERT_NEAR(cells[i], expected[i], 2e-6f) << i; // for an inverse that is rounded the other way
            EXPECT_EQ(firstDifference(mattingCells(picture, 3).data(), cells.data(), cells.size()), "");

            auto map = makeMap(width, height);
            std::vector<double> b;
            for (const float value : map)
                b.push_back(double(value) * 0.001);
            const auto solution = solve(expected, b);
            ASSERT_TRUE(picture.image->HazeMatting(map.data()));
            for (std::size_t i = 0; i < map.size(); ++i)
                EXPECT_NEAR(double(map[i]), solution[i], 5e-4) << i;
        }
    }
}

TEST(HazeMatting, WithoutWindowsOrWithoutContrastTheMapIsUnchanged)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {2, 9}, {9, 2}, {12, 10}};
    for (const auto &[width, height] : sizes) {
        Picture picture(width, height);
        fill(picture, 0.25f, 0.5f, 0.75f);
        auto map = makeMap(width, height);
        if (width > 2 && height > 2)
            std::fill(map.begin(), map.end(), 0.625f); // only a constant map has to stay unchanged
        const auto before = map;
        ASSERT_TRUE(picture.image->HazeMatting(map.data()));
        for (std::size_t i = 0; i < map.size(); ++i)
            EXPECT_NEAR(map[i], before[i], 1e-4f) << width << " x " << height; // condition number 1000, times 2^-24
    }
}

TEST(HazeMatting, AFailedSolveLeavesTheMapTimesLambda)
{
    for (const float value : {kNan, kInfinity}) {
        Picture picture = makePicture(8, 8, Kind::Noise);
        picture.at(4, 4)[1] = value;
        auto map = makeMap(8, 8);
        const auto before = map;
        EXPECT_FALSE(picture.image->HazeMatting(map.data()));
        for (std::size_t i = 0; i < map.size(); ++i)
            EXPECT_EQ(map[i], float(double(before[i]) * 0.001));
    }
}

TEST(HazeMatting, AWindowWithoutInverseCountsAsFlat)
{
    Picture flat(12, 8);
    fill(flat, 0.5f, 0.5f, 0.5f);
    const auto expected = mattingCells(flat, 1);
    const struct
    {
        const char *name;
        float factor[3];
        float grey; ///< Added to each channel.
    } rows[] = {{"the covariance overflows", {1e25f, 1.0f, 1.0f}, 0.0f},
                {"eps is lost in rounding", {0.01f, 0.01f, 0.01f}, 60000.0f}};
    for (const auto &row : rows) {
        Picture picture = makePicture(12, 8, Kind::Noise);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 12; ++x) {
                for (int c = 0; c < 3 && x > 2; ++c) // the first windows of each row have an inverse
                    picture.at(x, y)[c] = picture.at(x, y)[c] * row.factor[c] + row.grey;
            }
        }
        const auto cells = mattingCells(picture, 1);
        EXPECT_EQ(firstDifference(mattingCells(picture, 3).data(), cells.data(), cells.size()), "") << row.name;
        const std::size_t pixel = 4 * 12 + 8; // none of its windows reaches an untouched column
        EXPECT_EQ(firstDifference(&cells[pixel * 97], &expected[pixel * 97], 3), "") << row.name;
    }
}

TEST(HazeMatting, AnyTeamGivesTheSameBits)
{
    const Picture picture = makePicture(61, 43, Kind::Smooth);
    auto one = makeMap(61, 43);
    auto many = one;
    ASSERT_TRUE(picture.image->HazeMatting(one.data()));
    for (const int threads : {2, 5}) {
        auto map = many;
        const Threads team(threads);
        ASSERT_TRUE(picture.image->HazeMatting(map.data()));
        EXPECT_EQ(firstDifference(map.data(), one.data(), one.size()), "");
    }
}

TEST(HazeJointUpsample, EqualsThePlainVersion)
{
    const struct
    {
        int fineWidth, fineHeight, coarseWidth, coarseHeight;
    } rows[] = {{1, 1, 1, 1},     {20, 14, 20, 14}, {40, 28, 20, 14}, {33, 27, 20, 14},  {10, 7, 20, 14},
                {130, 5, 129, 5}, {300, 9, 151, 5}, {5, 61, 2, 20},   {257, 40, 90, 13}, {50, 50, 316, 3}};
    for (const auto &row : rows) {
        for (const Kind kind : kKinds) {
            SCOPED_TRACE(testing::Message() << row.fineWidth << " x " << row.fineHeight << " from " << row.coarseWidth << " x "
                                            << row.coarseHeight << ", kind " << int(kind));
            const Picture fine = makePicture(row.fineWidth, row.fineHeight, kind, 1);
            const Picture coarse = makePicture(row.coarseWidth, row.coarseHeight, kind, 2);
            auto map = makeMap(row.coarseWidth, row.coarseHeight);
            if (kind == Kind::Wild)
                map[map.size() / 2] = kNan;
            const auto expected = jointUpsample(fine, coarse, map);
            for (const int threads : {1, 3}) {
                const Threads team(threads);
                const std::unique_ptr<float[]> result(fine.image->HazeJointUpsample(map.data(), coarse.image.get()));
                EXPECT_EQ(firstDifference(result.get(), expected.data(), expected.size()), "");
            }
        }
    }
}

TEST(HazeUpsample, UsesGuidesAtPowersOfTwo)
{
    const struct
    {
        int width, height, steps;
    } rows[] = {{12, 9, 1}, {24, 16, 1}, {48, 32, 1}, {49, 33, 2}, {96, 64, 2}, {97, 65, 3}, {200, 133, 4}};
    for (const auto &row : rows) {
        const Picture full = makePicture(row.width, row.height, Kind::Smooth);
        const Picture low = makePicture(24, 16, Kind::Smooth);
        auto map = makeMap(24, 16);
        std::vector<Picture> guides;
        const VImage *finer = full.image.get();
        for (int step = row.steps - 1; step > 0; --step) {
            guides.emplace_back(24 << step, 16 << step);
            VImage guide;
            finer->Resample(guide, 24 << step, 16 << step);
            guide.ConvertTo(*guides.back().image, VImage::Rgba, 32);
            finer = guides.back().image.get();
        }
        auto expected = map;
        const Picture *coarse = &low;
        for (auto guide = guides.rbegin(); guide != guides.rend(); ++guide) {
            expected = jointUpsample(*guide, *coarse, expected);
            coarse = &*guide;
        }
        expected = jointUpsample(full, *coarse, expected);
        for (const int threads : {1, 3}) {
            const Threads team(threads);
            const std::unique_ptr<float[]> result(full.image->HazeUpsample(map.data(), low.image.get()));
            EXPECT_EQ(firstDifference(result.get(), expected.data(), expected.size()), "") << row.width;
        }
    }
}

TEST(HazeUpsample, AnEmptyLowImageGivesZeros)
{
    const Picture full = makePicture(5, 3, Kind::Noise);
    VImage low(0, 2, VImage::Rgba, 32);
    float nothing = 1.0f;
    const std::unique_ptr<float[]> result(full.image->HazeUpsample(&nothing, &low));
    for (std::size_t i = 0; i < 15; ++i)
        EXPECT_EQ(result[i], 0.0f);
}

TEST(HazeRecover, EqualsThePlainVersion)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {7, 3}, {131, 4}, {401, 160}}; // the last with a team
    const float airlight[3] = {0.9f, 0.8f, 0.7f};
    for (const auto &[width, height] : sizes) {
        for (const Kind kind : kKinds) {
            for (const float strength : {0.0f, 0.7f, 1.0f, 1.5f, -0.5f}) {
                auto map = makeMap(width, height);
                if (kind == Kind::Wild)
                    map[map.size() / 2] = kNan;
                Picture expected = makePicture(width, height, kind);
                recover(expected, map, airlight, strength);
                for (const int threads : {1, 3}) {
                    const Threads team(threads);
                    const Picture picture = makePicture(width, height, kind);
                    picture.image->HazeRecover(map.data(), airlight, strength);
                    EXPECT_EQ(firstDifference(picture.samples.data(), expected.samples.data(), expected.samples.size()), "")
                        << width << " x " << height << ", kind " << int(kind) << ", strength " << strength;
                }
            }
        }
    }
}

} // namespace
