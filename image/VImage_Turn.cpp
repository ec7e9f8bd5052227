#include "VImage.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "VException.h"

namespace {

/// What each orientation does to the stored picture: first the mirroring, then rows become columns.
struct Steps
{
    bool mirrored;      ///< Left and right are exchanged.
    bool upsideDown;    ///< Top and bottom are exchanged.
    bool rowsToColumns; ///< Pixel (x, y) moves to (y, x).
};
constexpr Steps kSteps[] = {{false, false, false}, {true, false, false}, {true, true, false}, {false, true, false},
                            {false, false, true},  {false, true, true},  {true, true, true},  {true, false, true}};

template<int pixelBytes>
using Pixel = std::array<unsigned char, pixelBytes>;

/// Rows stay rows.
template<int pixelBytes>
void flip(const VImage &source, VImage &target, Steps steps)
{
    using P = Pixel<pixelBytes>;
    const int width = source.Width(), height = source.Height();
    for (int y = 0; y < height; ++y) {
        const auto *from = reinterpret_cast<const P *>(source.PixelAddress(0, steps.upsideDown ? height - 1 - y : y));
        auto *to = reinterpret_cast<P *>(target.PixelAddress(0, y));
        if (steps.mirrored)
            std::reverse_copy(from, from + width, to);
        else
            std::copy(from, from + width, to);
    }
}

/// Rows become columns. Works in squares, so that both images stay within the cache: row by row, each pixel of one image would
/// fetch another cache line of the other.
template<int pixelBytes>
void exchangeRowsAndColumns(const VImage &source, VImage &target, Steps steps)
{
    using P = Pixel<pixelBytes>;
    constexpr int kSide = 32;
    const std::ptrdiff_t step = steps.upsideDown ? -std::ptrdiff_t(source.BytesPerLine()) : source.BytesPerLine();
    const int width = target.Width(), height = target.Height();
    for (int top = 0; top < height; top += kSide)
        for (int left = 0; left < width; left += kSide) {
            const int right = std::min(left + kSide, width), bottom = std::min(top + kSide, height);
            for (int y = top; y < bottom; ++y) {
                const unsigned char *from =
                    source.PixelAddress(steps.mirrored ? height - 1 - y : y, steps.upsideDown ? width - 1 - left : left);
                auto *to = reinterpret_cast<P *>(target.PixelAddress(left, y));
                for (int x = left; x < right; ++x, from += step, ++to)
                    *to = *reinterpret_cast<const P *>(from);
            }
        }
}

template<int pixelBytes>
void turn(const VImage &source, VImage &target, Steps steps)
{
    const int columns = steps.rowsToColumns ? source.Height() : source.Width();
    const int rows = steps.rowsToColumns ? source.Width() : source.Height();
    target.Create(columns, rows, source.Type(), source.BitsPerComponent());
    if (steps.rowsToColumns)
        exchangeRowsAndColumns<pixelBytes>(source, target, steps);
    else
        flip<pixelBytes>(source, target, steps);
}

} // namespace

void VImage::Turn(VImage &target, int orientation) const
{
    if (!bitmap)
        throw VException("Invalid Bitmap", V_LOCATION);
    if (&target == this || orientation < 1 || orientation > 8)
        throw VException("Invalid Parameter", V_LOCATION);
    const Steps steps = kSteps[orientation - 1];
    switch (bitmap->bytesPerPixel) { // of the nine forms
    case 1:
        return turn<1>(*this, target, steps);
    case 2:
        return turn<2>(*this, target, steps);
    case 3:
        return turn<3>(*this, target, steps);
    case 4:
        return turn<4>(*this, target, steps);
    case 6:
        return turn<6>(*this, target, steps);
    case 8:
        return turn<8>(*this, target, steps);
    case 12:
        return turn<12>(*this, target, steps);
    case 16:
        return turn<16>(*this, target, steps);
    default:
        throw VException("Invalid Bitmap", V_LOCATION);
    }
}
