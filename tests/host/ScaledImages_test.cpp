#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "ScaledImages.h"
#include "VException.h"

namespace {

constexpr std::size_t kBytes = 64 * 16; ///< Of one copy here.

ScaledImages::Key key(int number)
{
    return {QString::number(number), 64, 16};
}

ScaledImages::Image copy()
{
    return std::make_shared<VImage>(64, 16, VImage::Grey, 8);
}

/// Whether the copy would have to be made; it is not made here.
bool isGone(ScaledImages &images, int number)
{
    try {
        images.obtain(key(number), []() -> ScaledImages::Image { throw VException("made", V_LOCATION); });
        return false;
    } catch (const VException &) {
        return true;
    }
}

} // namespace

TEST(ScaledImages, TheLeastRecentlyUsedGoesFirstAndIfRoomDisplacesNothing)
{
    ScaledImages images(3 * kBytes);
    for (int number : {1, 2, 3})
        images.obtain(key(number), copy);
    EXPECT_FALSE(isGone(images, 1)); // and is the most recent now
    images.obtain(key(4), copy, ScaledImages::Keep::IfRoom);
    EXPECT_TRUE(isGone(images, 4));
    const ScaledImages::Image inUse = images.obtain(key(2), copy);
    images.obtain(key(5), copy);
    EXPECT_EQ(images.bytes(), 3 * kBytes);
    EXPECT_TRUE(isGone(images, 3));
    for (int number : {1, 2, 5})
        EXPECT_FALSE(isGone(images, number)) << number;
    for (int number : {6, 7, 8})
        images.obtain(key(number), copy);
    EXPECT_TRUE(isGone(images, 2));
    EXPECT_EQ(inUse->Width(), 64);

    ScaledImages small(kBytes / 2); // the copy on the screen is kept, however large
    small.obtain(key(1), copy);
    EXPECT_FALSE(isGone(small, 1));
    small.obtain(key(2), copy);
    EXPECT_EQ(small.bytes(), kBytes);
}

TEST(ScaledImages, SeveralThreadsGetOneCopyThatIsMadeOnce)
{
    ScaledImages images(10 * kBytes);
    std::atomic<int> made{0};
    std::vector<std::thread> team;
    for (int member = 0; member < 4; ++member)
        team.emplace_back([&] {
            for (int number = 0; number < 5; ++number)
                images.obtain(key(number), [&] {
                    ++made;
                    return copy();
                });
        });
    for (std::thread &member : team)
        member.join();
    EXPECT_EQ(made, 5);
    EXPECT_EQ(images.bytes(), 5 * kBytes);
}
