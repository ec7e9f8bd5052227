#pragma once

#include <cstddef>
#include <memory>

#include "ipp.h"

class VImage;

struct IppsRelease
{
    void operator()(void *block) const { ippsFree(block); }
};
template<typename T>
using IppsBlock = std::unique_ptr<T, IppsRelease>;

/// One image scaled to another size, row by row, as VImage::Resample does it: bilinear if either side grows, otherwise by area
/// averaging. Any rows at any time, on several threads, with a buffer for each.
class ImageScaling
{
public:
    /// `image` must be of one of the nine processed forms and outlive this object. Throws std::bad_alloc.
    ImageScaling(const VImage &image, int width, int height);
    /// False for an image or a size without pixels: there is nothing to write.
    explicit operator bool() const { return bool(spec); }
    /// Working memory for `threads` threads. Throws std::bad_alloc.
    IppsBlock<unsigned char> buffers(int threads) const;
    unsigned char *bufferOf(const IppsBlock<unsigned char> &memory, int thread) const;

    /// Writes the rows firstRow ... firstRow + rowCount - 1 of the result; `target` is the place of the first of them.
    void write(int firstRow, int rowCount, void *target, int targetStep, unsigned char *buffer) const;

private:
    const VImage &source;
    IppsBlock<IppiResizeSpec> spec;
    std::size_t bufferBytes = 0;
};
