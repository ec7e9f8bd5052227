#pragma once

#include <algorithm>
#include <cstdint>

#include "VException.h"
#include "VImage.h"
#include "threadCount.h"

// Shared by the sources of this room; no other room includes it.

/// V_LOCATION for a module that has moved out of VImage.cpp. Fixed: hosts rely on it, since they know these failures under the
/// record's own source.
#define V_RECORD_LOCATION V_LOCATION_IN("../image/VImage.cpp")

/// Whether this is part of one of the nine processed forms: three types by three depths.
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

/// Number of threads for `blocks` blocks of work that would take a single thread `nanoseconds` in all: threadCount, but no more
/// than there are blocks, and at least 1. Waking a thread and waiting for it takes about 12 microseconds, so each one must have
/// twice that to do; small pictures thus run on the calling thread.
inline int teamFor(int blocks, double nanoseconds)
{
    constexpr double kShare = 25e3;
    const double most = std::min(nanoseconds / kShare, double(blocks));
    return std::max(1, int(std::min(double(threadCount), most)));
}

/// First row of part `part` when `rows` rows are divided into `parts` contiguous blocks. Part `parts` starts just past the last
/// row.
inline int firstRowOf(int part, int parts, int rows)
{
    return int(std::int64_t(rows) * part / parts);
}
