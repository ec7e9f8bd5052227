#pragma once

#include <cstddef>
#include <cstdint>

#include "PixelForm.h"

/// The primitives layer: operations on whole rectangles of interleaved samples, and on small matrices. A step is the distance in
/// bytes from one row to the next. An operation that rejects its arguments returns an error status and leaves the target
/// unchanged. Everything runs on the calling thread.

using IppStatus = int;
constexpr IppStatus ippStsNoErr = 0;
constexpr IppStatus ippStsSizeErr = -6;
constexpr IppStatus ippStsNullPtrErr = -8;
constexpr IppStatus ippStsSingularErr = -195;

struct IppiSize
{
    int width;
    int height;
};
struct IppiPoint
{
    int x;
    int y;
};

/// Selects the code paths for this processor. Safe to call again.
[[nodiscard]] IppStatus ippInit();

/// A raster of width x height pixels whose start and rows are aligned to 64 bytes; `*stepBytes` receives the step. Null for an
/// empty size, for a row of 2 GiB or more, and if there is no memory. Released with ippiFree.
void *ippiMalloc(int width, int height, PixelForm form, int *stepBytes);
void ippiFree(void *raster);

/// A block aligned to 64 bytes, or null; released with ippsFree.
void *ippsMalloc(std::size_t bytes);
void ippsFree(void *block);

/// Changes the depth of every sample (`channels` per pixel, alpha like the others) as convertSample.h describes. The rasters
/// don't overlap.
[[nodiscard]] IppStatus ippiScale(const void *source, int sourceStep, int sourceBits, void *target, int targetStep,
                                  int targetBits, int channels, IppiSize size);

/// Changes the number of channels; both sides have the depth `bits`. 4 to 3 drops alpha; 3 to 4 copies the colours; 1 to 3 and 1
/// to 4 repeat the sample in R, G and B; equal counts copy. An alpha without a source is set to the sample at `alpha`, or keeps
/// the target's value if `alpha` is null. The rasters don't overlap.
[[nodiscard]] IppStatus ippiCopy(const void *source, int sourceStep, int sourceChannels, void *target, int targetStep,
                                 int targetChannels, int bits, IppiSize size, const void *alpha = nullptr);

/// One channel from 3 or 4 (alpha is ignored): 0.299 R + 0.587 G + 0.114 B. Integers are computed exactly and rounded to the
/// nearest, ties upwards; floats are summed in 32 bits from left to right. The rasters don't overlap.
[[nodiscard]] IppStatus ippiRGBToGray(const void *source, int sourceStep, int sourceChannels, void *target, int targetStep,
                                      int bits, IppiSize size);

/// Reorders the four 8-bit channels of each pixel in place: channel i receives the old channel order[i].
[[nodiscard]] IppStatus ippiSwapChannels(void *raster, int step, IppiSize size, const int order[4]);

enum class IppiInterpolation { Linear = 2, Super = 8 };

/// A resize from one size to another, prepared by ippiResizeInit in a block of ippiResizeGetSize bytes; holds only numbers.
struct IppiResizeSpec;

/// Bytes of such a block; 0 if a side is not positive.
std::size_t ippiResizeGetSize(IppiSize source, IppiSize target, IppiInterpolation method);

/// Linear: aligns the pixel centres of both grids and replicates the border. Super: each target pixel is the mean of the source
/// area that it covers, partly covered pixels weighted by their share. `spec` is such a block, aligned to 8 bytes.
[[nodiscard]] IppStatus ippiResizeInit(IppiSize source, IppiSize target, IppiInterpolation method, PixelForm form,
                                       IppiResizeSpec *spec);

/// Bytes of the working buffer of one ippiResize call; concurrent calls need one each.
std::size_t ippiResizeGetBufferSize(const IppiResizeSpec *spec);

/// Writes the target rows firstRow .. firstRow + rowCount - 1; `source` and `target` point to the first pixels of the whole
/// rasters. Integers are rounded to the nearest, ties to even. A target row depends only on the source, so any split into calls
/// gives the same result. A source sample outside a target pixel's area does not affect it, even if it is NaN or infinite.
[[nodiscard]] IppStatus ippiResize(const void *source, int sourceStep, void *target, int targetStep, int firstRow, int rowCount,
                                   const IppiResizeSpec *spec, void *buffer);

/// Bytes of the working buffer of ippiFilterMinBorder; 0 if a side is not positive.
std::size_t ippiFilterMinGetBufferSize(IppiSize region, IppiSize mask);

/// Minimum of each channel over a window of `mask` pixels whose pixel `anchor` lies on the target pixel, for rasters of four
/// floats per pixel; the border is replicated. -0.0 is below 0.0. NaN samples are skipped; a window of nothing else gives NaN.
/// `buffer` is aligned to 4 bytes. ippStsSizeErr: an empty region, or an anchor outside the mask.
[[nodiscard]] IppStatus ippiFilterMinBorder(const float *source, int sourceStep, float *target, int targetStep, IppiSize region,
                                            IppiSize mask, IppiPoint anchor, void *buffer);

/// Inverse of a 3 x 3 matrix stored row by row: the adjugate and the determinant are computed in 64 bits and the quotients
/// rounded once. ippStsSingularErr, with `target` unchanged, if the determinant is zero or not finite.
[[nodiscard]] IppStatus ippmInvert3x3(const float source[9], float target[9]);
/// y = M v, each sum from left to right in 32 bits.
[[nodiscard]] IppStatus ippmMul3x3(const float matrix[9], const float vector[3], float target[3]);
