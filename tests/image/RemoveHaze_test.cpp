#include "RemoveHaze.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <limits>
#include <memory>
#include <vector>

#include <gtest/gtest.h>
#include <omp.h>

#include "HazeReference.h"
#include "HazeState.h"
#include "messageOf.h"
#include "threadCount.h"

using namespace hazeReference;

namespace {

/// A state that releases its map, as its owner must.
struct OwnedState : HazeState
{
    explicit OwnedState(int percent) : HazeState{percent, {-1.0f, -2.0f, -3.0f}, nullptr} {}
    ~OwnedState() { delete[] transmission; }
    OwnedState(const OwnedState &) = delete;
    OwnedState &operator=(const OwnedState &) = delete;
};

/// Stripes in haze that thickens towards the top, which is white.
Picture makeHazyScene(int width, int height)
{
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const float t = 0.1f + 0.9f * float(y) / float(height);
            const float scene[3] = {(x / 4) % 2 ? 0.4f : 0.05f, 0.3f, (x / 8) % 2 ? 0.02f : 0.2f};
            for (int c = 0; c < 3; ++c)
                picture.at(x, y)[c] = 0.95f + (scene[c] - 0.95f) * t;
            picture.at(x, y)[3] = 1.0f;
        }
    }
    return picture;
}

TEST(RemoveHaze, StrengthZeroTouchesNothing)
{
    VImage unfit(3, 3, VImage::Grey, 8, /*clear=*/true); // never examined
    OwnedState state(0);
    RemoveHaze(unfit, state);
    EXPECT_EQ(state.airlight[0], -1.0f);
    EXPECT_EQ(state.transmission, nullptr);
}

TEST(RemoveHaze, ASecondStrengthReusesTheMapAndTheTeamMakesNoDifference)
{
    Picture first = makeHazyScene(100, 100);
    OwnedState state(70);
    RemoveHaze(*first.image, state);
    ASSERT_NE(state.transmission, nullptr);
    const float *const map = state.transmission;
    EXPECT_NEAR(state.airlight[0], 0.9f, 0.1f);
    // Most of the haze at the top is gone; at the bottom there was hardly any.
    const Picture before = makeHazyScene(100, 100);
    EXPECT_LT(first.at(50, 30)[1], before.at(50, 30)[1] - 0.1f);
    EXPECT_NEAR(first.at(50, 95)[1], before.at(50, 95)[1], 0.25f);

    Picture second = makeHazyScene(100, 100);
    state.strength = 30;
    RemoveHaze(*second.image, state);
    EXPECT_EQ(state.transmission, map);
    Picture expected = makeHazyScene(100, 100);
    recover(expected, std::vector<float>(map, map + 10000), state.airlight, 30.0f / 100.0f);
    EXPECT_EQ(firstDifference(second.samples.data(), expected.samples.data(), expected.samples.size()), "");

    threadCount = 3;
    Picture third = makeHazyScene(100, 100);
    OwnedState fresh(70);
    RemoveHaze(*third.image, fresh);
    threadCount = 1;
    EXPECT_EQ(firstDifference(fresh.transmission, map, 10000), "");
    EXPECT_EQ(firstDifference(third.samples.data(), first.samples.data(), first.samples.size()), "");
}

int threadsOfTheProcess()
{
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    return int(std::distance(begin(tasks), end(tasks)));
}

TEST(RemoveHaze, StartsNoThreadBeyondItsTeam)
{
    // The run-time keeps its workers, so each count needs a separate process.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const int team : {1, 3}) {
        const auto startedThreads = [team] {
            omp_set_num_threads(5); // what the run-time would use by default
            threadCount = team;
            const Picture picture = makeHazyScene(100, 100);
            OwnedState state(70);
            const int before = threadsOfTheProcess();
            RemoveHaze(*picture.image, state);
            return state.transmission ? threadsOfTheProcess() - before : -1;
        };
        EXPECT_EXIT(std::_Exit(startedThreads()), testing::ExitedWithCode(team - 1), "") << team;
    }
}

TEST(RemoveHaze, ScenesWithoutRedAreDehazed)
{
    const struct
    {
        const char *name;
        float (*red)(int x, int y, float red);
    } rows[] = {
        {"no red at all", [](int, int, float) { return 0.0f; }},
        {"under water", [](int x, int y, float red) { return y > 60 && x % 8 == 0 ? red : 0.0f; }}, // near objects have some
    };
    for (const auto &row : rows) {
        Picture picture = makeHazyScene(100, 100);
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x)
                picture.at(x, y)[0] = row.red(x, y, picture.at(x, y)[0]);
        }
        const float before = picture.at(50, 30)[1];
        OwnedState state(70);
        RemoveHaze(*picture.image, state);
        ASSERT_NE(state.transmission, nullptr) << row.name;
        EXPECT_EQ(state.airlight[0], 0.0f) << row.name;
        EXPECT_LT(picture.at(50, 30)[1], before - 0.1f) << row.name;
    }
}

