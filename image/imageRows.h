#pragma once

#include <algorithm>
#include <cstdint>

#include "VException.h"
#include "VImage.h"
#include "threadCount.h"

// What the sources of this room have in common; no other room includes it.

/// V_LOCATION in a further module of the record: hosts know these throws under the record's own source.
#define V_RECORD_LOCATION V_LOCATION_IN("../image/VImage.cpp")

/// The nine forms that are processed: one of three types, one of three depths.
inline bool isProcessedType(unsigned short type)
{
    return type == VImage::Grey || type == VImage::Rgb || type == VImage::Rgba;
}
inline bool isProcessedDepth(int bits)
{
    return bits == 8 || bits == 16 || bits == 32;
}

/// Row `y` of an image with 32-bit samples.
inline const float *rowOf(const VImage &image, int y)
{
    return reinterpret_cast<const float *>(image.PixelAddress(0, y));
}
inline float *rowOf(VImage &image, int y)
{
    return reinterpret_cast<float *>(image.PixelAddress(0, y));
}

/// Threads for work in `blocks` blocks: threadCount, but no more than there are blocks, and at least 1.
inline int teamFor(int blocks)
{
    return std::max(1, std::min(int(threadCount), blocks));
}

/// First of the `rows` rows that part `part` of `parts` takes: one contiguous block each. Part `parts` begins behind the last
/// row.
inline int firstRowOf(int part, int parts, int rows)
{
    return int(std::int64_t(rows) * part / parts);
}
