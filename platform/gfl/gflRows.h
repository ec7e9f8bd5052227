#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "PixelForm.h"
#include "gflBitmapParts.h"

class RegularFile;

/// Rows of samples: converted between forms, taken from a bitmap being written, placed in a bitmap being read.
namespace gfl {

using InputFile = RegularFile;

using Form = PixelForm;

Form formOf(const GflBitmap &bitmap);

/// Converts `width` pixels; depths as in convertSample.h. A grey sample is copied to each colour, a missing alpha becomes opaque,
/// and an alpha that the target has no room for is dropped. Colour is never converted to grey: BAD_BITMAP.
using RowConverter = void (*)(const void *source, int sourceComponents, void *target, int targetComponents, int width);
RowConverter rowConverter(int sourceBits, int targetBits);

/// Swaps the bytes of `count` samples of 16 or 32 bits, in place or while copying; samples of 8 bits are only copied.
void swapSamples(const void *source, void *target, std::size_t count, int bits);

inline const std::uint8_t *rowOf(const GflBitmap &bitmap, int y)
{
    return static_cast<const std::uint8_t *>(bitmap.data) + std::size_t(bitmap.bytesPerLine) * std::size_t(y);
}

/// The rows of a bitmap in a file's form: row() returns the bitmap's memory if the forms agree, otherwise a converted row that
/// the next call overwrites.
class SourceRows
{
public:
    SourceRows(const GflBitmap &bitmap, Form form);
    const std::uint8_t *row(int y);

private:
    const GflBitmap &bitmap;
    Form form;
    RowConverter convert;
    Bytes buffer;
};

/// A bitmap being read. Its pixel block grows as rows are requested, and the first block is in proportion to the file's size, so
/// that a header alone never makes the layer allocate what it claims.
class NewBitmap
{
public:
    /// Throws FILE_READ for a size that is empty or out of proportion to the file, and NO_MEMORY for rows of 2 GiB or more.
    NewBitmap(const InputFile &file, std::int64_t width, std::int64_t height, Form form);

    GflBitmap &record() { return *bitmap; }
    int width() const { return bitmap->width; }
    int height() const { return bitmap->height; }
    /// The address of row `y`; invalidates all addresses returned before. Throws NO_MEMORY.
    std::uint8_t *row(int y);
    /// How many rows, starting with row `y`, may be written without another call.
    int rowsFrom(int y);
    BitmapPointer take() { return std::move(bitmap); }

private:
    BitmapPointer bitmap;
    std::size_t firstBytes;
    std::size_t capacity = 0;
};

} // namespace gfl
