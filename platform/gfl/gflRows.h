#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "PixelForm.h"
#include "gflBitmapParts.h"

class RegularFile;

/// Rows of samples: from one form to another, out of a bitmap that is written, into a bitmap that is read.
namespace gfl {

using InputFile = RegularFile;

using Form = PixelForm;

Form formOf(const GflBitmap &bitmap);

/// Converts `width` pixels, depths as convertSample.h says. A grey sample becomes each of the first three components and a
/// missing alpha is opaque; an alpha that the target has no place for is dropped. A colour source never goes to a grey target.
using RowConverter = void (*)(const void *source, int sourceComponents, void *target, int targetComponents, int width);
RowConverter rowConverter(int sourceBits, int targetBits);

/// Swaps the bytes of `count` samples of 16 or 32 bits, in place or from one place to another.
void swapSamples(const void *source, void *target, std::size_t count, int bits);

inline const std::uint8_t *rowOf(const GflBitmap &bitmap, int y)
{
    return static_cast<const std::uint8_t *>(bitmap.data) + std::size_t(bitmap.bytesPerLine) * std::size_t(y);
}

/// The rows of a bitmap in the form that a file takes: row() is the bitmap's own memory where the form is the same, else one
/// converted row that the next call overwrites.
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

/// A bitmap in the making. The pixel block grows as rows are asked for, so that a header alone never makes the layer allocate
/// what it claims: the first block is in proportion to the file's size.
class NewBitmap
{
public:
    /// Throws FILE_READ for an empty size and NO_MEMORY for rows of 2 GiB and more.
    NewBitmap(const InputFile &file, std::int64_t width, std::int64_t height, Form form);

    GflBitmap &record() { return *bitmap; }
    int width() const { return bitmap->width; }
    int height() const { return bitmap->height; }
    /// The address of row `y`; any row address from before may be stale after it. Throws NO_MEMORY.
    std::uint8_t *row(int y);
    /// How many rows, `y` among them, may be written from row(y) on without another call.
    int rowsFrom(int y);
    BitmapPointer take() { return std::move(bitmap); }

private:
    BitmapPointer bitmap;
    std::size_t firstBytes;
    std::size_t capacity = 0;
};

} // namespace gfl
