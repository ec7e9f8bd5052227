#pragma once

#include <cstddef>
#include <cstdint>

/// The primitives layer: whole-rectangle operations on interleaved samples and small matrices. Steps are the bytes from one row to
/// the next. An operation that refuses its arguments says so in its status and leaves the target as it is. Everything runs on the
/// calling thread.

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

/// Inverse of a 3 x 3 matrix stored row by row: the adjugate and the determinant are formed in 64 bits and the quotients rounded
/// once. ippStsSingularErr leaves `target` as it is: a determinant of zero, or one that is not a finite number.
IppStatus ippmInvert3x3(const float source[9], float target[9]);
/// y = M v, each sum from left to right in 32 bits.
IppStatus ippmMul3x3(const float matrix[9], const float vector[3], float target[3]);
