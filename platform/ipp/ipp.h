#pragma once

#include <cstddef>
#include <cstdint>

#include "PixelForm.h"

/// The primitives layer: whole-rectangle operations on interleaved samples and small matrices. Steps are the bytes from one row
/// to the next. An operation that refuses its arguments says so in its status and leaves the target as it is. Everything runs on
/// the calling thread.

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

/// Chooses the code paths for this processor. Safe to call again.
IppStatus ippInit();

/// A raster of width x height pixels, its rows and its start aligned to 64 bytes; `*stepBytes` gets the bytes from row to row.
/// Null for an empty size, for a row of 2 GiB or more and when there is no memory. Released with ippiFree.
void *ippiMalloc(int width, int height, PixelForm form, int *stepBytes);
void ippiFree(void *raster);

/// A block aligned to 64 bytes, or null; released with ippsFree.
void *ippsMalloc(std::size_t bytes);
void ippsFree(void *block);

/// Changes the depth of every sample, `channels` a pixel, alpha like the others, as convertSample.h says. The rasters don't
/// overlap.
IppStatus ippiScale(const void *source, int sourceStep, int sourceBits, void *target, int targetStep, int targetBits,
                    int channels, IppiSize size);

/// Changes the channels, the depth being `bits` on both sides: 4 to 3 drops alpha; 3 to 4 copies the colours; 1 to 3 and 1 to 4
/// repeat the sample in R, G and B; equal counts copy. Where alpha is not copied it is set to the sample at `alpha`, and with
/// null it stays as the target has it. The rasters don't overlap.
IppStatus ippiCopy(const void *source, int sourceStep, int sourceChannels, void *target, int targetStep, int targetChannels,
                   int bits, IppiSize size, const void *alpha = nullptr);

/// One channel from 3 or 4 (alpha has no say): 0.299 R + 0.587 G + 0.114 B; integers exactly and then to the nearest, ties
/// upwards, floats in 32 bits from left to right. The rasters don't overlap.
IppStatus ippiRGBToGray(const void *source, int sourceStep, int sourceChannels, void *target, int targetStep, int bits,
                        IppiSize size);

/// Rearranges the four 8-bit channels of each pixel in place: channel i becomes what channel order[i] was.
IppStatus ippiSwapChannels(void *raster, int step, IppiSize size, const int order[4]);

enum class IppiInterpolation { Linear = 2, Super = 8 };

/// A resize from one size to another, prepared by ippiResizeInit in a block of ippiResizeGetSize bytes; holds only numbers.
struct IppiResizeSpec;

/// Bytes of such a block; 0 if a side is not positive.
std::size_t ippiResizeGetSize(IppiSize source, IppiSize target, IppiInterpolation method);

/// Linear: pixel centres of both grids are aligned, the border is replicated. Super: each target pixel is the mean of the source
/// area that it covers, parts of pixels counted by their share. `spec` is such a block, aligned to 8 bytes.
IppStatus ippiResizeInit(IppiSize source, IppiSize target, IppiInterpolation method, PixelForm form, IppiResizeSpec *spec);

/// Bytes of the working buffer that one ippiResize call needs; calls that run at the same time have one each.
std::size_t ippiResizeGetBufferSize(const IppiResizeSpec *spec);

/// Writes the target rows firstRow .. firstRow + rowCount - 1; `source` and `target` are the first pixels of the whole rasters.
/// Integers are rounded to the nearest, ties to even. A target row depends on nothing but the source, so that any split into
/// calls gives the same result. A source sample without share in a target pixel has no say in it, not-a-number and infinity
/// included.
IppStatus ippiResize(const void *source, int sourceStep, void *target, int targetStep, int firstRow, int rowCount,
                     const IppiResizeSpec *spec, void *buffer);

/// Bytes of the working buffer of ippiFilterMinBorder; 0 if a side is not positive.
std::size_t ippiFilterMinGetBufferSize(IppiSize region, IppiSize mask);

/// Minimum of each channel over a window of `mask` pixels that lies with its pixel `anchor` on the target's pixel, for rasters of
/// four floats a pixel; the border is replicated. -0.0 is below 0.0. A sample that is not a number is passed over, and a window
/// that holds nothing else gives not-a-number. `buffer` is aligned to 4 bytes. ippStsSizeErr: an empty region, or an anchor
/// outside of the mask.
IppStatus ippiFilterMinBorder(const float *source, int sourceStep, float *target, int targetStep, IppiSize region, IppiSize mask,
                              IppiPoint anchor, void *buffer);

/// Inverse of a 3 x 3 matrix stored row by row: the adjugate and the determinant are formed in 64 bits and the quotients rounded
/// once. ippStsSingularErr leaves `target` as it is: a determinant of zero, or one that is not a finite number.
IppStatus ippmInvert3x3(const float source[9], float target[9]);
/// y = M v, each sum from left to right in 32 bits.
IppStatus ippmMul3x3(const float matrix[9], const float vector[3], float target[3]);
