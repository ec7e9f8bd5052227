#include "transpose.h"

#include <algorithm>
#include <array>

#include "VException.h"
#include "VImage.h"

namespace {

/// In squares, so that both images stay within the cache: taken by rows, each pixel of the one would fetch a line of the other.
template<int pixelBytes>
void transposePixels(const VImage &source, VImage &target)
{
    using Pixel = std::array<unsigned char, pixelBytes>;
    constexpr int kSide = 32;
    const std::ptrdiff_t stride = source.BytesPerLine();
    const int width = target.Width(), height = target.Height();
    for (int top = 0; top < height; top += kSide)
        for (int left = 0; left < width; left += kSide) {
            const int right = std::min(left + kSide, width), bottom = std::min(top + kSide, height);
            for (int y = top; y < bottom; ++y) {
                const unsigned char *from = source.PixelAddress(y, left);
                auto *to = reinterpret_cast<Pixel *>(target.PixelAddress(left, y));
                for (int x = left; x < right; ++x, from += stride, ++to)
                    *to = *reinterpret_cast<const Pixel *>(from);
            }
        }
}

} // namespace

void transpose(const VImage &source, VImage &target)
{
    target.Create(source.Height(), source.Width(), source.Type(), source.BitsPerComponent());
    switch (source.Bitmap()->bytesPerPixel) {
    case 1:
        return transposePixels<1>(source, target);
    case 2:
        return transposePixels<2>(source, target);
    case 3:
        return transposePixels<3>(source, target);
    case 4:
        return transposePixels<4>(source, target);
    case 6:
        return transposePixels<6>(source, target);
    case 8:
        return transposePixels<8>(source, target);
    case 12:
        return transposePixels<12>(source, target);
    case 16:
        return transposePixels<16>(source, target);
    default:
        throw VException("Invalid Bitmap", V_LOCATION);
    }
}
