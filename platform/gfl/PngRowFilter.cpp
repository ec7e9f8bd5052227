#include "PngRowFilter.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "InstructionSet.h"

namespace gfl {
namespace {

constexpr int kSub = 1;
constexpr int kUp = 2;
constexpr int kPaeth = 4;

/// Filters `count` bytes at `x` with the pixels to the left (a), above (b) and to the left of that (c). Returns the sum of
/// magnitudes.
template<int kind>
NIMBRA_INLINE std::uint32_t filterBytes(const std::uint8_t *x, const std::uint8_t *a, const std::uint8_t *b,
                                        const std::uint8_t *c, std::uint8_t *out, std::size_t count)
{
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        std::uint8_t nearest;
        if (kind == kUp) {
            nearest = b[i];
        } else if (kind == kSub) {
            nearest = a[i];
        } else {
            const short toA = short(b[i] - c[i]); // p - a, where p = a + b - c
            const short toB = short(a[i] - c[i]);
            const short toC = short(toA + toB);
            const short sizeA = short(toA < 0 ? -toA : toA);
            const short sizeB = short(toB < 0 ? -toB : toB);
            const short sizeC = short(toC < 0 ? -toC : toC);
            const std::uint8_t nearestBc = sizeB <= sizeC ? b[i] : c[i];
            nearest = sizeA <= std::min(sizeB, sizeC) ? a[i] : nearestBc;
        }
        out[i] = std::uint8_t(x[i] - nearest);
        sum += std::uint8_t(out[i] < 128 ? out[i] : 256 - out[i]);
    }
    return sum;
}

/// Filters a row of `count` bytes. `row` and `above` begin with a pixel that is not filtered.
NIMBRA_INLINE std::uint64_t filterRowBody(int kind, const std::uint8_t *row, const std::uint8_t *above, std::size_t pixelBytes,
                                          std::uint8_t *out, std::size_t count)
{
    constexpr std::size_t kPart = std::size_t(1) << 16; // its sum fits into 32 bits
    std::uint64_t sum = 0;
    for (std::size_t start = 0; start < count; start += kPart) {
        const std::size_t part = std::min(kPart, count - start);
        const std::uint8_t *a = row + start, *c = above + start;
        const std::uint8_t *x = a + pixelBytes, *b = c + pixelBytes;
        sum += kind == kUp    ? filterBytes<kUp>(x, a, b, c, out + start, part)
               : kind == kSub ? filterBytes<kSub>(x, a, b, c, out + start, part)
                              : filterBytes<kPaeth>(x, a, b, c, out + start, part);
    }
    return sum;
}

} // namespace

PngRowFilter::PngRowFilter(std::size_t bytesPerRow, std::size_t bytesPerPixel)
    : rowBytes(bytesPerRow), pixelBytes(bytesPerPixel), current(rowBytes + pixelBytes), above(rowBytes + pixelBytes),
      candidate(rowBytes + 1)
{
}

void PngRowFilter::filter(std::uint8_t *target)
{
    static const auto filterRow = versionOf<filterRowBody>();
    std::uint64_t best = std::numeric_limits<std::uint64_t>::max();
    for (const int kind : {kUp, kSub, kPaeth}) {
        candidate[0] = std::uint8_t(kind);
        const std::uint64_t sum = filterRow(kind, current.data(), above.data(), pixelBytes, candidate.data() + 1, rowBytes);
        if (sum < best) {
            best = sum;
            std::memcpy(target, candidate.data(), rowBytes + 1);
        }
    }
    current.swap(above);
}

} // namespace gfl
