#include "ipp.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "InstructionSet.h"

/// The minimum over a window in three comparisons per sample, whatever the window's size: positions are divided into blocks as
/// long as the window, so that a window is the tail of one block and the head of the next. Source: M. van Herk, A fast algorithm
/// for local minimum and maximum filters on rectangular and octagonal kernels, Pattern Recognition Letters 13 (1992).
///
/// Samples are compared as integers that sort like their values, with -0.0 below 0.0 and NaN above all. The minimum then does not
/// depend on the order of comparisons, so columns can be filtered before rows.

namespace {

constexpr int kChannels = 4;
constexpr int kTilePixels = 128; ///< Columns are filtered in tiles, so that the rows of one window stay in the innermost caches.
constexpr int kTileSamples = kTilePixels * kChannels;
constexpr std::int32_t kNone = std::numeric_limits<std::int32_t>::max(); ///< A sample outside the raster; above every value.

NIMBRA_INLINE std::int32_t rankOf(float value)
{
    std::int32_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    const std::int32_t magnitude = bits & 0x7fffffff;
    return magnitude > 0x7f800000 ? kNone : bits ^ ((bits >> 31) & 0x7fffffff);
}

NIMBRA_INLINE float valueOf(std::int32_t rank)
{
    const std::int32_t bits = rank ^ ((rank >> 31) & 0x7fffffff);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

template<typename T>
NIMBRA_INLINE T *rowOf(T *first, int stepBytes, int row)
{
    using Byte = std::conditional_t<std::is_const_v<T>, const unsigned char, unsigned char>;
    return reinterpret_cast<T *>(reinterpret_cast<Byte *>(first) + std::ptrdiff_t(stepBytes) * row);
}

/// Column minima of one tile with `samples` samples per row. `scratch` has room for mask + 2 rows of kTileSamples.
NIMBRA_INLINE void filterColumnsBody(const float *source, int sourceStep, float *target, int targetStep, int samples, int height,
                                     int mask, int anchor, std::int32_t *scratch)
{
    std::int32_t *const head = scratch;
    std::int32_t *const tails = scratch + kTileSamples;
    std::fill_n(tails + std::ptrdiff_t(mask) * kTileSamples, kTileSamples, kNone);
    for (int block = -anchor; block + anchor < height; block += mask) {
        for (int i = mask - 1; i >= 0; --i) {
            std::int32_t *const tail = tails + std::ptrdiff_t(i) * kTileSamples;
            const std::int32_t *const next = tail + kTileSamples;
            const int row = block + i;
            if (row < 0 || row >= height) {
                std::copy_n(next, samples, tail);
                continue;
            }
            const float *const line = rowOf(source, sourceStep, row);
            for (int s = 0; s < samples; ++s)
                tail[s] = std::min(next[s], rankOf(line[s]));
        }
        std::fill_n(head, samples, kNone);
        const int windows = std::min(mask, height - block - anchor);
        for (int i = 0; i < windows; ++i) {
            const std::int32_t *const tail = tails + std::ptrdiff_t(i) * kTileSamples;
            float *const result = rowOf(target, targetStep, block + anchor + i);
            for (int s = 0; s < samples; ++s)
                result[s] = valueOf(std::min(tail[s], head[s]));
            const int row = block + mask + i;
            if (row >= height)
                continue;
            const float *const line = rowOf(source, sourceStep, row);
            for (int s = 0; s < samples; ++s)
                head[s] = std::min(head[s], rankOf(line[s]));
        }
    }
}
const auto filterColumns = versionOf<filterColumnsBody>();

NIMBRA_INLINE void takeMinimum(std::int32_t *target, const std::int32_t *a, const std::int32_t *b)
{
    for (int c = 0; c < kChannels; ++c)
        target[c] = std::min(a[c], b[c]);
}

/// Row minima, in place. `scratch` has room for the padded row (whole blocks, and one more) and for the tails of one block with a
/// sentinel.
NIMBRA_INLINE void filterRowBody(float *pixels, int width, int mask, int anchor, std::int32_t *scratch)
{
    const int blocks = (width + mask - 1) / mask + 1;
    const std::ptrdiff_t padded = std::ptrdiff_t(blocks) * mask * kChannels;
    std::int32_t *const row = scratch;
    std::int32_t *const tails = scratch + padded;
    const std::ptrdiff_t before = std::ptrdiff_t(anchor) * kChannels;
    const std::ptrdiff_t samples = std::ptrdiff_t(width) * kChannels;
    std::fill_n(row, before, kNone);
    // A window may reach beyond the last pixel, though not to the end of the last block.
    for (std::ptrdiff_t s = 0; s < samples; ++s)
        row[before + s] = rankOf(pixels[s]);
    std::fill_n(row + before + samples, padded - before - samples, kNone);
    std::fill_n(tails + std::ptrdiff_t(mask) * kChannels, kChannels, kNone);

    for (int block = 0; block < width; block += mask) {
        const std::int32_t *const here = row + std::ptrdiff_t(block) * kChannels;
        for (int i = mask - 1; i >= 0; --i)
            takeMinimum(tails + i * kChannels, tails + (i + 1) * kChannels, here + i * kChannels);
        std::int32_t head[kChannels] = {kNone, kNone, kNone, kNone};
        const std::int32_t *const next = here + std::ptrdiff_t(mask) * kChannels;
        float *const result = pixels + std::ptrdiff_t(block) * kChannels;
        const int windows = std::min(mask, width - block);
        for (int i = 0; i < windows; ++i) {
            for (int c = 0; c < kChannels; ++c)
                result[i * kChannels + c] = valueOf(std::min(tails[i * kChannels + c], head[c]));
            takeMinimum(head, head, next + i * kChannels);
        }
    }
}
const auto filterRow = versionOf<filterRowBody>();

} // namespace

std::size_t ippiFilterMinGetBufferSize(IppiSize region, IppiSize mask)
{
    if (region.width <= 0 || region.height <= 0 || mask.width <= 0 || mask.height <= 0)
        return 0;
    const std::size_t columns = (std::size_t(mask.height) + 2) * kTileSamples;
    const std::size_t blocks = (std::size_t(region.width) + std::size_t(mask.width) - 1) / std::size_t(mask.width) + 1;
    const std::size_t rows = ((blocks + 1) * std::size_t(mask.width) + 1) * kChannels;
    return std::max(columns, rows) * sizeof(std::int32_t);
}

IppStatus ippiFilterMinBorder(const float *source, int sourceStep, float *target, int targetStep, IppiSize region, IppiSize mask,
                              IppiPoint anchor, void *buffer)
{
    if (!source || !target || !buffer)
        return ippStsNullPtrErr;
    const bool anchored = anchor.x >= 0 && anchor.x < mask.width && anchor.y >= 0 && anchor.y < mask.height;
    if (region.width <= 0 || region.height <= 0 || !anchored)
        return ippStsSizeErr;
    auto *const scratch = static_cast<std::int32_t *>(buffer);
    for (int x = 0; x < region.width; x += kTilePixels) {
        const std::ptrdiff_t first = std::ptrdiff_t(x) * kChannels;
        const int samples = std::min(kTilePixels, region.width - x) * kChannels;
        filterColumns(source + first, sourceStep, target + first, targetStep, samples, region.height, mask.height, anchor.y,
                      scratch);
    }
    for (int y = 0; y < region.height; ++y)
        filterRow(rowOf(target, targetStep, y), region.width, mask.width, anchor.x, scratch);
    return ippStsNoErr;
}
