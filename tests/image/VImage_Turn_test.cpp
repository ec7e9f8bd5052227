#include "VImage.h"

#include <cstring>

#include <gtest/gtest.h>

#include "PlainImage.h"
#include "messageOf.h"

namespace {

struct Size
{
    int width, height;
};

TEST(VImage_Turn, EachOrientationAsAViewerDisplaysIt)
{
    VImage image(3, 2, VImage::Grey, 8), turned; // 1 2 3 / 4 5 6
    for (int i = 0; i < 6; ++i)
        setSample(image, i % 3, i / 3, 0, i + 1);
    const char *const shown[] = {"123/456", "321/654", "654/321", "456/123", "14/25/36", "41/52/63", "63/52/41", "36/25/14"};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        image.Turn(turned, orientation);
        std::string seen;
        for (int y = 0; y < turned.Height(); ++y) {
            seen += y > 0 ? "/" : "";
            for (int x = 0; x < turned.Width(); ++x)
                seen += char('0' + int(sampleOf(turned, x, y, 0)));
        }
        EXPECT_EQ(seen, shown[orientation - 1]) << orientation;
    }
}

/// Undoes each orientation; the bytes between the rows belong to the caller.
TEST(VImage_Turn, ThereAndBackGivesTheSameImageInEachForm)
{
    constexpr int kBack[] = {1, 2, 3, 4, 5, 8, 7, 6};
    Numbers numbers;
    for (const Form form : kForms)
        for (const Size size : {Size{1, 1}, Size{1, 33}, Size{64, 1}, Size{31, 65}, Size{70, 33}}) {
            const std::size_t row = std::size_t(size.width * form.channels() * form.bits / 8), stride = row + 6;
            std::vector<unsigned char> memory(stride * std::size_t(size.height));
            for (unsigned char &byte : memory)
                byte = static_cast<unsigned char>(numbers.next());
            const std::vector<unsigned char> before = memory;
            VImage view(size.width, size.height, form.type, form.bits, /*clear=*/false, memory.data(), int(stride));
            for (int orientation = 1; orientation <= 8; ++orientation) {
                VImage turned, back;
                view.Turn(turned, orientation);
                const int x = size.width / 2, y = size.height / 3; // one pixel in the middle; the way back checks all
                const bool lies = orientation >= 5;
                ASSERT_EQ(turned.Width(), lies ? size.height : size.width);
                const int across = orientation == 2 || orientation == 3 || orientation >= 7 ? size.width - 1 - x : x;
                const int down =
                    orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7 ? size.height - 1 - y : y;
                EXPECT_EQ(std::memcmp(turned.PixelAddress(lies ? down : across, lies ? across : down), view.PixelAddress(x, y),
                                      view.Bitmap()->bytesPerPixel),
                          0)
                    << orientation;
                turned.Turn(back, kBack[orientation - 1]);
                int wrong = 0;
                for (int line = 0; line < size.height; ++line)
                    wrong += std::memcmp(back.PixelAddress(0, line), view.PixelAddress(0, line), row) != 0;
                EXPECT_EQ(wrong, 0) << orientation << ", " << form.bits << " x " << form.channels();
                turned.Turn(view, kBack[orientation - 1]);
                EXPECT_EQ(memory, before);
            }
        }
}

TEST(VImage_Turn, WhatCannotBeTurnedLeavesTheTargetUnchanged)
{
    VImage image(2, 3, VImage::Rgb, 8, /*clear=*/true), four(2, 2, VImage::Grey, 4, /*clear=*/true),
        target(1, 1, VImage::Grey, 8);
    const auto refusal = [](const VImage &source, VImage &to, int orientation) {
        return messageOf([&] { source.Turn(to, orientation); }, "VImage_Turn.cpp");
    };
    EXPECT_EQ(refusal(VImage(), target, 1), "Invalid Bitmap");
    EXPECT_EQ(refusal(four, target, 1), "Invalid Bitmap");
    EXPECT_EQ(refusal(image, target, 0), "Invalid Parameter");
    EXPECT_EQ(refusal(image, target, 9), "Invalid Parameter");
    EXPECT_EQ(refusal(image, image, 5), "Invalid Parameter");
    EXPECT_EQ(target.Width(), 1);
}

} // namespace
