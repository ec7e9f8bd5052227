#include "VImage.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

#include <gmock/gmock.h>

#include "gflCallbacks.h"
#include "messageOf.h"

// The image record gets its memory through these three; here the first one fails on request and returns blocks that are not zero.
// This program links the record alone, as a host may.
namespace {
int allocationsUntilFailure = -1;
} // namespace

void *gflAllocCallback(std::size_t bytes, void *tag)
{
    EXPECT_NE(nullptr, tag);
    if (allocationsUntilFailure == 0)
        return nullptr;
    allocationsUntilFailure -= allocationsUntilFailure > 0;
    void *block = std::malloc(bytes);
    return block ? std::memset(block, 0xA5, std::min<std::size_t>(bytes, 4096)) : nullptr;
}
void *gflReallocCallback(void *block, std::size_t bytes, void *)
{
    return std::realloc(block, bytes);
}
void gflFreeCallback(void *block, void *)
{
    std::free(block);
}

namespace {

struct Shape
{
    const char *name;
    int width, height;
    unsigned short type;
    int bits;
    int bytesPerLine, bytesPerPixel, components, colorUsed;
};

TEST(VImage, CreateFillsTheRecord)
{
    const Shape shapes[] = {
        {"grey8", 5, 2, VImage::Grey, 8, 8, 1, 1, 256},
        {"grey16", 3, 2, VImage::Grey, 16, 8, 2, 1, 256},
        {"rgb8", 5, 3, VImage::Rgb, 8, 16, 3, 3, 0},
        {"rgb16", 1, 1, VImage::Rgb, 16, 8, 6, 3, 0},
        {"rgba32", 3, 1, VImage::Rgba, 32, 48, 16, 4, 0},
        {"noRows", 7, 0, VImage::Rgba, 8, 28, 4, 4, 0},
        {"palette", 2, 2, 0x0004, 8, 4, 1, 1, 256},
        {"bitmap", 9, 2, 0x0001, 1, 0, 0, 1, 0},
        {"otherThree", 2, 2, 0x1000, 8, 8, 3, 3, 0},
        {"otherFour", 2, 2, 0x2000, 8, 8, 4, 4, 0},
        {"severalBits", 2, 2, VImage::Grey | 0x10, 8, 4, 1, 1, 0},
    };
    for (const Shape &shape : shapes) {
        SCOPED_TRACE(shape.name);
        const VImage image(shape.width, shape.height, shape.type, shape.bits, /*clear=*/true);
        const GflBitmap &record = *image.Bitmap();
        EXPECT_EQ(shape.type, image.Type());
        EXPECT_EQ(shape.width, image.Width());
        EXPECT_EQ(shape.height, image.Height());
        EXPECT_EQ(shape.bits, image.BitsPerComponent());
        EXPECT_EQ(shape.bytesPerLine, image.BytesPerLine());
        EXPECT_EQ(shape.bytesPerPixel, record.bytesPerPixel);
        EXPECT_EQ(shape.components, record.componentsPerPixel);
        EXPECT_EQ(shape.colorUsed, record.colorUsed);
        EXPECT_EQ(4, record.lineAlignment);
        EXPECT_EQ(-1, record.transparentIndex);
        EXPECT_EQ(0, record.origin | record.xDpi | record.yDpi | record.xOffset | record.yOffset);
        EXPECT_FALSE(record.comment || record.metaData || record.name);
        EXPECT_EQ(shape.type == 0x0004, record.colorMap != nullptr);
        if (record.colorMap) {
            EXPECT_THAT(std::vector<char>(1024), testing::ElementsAreArray(static_cast<char *>(record.colorMap), 1024));
        }
        for (int i = 0; i < shape.height * shape.bytesPerLine; ++i)
            ASSERT_EQ(0, image.PixelAddress(0, 0)[i]);
    }
}

TEST(VImage, SameShapeKeepsPixels)
{
    VImage image(3, 2, VImage::Grey, 8);
    std::memset(image.PixelAddress(0, 0), 7, 8);
    const unsigned char *const pixels = image.PixelAddress(0, 0);
    image.Create(3, 2, VImage::Grey, 8);
    EXPECT_EQ(pixels, image.PixelAddress(0, 0));
    EXPECT_EQ(7, *image.PixelAddress(2, 1));
    image.Create(3, 2, VImage::Grey, 8, /*clear=*/true);
    EXPECT_EQ(pixels, image.PixelAddress(0, 0));
    EXPECT_EQ(0, *image.PixelAddress(2, 1));

    unsigned char memory[12];
    std::memset(memory, 9, sizeof(memory));
    image.Create(3, 2, VImage::Grey, 8, /*clear=*/false, memory, 6); // same shape, but different memory
    EXPECT_EQ(memory + 7, image.PixelAddress(1, 1));
    EXPECT_EQ(2, image.Bitmap()->lineAlignment);
    image.Create(3, 2, VImage::Grey, 8, /*clear=*/true); // still a view
    EXPECT_EQ(memory, image.PixelAddress(0, 0));
    EXPECT_THAT(memory, testing::Each(0));
    image.Create(2, 2, VImage::Grey, 8, /*clear=*/false, memory, 8);
    EXPECT_EQ(4, image.Bitmap()->lineAlignment);
    image.Create(2, 2, VImage::Rgb, 8);
    EXPECT_FALSE(image.PixelAddress(0, 0) >= memory && image.PixelAddress(0, 0) < memory + sizeof(memory));
}

TEST(VImage, FreeDoesNotReleaseTheMemoryOfAView)
{
    unsigned char memory[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    VImage image(2, 2, VImage::Grey, 8, /*clear=*/false, memory, 4);
    image.Free();
    image.Free();
    EXPECT_EQ(nullptr, image.Bitmap());
    EXPECT_THAT(memory, testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
}

TEST(VImage, AssignCopiesDeeply)
{
    unsigned char memory[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    VImage source(2, 2, VImage::Grey, 8, /*clear=*/false, memory, 5);
    int notCloned = 0;
    char name[] = "dusk";
    GflBitmap &record = *source.Bitmap();
    record.comment = record.metaData = &notCloned;
    record.name = name;
    record.xDpi = 300;
    record.xOffset = 11;
    record.reserved = 77;
    VImage copy(9, 9, VImage::Rgb, 8);
    copy.Assign(source);
    record.comment = record.metaData = record.name = nullptr;

    EXPECT_EQ(5, copy.BytesPerLine());
    EXPECT_EQ(0, std::memcmp(copy.PixelAddress(0, 0), memory, 10)) << "row tails are copied too";
    EXPECT_EQ(nullptr, copy.Bitmap()->comment);
    EXPECT_EQ(nullptr, copy.Bitmap()->metaData);
    EXPECT_STREQ("dusk", copy.Bitmap()->name);
    EXPECT_NE(name, copy.Bitmap()->name);
    EXPECT_EQ(300, copy.Bitmap()->xDpi);
    EXPECT_EQ(11, copy.Bitmap()->xOffset);
    EXPECT_EQ(77, copy.Bitmap()->reserved);
    *copy.PixelAddress(0, 0) = 99;
    EXPECT_EQ(1, memory[0]);

    VImage palette(2, 2, 0x0004, 8, /*clear=*/true);
    static_cast<char *>(palette.Bitmap()->colorMap)[1023] = 5;
    copy.Assign(palette);
    EXPECT_EQ(5, static_cast<char *>(copy.Bitmap()->colorMap)[1023]);
    EXPECT_NE(palette.Bitmap()->colorMap, copy.Bitmap()->colorMap);

    copy.Assign(VImage());
    EXPECT_EQ(nullptr, copy.Bitmap());
}

TEST(VImage, UnknownTypeLeavesTheImageEmpty)
{
    VImage image(2, 2, VImage::Rgb, 8);
    EXPECT_EQ("Invalid Parameter", messageOf([&] { image.Create(2, 2, 0x0008, 8); }));
    EXPECT_EQ(nullptr, image.Bitmap());
}

TEST(VImage, SizesTooLargeForMemory)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    const int sizes[][2] = {{-1, 1}, {1, -1}, {-1, -1}, {-46341, -46341}, {kMost, 1}, {kMost / 16 + 1, 1}, {1 << 26, kMost}};
    for (const auto &size : sizes) {
        VImage image;
        EXPECT_EQ("Not enough memory", messageOf([&] { image.Create(size[0], size[1], VImage::Rgba, 32); })) << size[0];
        EXPECT_NE(nullptr, image.Bitmap());
        EXPECT_EQ("Not enough memory", messageOf([&] { const VImage made(size[0], size[1], VImage::Rgba, 32); })) << size[0];
    }
}

TEST(VImage, AfterEveryFailedAllocationTheImageCanBeFreed)
{
    VImage source(2, 2, 0x0004, 8, /*clear=*/true);
    char name[] = "n";
    source.Bitmap()->name = name;
    // Record, pixels and palette. A palette that Create or a name that Assign can't allocate is simply missing.
    const char *const createMessages[] = {"Not enough memory", "Not enough memory", "no exception"};
    const char *const assignMessages[] = {"Not enough memory", "Not enough memory", "Not enough memory", "no exception"};
    for (std::size_t failing = 0; failing < std::size(createMessages); ++failing) {
        VImage image;
        allocationsUntilFailure = int(failing);
        EXPECT_EQ(createMessages[failing], messageOf([&] { image.Create(2, 2, 0x0004, 8); })) << failing;
        allocationsUntilFailure = -1;
        EXPECT_EQ(failing != 0, image.Bitmap() != nullptr);
    }
    for (std::size_t failing = 0; failing < std::size(assignMessages); ++failing) {
        VImage image;
        allocationsUntilFailure = int(failing);
        EXPECT_EQ(assignMessages[failing], messageOf([&] { image.Assign(source); })) << failing;
        allocationsUntilFailure = -1;
        image.Create(2, 2, 0x0004, 8);
        EXPECT_NE(nullptr, image.Bitmap()->data) << failing;
    }
    source.Bitmap()->name = nullptr;
}

TEST(VImage, MoreThanTwoGibibytes)
{
#if defined(__has_feature)
#    if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
    GTEST_SKIP() << "too slow with a sanitizer";
#    endif
#endif
    VImage image;
    if (messageOf([&] { image.Create(12000, 12000, VImage::Rgba, 32); }) != "no exception")
        GTEST_SKIP() << "no 2.3 GB of memory here";
    EXPECT_EQ(std::ptrdiff_t{192000} * 11999 + 191984, image.PixelAddress(11999, 11999) - image.PixelAddress(0, 0));
    *image.PixelAddress(11999, 11999) = 1; // the last pixel really exists
    EXPECT_EQ(1, *image.PixelAddress(11999, 11999));
}

} // namespace
