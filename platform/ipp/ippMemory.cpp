#include "ipp.h"

#include <cstdlib>
#include <limits>

namespace {

constexpr std::size_t kAlignment = 64;

std::size_t alignUp(std::size_t bytes)
{
    return (bytes + kAlignment - 1) / kAlignment * kAlignment;
}

} // namespace

void *ippiMalloc(int width, int height, PixelForm form, int *stepBytes)
{
    if (width <= 0 || height <= 0)
        return nullptr;
    const std::size_t step = alignUp(std::size_t(width) * form.pixelBytes());
    if (step > std::size_t(std::numeric_limits<int>::max()))
        return nullptr;
    *stepBytes = int(step);
    return ippsMalloc(step * std::size_t(height));
}

void ippiFree(void *raster)
{
    std::free(raster);
}

void *ippsMalloc(std::size_t bytes)
{
    if (bytes > std::size_t(std::numeric_limits<std::ptrdiff_t>::max()) - kAlignment)
        return nullptr;
    return std::aligned_alloc(kAlignment, bytes == 0 ? kAlignment : alignUp(bytes));
}

void ippsFree(void *block)
{
    std::free(block);
}
