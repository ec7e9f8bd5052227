#include "clippedPixels.h"

#include <limits>
#include <type_traits>

#include "VImage.h"

namespace {

template<typename Sample, int kChannels>
void findInRow(const void *row, int width, std::uint8_t *marks)
{
    constexpr Sample kFull = std::is_floating_point_v<Sample> ? Sample(1) : std::numeric_limits<Sample>::max();
    constexpr int kColours = kChannels == 1 ? 1 : 3;
    const auto *pixel = static_cast<const Sample *>(row);
    for (int x = 0; x < width; ++x, pixel += kChannels) {
        bool black = false, white = false;
        for (int channel = 0; channel < kColours; ++channel) {
            black = black || pixel[channel] <= Sample(0);
            white = white || pixel[channel] >= kFull;
        }
        const bool seen = kChannels < 4 || pixel[kChannels - 1] > Sample(0);
        marks[x] = seen ? std::uint8_t((black ? kClippedBlack : 0) | (white ? kClippedWhite : 0)) : std::uint8_t(0);
    }
}

template<typename Sample>
void findInRow(const VImage &picture, int y, std::uint8_t *marks)
{
    const auto find = picture.Type() == VImage::Grey  ? findInRow<Sample, 1>
                      : picture.Type() == VImage::Rgb ? findInRow<Sample, 3>
                                                      : findInRow<Sample, 4>;
    find(picture.PixelAddress(0, y), picture.Width(), marks);
}

} // namespace

void findClippedPixels(const VImage &picture, int y, std::uint8_t *marks)
{
    if (picture.BitsPerComponent() == 8)
        findInRow<std::uint8_t>(picture, y, marks);
    else if (picture.BitsPerComponent() == 16)
        findInRow<std::uint16_t>(picture, y, marks);
    else
        findInRow<float>(picture, y, marks);
}