TEST(RemoveHaze, BrightFloatPicturesAreSolvedTheSameByAnyTeam)
{
    const struct
    {
        const char *name;
        bool grey;
        float factor, disc;
    } rows[] = {{"a clipped highlight", false, 1.0f, 60000.0f}, {"a grey scene in other units", true, 1000.0f, 0.0f}};
    for (const auto &row : rows) {
        std::vector<float> maps[2];
        for (const int team : {1, 8}) {
            Picture picture = makeHazyScene(120, 90);
            for (int y = 0; y < 90; ++y) {
                for (int x = 0; x < 120; ++x) {
                    float *const p = picture.at(x, y);
                    const bool inDisc = row.disc > 0.0f && (x - 80) * (x - 80) + (y - 25) * (y - 25) < 100;
                    const float grey = 0.3f * p[0] + 0.6f * p[1] + 0.1f * p[2];
                    for (int c = 0; c < 3; ++c)
                        p[c] = inDisc ? row.disc : (row.grey ? grey : p[c]) * row.factor;
                }
            }
            threadCount = team;
            OwnedState state(70);
            RemoveHaze(*picture.image, state);
            threadCount = 1;
            ASSERT_NE(state.transmission, nullptr) << row.name;
            maps[team / 8].assign(state.transmission, state.transmission + 120 * 90);
        }
        EXPECT_EQ(firstDifference(maps[0].data(), maps[1].data(), maps[0].size()), "") << row.name;
        // A dark map within 0 to 1 hardly leaves that range when it is refined.
        for (const float value : maps[0])
            ASSERT_TRUE(value > -0.1f && value < 1.1f) << row.name << ' ' << value;
    }
}

TEST(RemoveHaze, QuietExitsLeaveTheImageUnchanged)
{
    const float kNan = std::numeric_limits<float>::quiet_NaN();
    const float kInfinity = std::numeric_limits<float>::infinity();
    for (const float value : {kNan, kInfinity, -kInfinity}) {
        for (const bool everywhere : {false, true}) {
            Picture picture = makeHazyScene(40, 30);
            for (int i = 0; i < (everywhere ? 1200 : 1); ++i) {
                const int pixel = (i + 620) % 1200;
                picture.at(pixel % 40, pixel / 40)[1] = value;
            }
            const auto before = picture.samples;
            OwnedState state(70);
            RemoveHaze(*picture.image, state);
            EXPECT_EQ(state.transmission, nullptr) << value;
            EXPECT_EQ(firstDifference(picture.samples.data(), before.data(), before.size()), "") << value;
        }
    }
    VImage noRows(40, 0, VImage::Rgba, 32);
    OwnedState state(70);
    EXPECT_THROW(RemoveHaze(noRows, state), VException); // there is no valid size for the copy
    VImage noColumns(0, 40, VImage::Rgba, 32);
    RemoveHaze(noColumns, state);
    EXPECT_EQ(state.transmission, nullptr);
}

TEST(RemoveHaze, SizesOfTheCopy)
{
    const struct
    {
        int width, height;
        bool map;
        const char *failure = "no exception";
    } rows[] = {
        {20000, 5, true},                        // the copy has the image's size
        {21475, 10, false, "Not enough memory"}, // wraps below 0, as all widths do up to 42949
        {30000, 2, false, "Not enough memory"},
        {42949, 2, false, "Not enough memory"},
        {42950, 100, false}, // wraps to 18 x 0
        {43000, 100, false}, // wraps to 224 x 0
        {50000, 20, true},   // wraps to 5937 x 2
        {64425, 2, false, "Not enough memory"},
        {1, 1, true}, // 316 x 316 from one pixel
        {3, 2000, true},
    };
    for (const auto &row : rows) {
        VImage image(row.width, row.height, VImage::Rgba, 32);
        for (int y = 0; y < row.height; ++y) {
            auto *p = reinterpret_cast<float *>(image.PixelAddress(0, y));
            for (int x = 0; x < row.width; ++x, p += 4) {
                p[0] = p[1] = p[2] = 0.25f + float((x / 16 + y) % 4) / 8.0f;
                p[3] = 1.0f;
            }
        }
        OwnedState state(50);
        EXPECT_EQ(messageOf([&] { RemoveHaze(image, state); }), row.failure) << row.width;
        EXPECT_EQ(state.transmission != nullptr, row.map) << row.width;
    }
}

} // namespace
