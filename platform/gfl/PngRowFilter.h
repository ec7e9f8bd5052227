#pragma once

#include <cstddef>
#include <cstdint>

#include "gflBitmapParts.h"

namespace gfl {

/// Filters the rows of a PNG file in order; see PNG (ISO/IEC 15948), clause 9.
class PngRowFilter
{
public:
    PngRowFilter(std::size_t rowBytes, std::size_t pixelBytes);

    /// Where to put the next row, in the file's byte order.
    std::uint8_t *next() { return current.data() + pixelBytes; }
    /// Writes the filter byte and the filtered row, rowBytes + 1 bytes, with the filter that gives the smallest sum of
    /// magnitudes.
    void filter(std::uint8_t *target);
    /// Takes the row without filtering it: only the one below needs it.
    void skip() { current.swap(above); }

private:
    std::size_t rowBytes;
    std::size_t pixelBytes;
    Bytes current; ///< Each row is preceded by a pixel of zeros.
    Bytes above;
    Bytes candidate;
};

} // namespace gfl
